// Binomial and Poisson point probabilities and tails: the worked values, the exact
// identity between tails and sums of point probabilities, the asymmetric range rule
// and agreement with a 60-digit reference.
#include <kornum/DiscreteDistributions.h>
#include <kornum/Kornum_RS_Math.h>

#include "DistributionTestSupport.h"

#include <cmath>
#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace distribution_tests;
namespace rs = Kornum_RS_Math;

TEST(Binomial, WorkedValues) {
    EXPECT_EQ(BinomialEq(0.5L, 4, 2), 0.375L);
    EXPECT_EQ(BinomialLess(0.5L, 4, 2), 0.3125L);
    EXPECT_EQ(BinomialGreater(0.5L, 4, 2), 0.3125L);
    EXPECT_EQ(BinomialLess(0.5L, 4, 0), 0.0L);
    // The bounds run exclusive one way and inclusive the other.
    EXPECT_EQ(BinomialBetween(0.5L, 4, 1, 3), 0.375L);
    EXPECT_EQ(BinomialBetween(0.5L, 4, 3, 1), 0.875L);
    EXPECT_EQ(BinomialBetween(0.5L, 4, 2, 2), 0.375L);
    // P = 0 and P = 1 are accepted (0^0 = 1).
    EXPECT_EQ(BinomialEq(0.0L, 5, 0), 1.0L);
    EXPECT_EQ(BinomialEq(1.0L, 5, 5), 1.0L);
    EXPECT_EQ(BinomialEq(1.0L, 5, 4), 0.0L);
}

TEST(Binomial, RangeBoundsAreComparedAsSingleValues) {
    // 1999999 and 2000000 pass the Single tolerance test, so the "range" is the
    // point 1999999; compared exactly it would be the empty range (0).
    const Float p = 1 - 1e-7L;
    EXPECT_EQ(BinomialBetween(p, 2000000, 1999999, 2000000), BinomialEq(p, 2000000, 1999999));
    EXPECT_LT(RelativeError(BinomialEq(p, 2000000, 1999999), 0.163746165352751299876L), 1e-12L);
}

TEST(Binomial, TailsAreSumsOfPointProbabilities) {
    for (const Float p : {0.1L, 0.5L, 0.73L}) {
        for (const Cardinal n : {1u, 7u, 40u, 160u}) {
            Float sum = 0;
            for (Cardinal r = 0; r <= n; ++r) {
                ASSERT_EQ(BinomialLess(p, n, r), sum) << double(p) << " " << n << " " << r;
                if (r < n) {
                    ASSERT_EQ(BinomialGreater(p, n, r), 1 - (sum + BinomialEq(p, n, r)));
                }
                sum += BinomialEq(p, n, r);
            }
        }
    }
}

TEST(Binomial, InvalidArguments) {
    ExpectRaises([] { BinomialEq(0.5L, 0, 0); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialEq(0.5L, 3, 4); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialEq(-0.01L, 3, 1); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialLess(1.01L, 3, 1); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialLess(0.5L, 0, 0); }, rs::rsBinomDistInvalid);
    // The upper tail checks R + 1 against N, even when R + 1 leaves the Cardinal range.
    ExpectRaises([] { BinomialGreater(0.5L, 4, 4); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialGreater(0.5L, 4, std::numeric_limits<Cardinal>::max()); },
                 rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialBetween(0.5L, 4, 4, 2); }, rs::rsBinomDistInvalid);
    ExpectRaises([] { BinomialBetween(0.5L, 4, 1, 5); }, rs::rsBinomDistInvalid);
}

TEST(Binomial, AgreesWithHighPrecisionReference) {
    Float worstEq = 0, worstLess = 0;
    for (const auto& row : ReadTable("distributions_binomial.tsv")) {
        const Float p = ToFloat(row[0]);
        const Cardinal n = Cardinal(std::stoul(row[1])), r = Cardinal(std::stoul(row[2]));
        const Float eq = ToFloat(row[3]), less = ToFloat(row[4]);
        worstEq = std::max(worstEq, RelativeError(BinomialEq(p, n, r), eq));
        if (less != 0) worstLess = std::max(worstLess, RelativeError(BinomialLess(p, n, r), less));
        else EXPECT_EQ(BinomialLess(p, n, r), 0.0L);
    }
    EXPECT_LE(worstEq, 1e-15L);
    EXPECT_LE(worstLess, 1e-15L);
    std::cout << "Binomial: max relative error Eq " << double(worstEq) << ", Less "
              << double(worstLess) << "\n";
}

TEST(Poisson, WorkedValuesAndRanges) {
    EXPECT_EQ(PoissonEq(2, 0), std::exp(-2.0L));
    EXPECT_EQ(PoissonLess(2, 0), 0.0L);
    EXPECT_EQ(PoissonLess(2, 2), PoissonEq(2, 0) + PoissonEq(2, 1));
    EXPECT_EQ(PoissonGreater(2, 1), 1 - (PoissonEq(2, 0) + PoissonEq(2, 1)));
    EXPECT_EQ(PoissonBetween(2, 1, 3), PoissonLess(2, 3) - PoissonLess(2, 2));
    EXPECT_EQ(PoissonBetween(2, 3, 1), -(PoissonLess(2, 1) - PoissonLess(2, 4)));
    EXPECT_EQ(PoissonBetween(2, 3, 3), PoissonEq(2, 3));
}

TEST(Poisson, TailsAreSumsOfPointProbabilities) {
    for (const Float lambda : {0.3L, 4.0L, 75.5L}) {
        Float sum = 0;
        for (Cardinal x = 0; x <= 300; ++x) {
            ASSERT_EQ(PoissonLess(lambda, x), sum) << double(lambda) << " " << x;
            sum += PoissonEq(lambda, x);
        }
    }
}

TEST(Poisson, InvalidArguments) {
    ExpectRaises([] { PoissonEq(0, 1); }, rs::rsPoissonInvalid);
    ExpectRaises([] { PoissonLess(-1, 1); }, rs::rsPoissonInvalid);
    ExpectRaises([] { PoissonGreater(0, 1); }, rs::rsPoissonInvalid);
    ExpectRaises([] { PoissonEq(1, 1755); }, rs::rsFactOverflow);
    EXPECT_NO_THROW(PoissonLess(1, 1755));  // the last term is 1754!
    ExpectRaises([] { PoissonLess(1, 1756); }, rs::rsFactOverflow);
    ExpectRaises([] { PoissonGreater(1, 1755); }, rs::rsFactOverflow);
    // Poisson checks Lambda before the count.
    ExpectRaises([] { PoissonEq(0, 5000); }, rs::rsPoissonInvalid);
}

TEST(Poisson, AgreesWithHighPrecisionReference) {
    Float worstEq = 0, worstLess = 0;
    for (const auto& row : ReadTable("distributions_poisson.tsv")) {
        const Float lambda = ToFloat(row[0]);
        const Cardinal x = Cardinal(std::stoul(row[1]));
        worstEq = std::max(worstEq, RelativeError(PoissonEq(lambda, x), ToFloat(row[2])));
        const Float less = ToFloat(row[3]);
        if (less != 0) worstLess = std::max(worstLess, RelativeError(PoissonLess(lambda, x), less));
    }
    EXPECT_LE(worstEq, 1e-15L);
    EXPECT_LE(worstLess, 1e-15L);
    std::cout << "Poisson: max relative error Eq " << double(worstEq) << ", Less "
              << double(worstLess) << "\n";
}
