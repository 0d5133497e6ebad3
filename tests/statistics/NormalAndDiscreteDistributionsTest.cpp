// Factorials, permutation counts and binomial coefficients (checked against exact
// integers over every (N, R) up to N = 1030); binomial and Poisson probabilities (worked
// values, the asymmetric range rule, tails equal to sums of point probabilities); the
// normal and log-normal distributions (worked values, argument conventions, the order of
// the checks); and both families against 60-digit reference tables.
#include "StatisticsTestSupport.h"

#include <cstdint>
#include <iostream>
#include <limits>

using namespace StatisticsTest;

TEST(Combinatorics, ZeroCasesExactValuesAndFailures) {
    const Cardinal largest = std::numeric_limits<Cardinal>::max();  // the loop must end
    EXPECT_TRUE(AllMatch({
        {Factorial(0), 1}, {Factorial(20), 2432902008176640000.0L},
        {Permutation(5, 2), 20}, {Permutation(5, 0), 1}, {Permutation(0, 0), 0},  // deliberately 0
        {BinomialCoeff(5, 2), 10}, {BinomialCoeff(5, 5), 1}, {BinomialCoeff(0, 0), 0},  // deliberately 0
        {BinomialCoeff(52, 5), 2598960}, {BinomialCoeff(60, 30), 118264581564861424.0L},
        {BinomialCoeff(64, 32), 1832624140942590534.0L}, {BinomialCoeff(largest, largest - 1), largest},
    }));
    EXPECT_LT(RelativeError(Factorial(1754), 1.97926189010501005538e+4930L), 1e-16L);
    EXPECT_TRUE(Raises([] { Factorial(1755); }, rsFactOverflow));
    EXPECT_TRUE(Raises([] { Permutation(2, 3); }, rsPermInvalid));
    EXPECT_TRUE(Raises([] { Permutation(4000000000u, 600); }, rsPermOverflowed));  // ~10^5761
    EXPECT_TRUE(Raises([] { BinomialCoeff(2, 3); }, rsBinomInvalid));
    EXPECT_TRUE(Raises([] { BinomialCoeff(100000, 50000); }, rsBinomOverflowed));  // ~10^30100
}

TEST(Combinatorics, BinomialCoeffWithinFourE18OfExactIntegersUpToN1030) {
    // The additive triangle of binomial coefficients in base 2^32; a row entry is read
    // to within an ulp of a Float from its top three limbs.
    using BigInt = std::vector<std::uint32_t>;
    auto add = [](const BigInt& a, const BigInt& b) {
        BigInt sum(std::max(a.size(), b.size()) + 1, 0);
        std::uint64_t carry = 0;
        for (std::size_t i = 0; i < sum.size(); ++i) {
            carry += (i < a.size() ? a[i] : 0) + std::uint64_t(i < b.size() ? b[i] : 0);
            sum[i] = std::uint32_t(carry);
            carry >>= 32;
        }
        if (sum.back() == 0) sum.pop_back();
        return sum;
    };
    auto value = [](const BigInt& x) {
        Float result = 0;
        for (std::size_t i = x.size(); i-- > 0 && i + 3 >= x.size();)
            result += std::ldexp(Float(x[i]), int(32 * i));
        return result;
    };
    std::vector<BigInt> row{BigInt{1}};
    Float worst = 0;
    for (Cardinal n = 1; n <= 1030; ++n) {
        std::vector<BigInt> next(n + 1, BigInt{1});
        for (Cardinal r = 1; r < n; ++r) next[r] = add(row[r - 1], row[r]);
        row.swap(next);
        for (Cardinal r = 0; r <= n; ++r)
            worst = std::max(worst, RelativeError(BinomialCoeff(n, r), value(row[r])));
    }
    EXPECT_LT(RelativeError(value(row[515]), 2.85964137299780816376e+308L), 1e-18L);
    EXPECT_LE(worst, 4e-18L);
    std::cout << "BinomialCoeff: max relative error " << double(worst) << "\n";
}

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
        EXPECT_TRUE(Raises(call, rsBinomDistInvalid));
    EXPECT_TRUE(Raises([] { PoissonEq(0, 1); }, rsPoissonInvalid));
    EXPECT_TRUE(Raises([] { PoissonGreater(-1, 5000); }, rsPoissonInvalid));
    EXPECT_TRUE(Raises([] { PoissonEq(1, 1755); }, rsFactOverflow));
    EXPECT_NO_THROW(PoissonLess(1, 1755));  // its last term is 1754!
    EXPECT_TRUE(Raises([] { PoissonGreater(1, 1755); }, rsFactOverflow));
}

