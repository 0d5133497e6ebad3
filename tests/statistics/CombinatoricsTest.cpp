// Factorials, permutation counts and binomial coefficients, the latter checked
// against exact integer arithmetic over every (N, R) up to N = 1030.
#include <kornum/Combinatorics.h>
#include <kornum/Kornum_RS_Math.h>

#include "DistributionTestSupport.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

using namespace KornumStatistics;
using namespace distribution_tests;
namespace rs = Kornum_RS_Math;

namespace {

// A non-negative integer in base 2^32, enough to build Pascal's triangle exactly.
using BigInt = std::vector<std::uint32_t>;

BigInt Add(const BigInt& a, const BigInt& b) {
    BigInt sum(std::max(a.size(), b.size()) + 1, 0);
    std::uint64_t carry = 0;
    for (std::size_t i = 0; i < sum.size(); ++i) {
        carry += (i < a.size() ? a[i] : 0) + std::uint64_t(i < b.size() ? b[i] : 0);
        sum[i] = std::uint32_t(carry);
        carry >>= 32;
    }
    while (sum.size() > 1 && sum.back() == 0) sum.pop_back();
    return sum;
}

// The value to within one unit in the last place of a Float: the top three limbs
// carry 65 or more significant bits.
Float ToFloat(const BigInt& value) {
    Float result = 0;
    const std::size_t top = value.size();
    for (std::size_t i = top; i-- > 0 && i + 3 >= top;)
        result += std::ldexp(Float(value[i]), int(32 * i));
    return result;
}

}  // namespace

TEST(Factorial, ProductInOrderUpToTheLargestExtendedValue) {
    EXPECT_EQ(Factorial(0), 1.0L);
    EXPECT_EQ(Factorial(1), 1.0L);
    EXPECT_EQ(Factorial(5), 120.0L);
    EXPECT_EQ(Factorial(20), 2432902008176640000.0L);  // every step exact below 2^64
    EXPECT_LT(RelativeError(Factorial(1754), 1.97926189010501005538179432753e+4930L), 1e-16L);
    ExpectRaises([] { Factorial(1755); }, rs::rsFactOverflow);
    ExpectRaises([] { Factorial(std::numeric_limits<Cardinal>::max()); }, rs::rsFactOverflow);
}

TEST(Permutation, ZeroCasesRoundingAndFailures) {
    EXPECT_EQ(Permutation(5, 2), 20.0L);
    EXPECT_EQ(Permutation(5, 0), 1.0L);
    EXPECT_EQ(Permutation(0, 0), 0.0L);  // deliberately 0, not 1
    EXPECT_EQ(Permutation(1, 1), 1.0L);
    EXPECT_EQ(Permutation(20, 20), 2432902008176640000.0L);
    EXPECT_EQ(Permutation(4000000000u, 1), 4000000000.0L);
    EXPECT_LT(RelativeError(Permutation(1754, 1754), Factorial(1754)), 1e-16L);
    ExpectRaises([] { Permutation(2, 3); }, rs::rsPermInvalid);
    ExpectRaises([] { Permutation(0, 1); }, rs::rsPermInvalid);
    // (4e9)^600 is about 10^5761, past the extended range.
    ExpectRaises([] { Permutation(4000000000u, 600); }, rs::rsPermOverflowed);
    ExpectRaises([] { Permutation(1755, 1755); }, rs::rsPermOverflowed);
}

TEST(BinomialCoeff, ZeroCasesAndFailures) {
    EXPECT_EQ(BinomialCoeff(5, 2), 10.0L);
    EXPECT_EQ(BinomialCoeff(5, 5), 1.0L);
    EXPECT_EQ(BinomialCoeff(5, 0), 1.0L);
    EXPECT_EQ(BinomialCoeff(0, 0), 0.0L);  // deliberately 0, not 1
    EXPECT_EQ(BinomialCoeff(1000, 3), 166167000.0L);
    const Cardinal largest = std::numeric_limits<Cardinal>::max();
    EXPECT_EQ(BinomialCoeff(largest, largest - 1), Float(largest));
    ExpectRaises([] { BinomialCoeff(2, 3); }, rs::rsBinomInvalid);
    // C(100000, 50000) is about 10^30100.
    ExpectRaises([] { BinomialCoeff(100000, 50000); }, rs::rsBinomOverflowed);
}

TEST(BinomialCoeff, ExactWhereTheIntegerFitsTheSignificand) {
    EXPECT_EQ(BinomialCoeff(52, 5), 2598960.0L);
    EXPECT_EQ(BinomialCoeff(60, 30), 118264581564861424.0L);
    EXPECT_EQ(BinomialCoeff(64, 32), 1832624140942590534.0L);
}

TEST(BinomialCoeff, WithinFourUnitsInTheEighteenthDigitUpToN1030) {
    std::vector<BigInt> row{BigInt{1}};
    Float worst = 0;
    Cardinal worstN = 0, worstR = 0;
    for (Cardinal n = 1; n <= 1030; ++n) {
        std::vector<BigInt> next(n + 1);
        next[0] = next[n] = BigInt{1};
        for (Cardinal r = 1; r < n; ++r) next[r] = Add(row[r - 1], row[r]);
        row.swap(next);
        for (Cardinal r = 0; r <= n; ++r) {
            const Float error = RelativeError(BinomialCoeff(n, r), ToFloat(row[r]));
            if (error > worst) worst = error, worstN = n, worstR = r;
        }
    }
    // The exact triangle itself, checked at one large entry against an independent value.
    EXPECT_LT(RelativeError(ToFloat(row[515]), 2.85964137299780816375713003418e+308L), 1e-18L);
    EXPECT_EQ(BinomialCoeff(1030, 400), BinomialCoeff(1030, 630));
    EXPECT_LE(worst, 4e-18L) << "at (" << worstN << ", " << worstR << ")";
    std::cout << "BinomialCoeff: max relative error " << double(worst) << " at (" << worstN
              << ", " << worstR << ")\n";
}
