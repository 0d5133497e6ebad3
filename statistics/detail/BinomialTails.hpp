// The binomial point probability and both tails at a whole count, each to full relative
// accuracy, for p strictly between 0 and 1 and k < n. Internal to the library (not
// installed).
//
// The point probability b(k) = C(n, k) p^k q^(n - k), q = 1 - p, is one exponential of
// an exponent in two Floats, in the form free of the cancellation between ln n!, ln k!,
// k ln p and their kin (each may reach 10^10 while b(k) is near 1):
// ln n! - ln k! - ln (n - k)! + k ln p + (n - k) ln q from a table of ln j! for n below
// 4096, whose parts reach only n ln n; beyond it
//   b(k) = exp(d(n) - d(k) - d(n - k) - D(k, np) - D(n - k, nq)) / sqrt(2 pi k (n - k) / n),
// with D(k, m) = k ln(k / m) + m - k the deviance and d the remainder of Stirling's
// formula, where no term is much larger than the result.
//
// The smaller tail is b(k) times a sum of term ratios: below the mode the lower tail
// b(k) (1 + r(k) + r(k) r(k - 1) + ...) with r(j) = (q / p) j / (n - j + 1), above it the
// upper tail b(k) (s(k + 1) + s(k + 1) s(k + 2) + ...) with s(j) = (p / q) (n - j + 1) / j.
// The ratios fall from at most 1, and the terms become negligible after about
// 9.6 sqrt(npq) of them near the mode, fewer in the tails; the larger tail is 1 minus the
// smaller, which is at most about 1/2.
#pragma once

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/LogFactorialRemainder.hpp"
#include "statistics/detail/LogFactorialTable.hpp"
#include "statistics/detail/SaddlePointTerms.hpp"

#include <kornum/Kornumglobals.h>

#include <cmath>

namespace KornumStatistics::detail {

// ln b(k) in two Floats for whole 0 <= k <= n, 0 < p < 1 and q = 1 - p exactly.
inline TwoFloat BinomialPointExponent(Float n, Float k, Float p, TwoFloat q) {
    namespace special = Kornummath::special;
    if (k == 0) return special::Log(q) * n;
    if (k == n) return special::Log(p) * n;
    const Float m = n - k;
    if (n < LogFactorialTableSize) {
        // ln n! - ln k! - ln m! + k ln p + m ln q: the parts reach n ln n, below 2^15, so
        // the cancellation costs nothing in two Floats.
        const LogPair logs = CachedLogs(p, q.hi);
        const LogFactorialTable& logFactorial = LogFactorialTable::UpTo(std::uint32_t(n));
        return (logFactorial[n] - (logFactorial[k] + logFactorial[m])) +
               (logs.first * k + (logs.second + TwoFloat{q.lo / q.hi, 0}) * m);
    }
    const TwoFloat np = special::TwoProduct(n, p);
    const TwoFloat nqHigh = special::TwoProduct(n, q.hi);
    const TwoFloat nq = special::FastTwoSum(nqHigh.hi, nqHigh.lo + n * q.lo);
    const Float remainders = LogFactorialRemainder(n) - LogFactorialRemainder(k) - LogFactorialRemainder(m);
    // k (n - k) is exact below 2^64.
    const TwoFloat spread = TwoFloat{k * m, 0} / TwoFloat{n, 0};
    return TwoFloat{remainders, 0} - (Deviance(k, np) + Deviance(m, nq)) -
           (special::Log(spread) * 0.5L + special::LnSqrtTwoPi);
}

struct BinomialTailPair {
    Float lower;  // P(X <= k)
    Float upper;  // P(X > k)
};

// Both tails at a whole k < n for 0 < p < 1.
inline BinomialTailPair BinomialTails(Float n, Float k, Float p) {
    namespace special = Kornummath::special;
    const TwoFloat q = special::TwoSum(1, -p);
    const TwoFloat exponent = BinomialPointExponent(n, k, p, q);
    if (k + 1 <= (n + 1) * p) {  // the ratios r(j) fall from r(k) <= 1
        const Float sum = 1 + RatioSeries<1, 1>(k, n - k + 1, q / TwoFloat{p, 0});
        const Float lower = ScaledExp(exponent, sum);
        return {lower, 1 - lower};
    }
    // s(k + 1) < 1 here; it may underflow for a tiny p, and with it the whole tail.
    const Float sum = RatioSeries<1, 1>(n - k, k + 1, TwoFloat{p, 0} / q);
    const Float upper = sum > 0 ? ScaledExp(exponent, sum) : 0;
    return {1 - upper, upper};
}

}  // namespace KornumStatistics::detail
