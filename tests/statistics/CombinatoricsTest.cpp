// Factorials, permutation counts and binomial coefficients; the coefficients are
// checked against exact integers over every (N, R) up to N = 1030.
#include "StatisticsTestSupport.h"

#include <kornum/Combinatorics.h>
#include <kornum/Kornum_RS_Math.h>

#include <cstdint>
#include <iostream>
#include <limits>

using namespace KornumStatistics;
using namespace StatisticsTest;
namespace rs = Kornum_RS_Math;

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
    EXPECT_TRUE(Raises([] { Factorial(1755); }, rs::rsFactOverflow));
    EXPECT_TRUE(Raises([] { Permutation(2, 3); }, rs::rsPermInvalid));
    EXPECT_TRUE(Raises([] { Permutation(4000000000u, 600); }, rs::rsPermOverflowed));  // ~10^5761
    EXPECT_TRUE(Raises([] { BinomialCoeff(2, 3); }, rs::rsBinomInvalid));
    EXPECT_TRUE(Raises([] { BinomialCoeff(100000, 50000); }, rs::rsBinomOverflowed));  // ~10^30100
}

TEST(Combinatorics, BinomialCoeffWithinFourE18OfExactIntegersUpToN1030) {
    // Pascal's triangle in base 2^32; a row entry is read to within an ulp of a Float
    // from its top three limbs.
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