TEST(NormalAndDiscreteDistributions, AgreeWithHighPrecisionReferences) {
    // Largest relative error of BinomialEq, BinomialLess, PoissonEq, PoissonLess and
    // InvNormalLess (a zero reference must be met exactly), and the largest absolute
    // error of NormalLess.
    Float worst[6] = {};
    auto track = [](Float& slot, Float value, Float reference) {
        slot = std::max(slot, reference == 0 ? Float(value != 0) : RelativeError(value, reference));
    };
    for (const auto& row : ReadTable("distributions_binomial.tsv")) {  // P N R Eq Less
        track(worst[0], BinomialEq(row[0], Cardinal(row[1]), Cardinal(row[2])), row[3]);
        track(worst[1], BinomialLess(row[0], Cardinal(row[1]), Cardinal(row[2])), row[4]);
    }
    for (const auto& row : ReadTable("distributions_poisson.tsv")) {  // Lambda X Eq Less
        track(worst[2], PoissonEq(row[0], Cardinal(row[1])), row[2]);
        track(worst[3], PoissonLess(row[0], Cardinal(row[1])), row[3]);
    }
    for (const auto& row : ReadTable("distributions_inv_normal.tsv"))  // P in [1e-300, 1)
        track(worst[4], InvNormalLess(row[0]), row[1]);
    for (const auto& row : ReadTable("distributions_normal_less.tsv"))  // Z in [0, 7]
        worst[5] = std::max(worst[5], std::fabs(NormalLess(row[0]) - row[1]));
    for (int i = 0; i < 4; ++i) EXPECT_LE(worst[i], 1e-15L) << i;
    // The published approximation is good to about 1e-16: room for that, not for a
    // wrong coefficient (1e-10 or worse).
    EXPECT_LE(worst[4], 2e-16L);
    EXPECT_LE(worst[5], 2e-18L);
    std::cout << "max relative error: BinomialEq " << double(worst[0]) << ", BinomialLess " << double(worst[1])
              << ", PoissonEq " << double(worst[2]) << ", PoissonLess " << double(worst[3]) << ", InvNormalLess "
              << double(worst[4]) << "; NormalLess max absolute error " << double(worst[5]) << "\n";
}

