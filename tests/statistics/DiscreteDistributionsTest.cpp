// Binomial and Poisson probabilities: worked values, the asymmetric range rule, tails
// that equal the sums of point probabilities, and a 60-digit reference.
#include <kornum/DiscreteDistributions.h>
#include <kornum/Kornum_RS_Math.h>

#include "StatisticsTestSupport.h"

#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace StatisticsTest;
namespace rs = Kornum_RS_Math;

TEST(DiscreteDistributions, WorkedValuesAndRanges) {
    // 1999999 and 2000000 coincide as Single values, so that "range" is the point
    // 1999999 (about 0.1637); compared exactly it would be empty.
    const Float p = 1 - 1e-7L;
    EXPECT_TRUE(AllMatch({
        {BinomialEq(0.5L, 4, 2), 0.375L}, {BinomialLess(0.5L, 4, 2), 0.3125L}, {BinomialGreater(0.5L, 4, 2), 0.3125L},
        {BinomialBetween(0.5L, 4, 1, 3), 0.375L},  // both ends excluded
        {BinomialBetween(0.5L, 4, 3, 1), 0.875L},  // both ends included
        {BinomialEq(0.0L, 5, 0), 1}, {BinomialEq(1.0L, 5, 4), 0},  // P = 0 and 1 accepted
        {BinomialBetween(p, 2000000, 1999999, 2000000), BinomialEq(p, 2000000, 1999999)},
        {PoissonEq(2, 0), std::exp(-2.0L)}, {PoissonLess(2, 0), 0}, {PoissonBetween(2, 3, 3), PoissonEq(2, 3)},
        {PoissonBetween(2, 3, 1), PoissonLess(2, 4) - PoissonLess(2, 1)},
    }));
    EXPECT_LT(RelativeError(BinomialEq(p, 2000000, 1999999), 0.163746165352751300L), 1e-12L);
}

TEST(DiscreteDistributions, TailsAreSumsOfPointProbabilities) {
    for (const Float p : {0.1L, 0.73L}) {
        for (const Cardinal n : {7u, 160u}) {
            Float sum = 0;
            for (Cardinal r = 0; r < n; ++r) {
                ASSERT_EQ(BinomialLess(p, n, r), sum);
                sum += BinomialEq(p, n, r);
                ASSERT_EQ(BinomialGreater(p, n, r), 1 - sum);
            }
        }
    }
    for (const Float lambda : {0.3L, 75.5L}) {
        Float sum = 0;
        for (Cardinal x = 0; x <= 300; ++x) {
            ASSERT_EQ(PoissonLess(lambda, x), sum);
            sum += PoissonEq(lambda, x);
            ASSERT_EQ(PoissonGreater(lambda, x), 1 - sum);
        }
    }
}

TEST(DiscreteDistributions, InvalidArguments) {
    for (auto call : {+[] { BinomialEq(0.5L, 0, 0); }, +[] { BinomialEq(0.5L, 3, 4); },
                      +[] { BinomialEq(-0.01L, 3, 1); }, +[] { BinomialLess(1.01L, 3, 1); },
                      +[] { BinomialGreater(0.5L, 4, 4); },  // R + 1 > N
                      +[] { BinomialGreater(0.5L, 4, std::numeric_limits<Cardinal>::max()); },
                      +[] { BinomialBetween(0.5L, 4, 4, 2); }})
        EXPECT_TRUE(Raises(call, rs::rsBinomDistInvalid));
    EXPECT_TRUE(Raises([] { PoissonEq(0, 1); }, rs::rsPoissonInvalid));
    EXPECT_TRUE(Raises([] { PoissonGreater(-1, 5000); }, rs::rsPoissonInvalid));
    EXPECT_TRUE(Raises([] { PoissonEq(1, 1755); }, rs::rsFactOverflow));
    EXPECT_NO_THROW(PoissonLess(1, 1755));  // its last term is 1754!
    EXPECT_TRUE(Raises([] { PoissonGreater(1, 1755); }, rs::rsFactOverflow));
}

TEST(DiscreteDistributions, AgreeWithHighPrecisionReference) {
    Float worst[4] = {};  // binomial Eq, Less; Poisson Eq, Less
    auto track = [](Float& slot, Float value, Float reference) {
        if (reference == 0) EXPECT_EQ(value, 0.0L);
        else slot = std::max(slot, RelativeError(value, reference));
    };
    for (const auto& row : ReadTable("distributions_binomial.tsv")) {  // P N R Eq Less
        const Cardinal n = Cardinal(row[1]), r = Cardinal(row[2]);
        track(worst[0], BinomialEq(row[0], n, r), row[3]);
        track(worst[1], BinomialLess(row[0], n, r), row[4]);
    }
    for (const auto& row : ReadTable("distributions_poisson.tsv")) {  // Lambda X Eq Less
        track(worst[2], PoissonEq(row[0], Cardinal(row[1])), row[2]);
        track(worst[3], PoissonLess(row[0], Cardinal(row[1])), row[3]);
    }
    for (const Float w : worst) EXPECT_LE(w, 1e-15L);
    std::cout << "max relative error: BinomialEq " << double(worst[0]) << ", BinomialLess "
              << double(worst[1]) << ", PoissonEq " << double(worst[2]) << ", PoissonLess "
              << double(worst[3]) << "\n";
}