TEST(NormalDistributions, WorkedValuesAndConventions) {
    EXPECT_TRUE(AllMatch({
        {NormalLess(0), 0.5L}, {InvNormalLess(0.5L), 0}, {InvLogNormalLess(0, 1, 0.5L), 1},
        {NormalDistGreater(0, 1, -1.96L), NormalLess(1.96L)},  // reflected
        {InvNormalGreater(0.3L), InvNormalLess(1 - 0.3L)},
        {NormalDistBetween(0, 1, 1, -1), NormalDistBetween(0, 1, -1, 1)},
        {NormalDistBetween(0, 1, 0.3L, 0.3L + 1e-17L), 0},  // SameFloat points
        {LogNormalBetween(0, 1, 3, 0.5L), LogNormalBetween(0, 1, 0.5L, 3)},
    }));
    // Densities take the point first, the other routines take it last.
    EXPECT_TRUE(AllMatch({
        {NormalDistLess(0, 1, -1.96L), 0.0249978951482204362L}, {NormalDistBetween(0, 1, 1, -1), 0.682689492137085897L},
        {NormalZ(0), 0.398942280401432678L}, {NormalPDF(7, 5, 2), NormalZ(1) / 2}, {NormalDistLess(5, 2, 7), NormalLess(1)},
        {LogNormalPDF(2, 0.3L, 0.7L), 0.243380344119797653L}, {LogNormalLess(0.3L, 0.7L, 2), 0.7128189403638208962L},
    }, 1e-17L));
    EXPECT_TRUE(AllMatch({{ZAlpha(0.05L), 1.64485362695147228L},
                          {InvNormalDistGreater(5, 2, 0.025L), 5 + 2 * 1.95996398454005386L},
                          {InvLogNormalLess(0.3L, 0.7L, 0.712818940363820914L), 2}}, 1e-14L));
    EXPECT_TRUE(std::isnan(LogNormalLess(0, 1, -1)));  // X unchecked: log of a negative
}

// The density far out, where the rounding of X^2 / 2 would be magnified by the
// exponential: within 2 ulps of mpmath, evaluated at the exact binary values of the
// arguments (written in hexadecimal).
TEST(NormalDistributions, DensityFarOutWithinTwoUlps) {
    const std::pair<Float, Float> points[] = {
        {0xd.666666666666666p-1L, 7.13132812399607735274086023351e-11L},
        {0xd.6b851eb851eb852p-1L, 6.66885038986343351876381136384e-11L},
        {0xd.99999999999999ap-1L, 3.63096150179179121837301335313e-11L},
        {0xd.ccccccccccccccdp-1L, 1.83033221701557730080845759626e-11L},
        {0xe.99999999999999ap-1L, 1.06938378715416342806507584802e-12L},
        {0x9.19999999999999ap+0L, 4.15859897911513533058698699936e-19L},
        {0xd.b33333333333333p+0L, 6.9910822497064801733784780306e-42L}};
    for (auto [x, expected] : points)
        EXPECT_LE(std::fabs(NormalZ(x) - expected), 2 * 0x1p-63L * expected) << double(x);
}

TEST(NormalDistributions, ChecksInOrder) {
    constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
    EXPECT_TRUE(Raises([] { NormalLess(-0.1L); }, rsValueGZero));  // no reflection here
    EXPECT_TRUE(Raises([] { InvNormalLess(0); }, rsValue01));
    EXPECT_TRUE(Raises([] { InvNormalLess(1); }, rsValue01));
    EXPECT_TRUE(Raises([] { InvNormalGreater(1e-30L); }, rsValue01));  // 1 - P rounds to 1
    EXPECT_TRUE(Raises([] { NormalPDF(0, 0, 1e-16L); }, rsStdDev));     // zero within tolerance
    EXPECT_TRUE(Raises([] { NormalDistBetween(0, 0, 1, 1); }, rsStdDev));  // before the shortcut
    EXPECT_TRUE(Raises([] { InvNormalDistLess(0, 0, 0); }, rsValue01));    // P before spread
    EXPECT_TRUE(Raises([] { InvLogNormalGreater(0, -2, 0.5L); }, rsStdDev));
    EXPECT_TRUE(Raises([] { LogNormalPDF(0, 0, 0); }, rsStdDev));  // spread before X
    EXPECT_TRUE(Raises([] { LogNormalPDF(0, 0, 1); }, rsValueGZero));
    EXPECT_TRUE(Raises([] { LogNormalLess(0, 0, 1); }, rsStdDev));
    // The forward test ("positive") and the inverse one ("zero or negative") part on NaN.
    EXPECT_TRUE(Raises([=] { NormalDistLess(0, NaN, 0); }, rsStdDev));
    EXPECT_TRUE(std::isnan(InvNormalDistLess(0, NaN, 0.5L)));
}
