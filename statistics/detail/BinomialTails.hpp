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
#include <cstdint>

namespace KornumStatistics::detail {

// What the tails at one p share, 0 < p < 1, remembered for the last p of this thread:
// the tails of one distribution are mostly asked for at many counts.
struct BinomialConstants {
    Float p = 0;  // never a valid p: nothing is remembered yet
    TwoFloat q{0, 0};  // 1 - p exactly
    Multiplier logP, logQ;
    TwoFloat down{0, 0}, downSquared{0, 0};  // q / p and its square: the ratios below the mode
    TwoFloat up{0, 0}, upSquared{0, 0};      // p / q and its square: above it
};

// Kept out of line, so that the callers stay small enough to be inlined themselves.
[[gnu::noinline, gnu::cold]] inline void Refresh(BinomialConstants& c, Float p) {
    namespace special = Kornummath::special;
    const TwoFloat q = special::TwoSum(1, -p);
    const TwoFloat down = q / TwoFloat{p, 0}, up = TwoFloat{p, 0} / q;
    c.p = p;
    c.q = q;
    c.logP = Multiplier(special::Log(p));
    c.logQ = Multiplier(special::Log(q));
    c.down = down;
    c.downSquared = down * down;
    c.up = up;
    c.upSquared = up * up;
}

inline const BinomialConstants& BinomialConstantsAt(Float p) {
    thread_local BinomialConstants last;
    if (last.p != p) Refresh(last, p);
    return last;
}

// ln b(k) in two Floats for 0 <= k <= n. The counts come as integers: converting a
// Float to one would cost two changes of the x87 control word.
inline TwoFloat BinomialPointExponent(std::uint32_t count, std::uint32_t trials, const BinomialConstants& c) {
    namespace special = Kornummath::special;
    const Float n = trials, k = count, m = trials - count;
    if (count == 0) return c.logQ.Times(n);
    if (count == trials) return c.logP.Times(n);
    if (trials < LogFactorialTableSize) {
        // ln n! - ln k! - ln m! + k ln p + m ln q: the parts reach n ln n, below 2^15, so
        // the cancellation costs nothing in two Floats.
        const LogFactorialTable& logFactorial = LogFactorialTable::UpTo(trials);
        return (logFactorial[trials] - (logFactorial[count] + logFactorial[trials - count])) +
               (c.logP.Times(k) + c.logQ.Times(m));
    }
    const TwoFloat np = special::TwoProduct(n, c.p);
    const TwoFloat nqHigh = special::TwoProduct(n, c.q.hi);
    const TwoFloat nq = special::FastTwoSum(nqHigh.hi, nqHigh.lo + n * c.q.lo);
    const Float remainders = LogFactorialRemainder(n) - LogFactorialRemainder(k) - LogFactorialRemainder(m);
    // k (n - k) is exact below 2^64.
    const TwoFloat spread = TwoFloat{k * m, 0} / TwoFloat{n, 0};
    return TwoFloat{remainders, 0} - (Deviance(k, np) + Deviance(m, nq)) -
           (special::Log(spread) * 0.5L + special::LnSqrtTwoPi);
}

// b(0) = q^n, or b(n) = p^n when last, as powers: exact where the result is (1/2 to a
// small power, say), where the exponential of n ln p would round twice. The low part
// of q enters as (1 + q.lo / q.hi)^n = exp(x), x = n q.lo / q.hi below 2^-32 in size.
inline Float BinomialEndPoint(bool last, Float n, const BinomialConstants& c) {
    if (last) return std::pow(c.p, n);
    const Float power = std::pow(c.q.hi, n), x = n * (c.q.lo / c.q.hi);
    return power + power * (x + x * x / 2);
}

struct BinomialTailPair {
    Float lower;  // P(X <= k)
    Float upper;  // P(X > k)
};

// Both tails at k < n for 0 < p < 1.
inline BinomialTailPair BinomialTails(std::uint32_t count, std::uint32_t trials, Float p) {
    const BinomialConstants& c = BinomialConstantsAt(p);
    const TwoFloat exponent = BinomialPointExponent(count, trials, c);
    const Float n = trials, k = count;
    if (k + 1 <= (n + 1) * p) {  // the ratios r(j) fall from r(k) <= 1
        // At k = 0 the lower tail is b(0) itself, the same value as BinomialPoint.
        const Float lower = count == 0 ? BinomialEndPoint(false, n, c)
                                       : ScaledExp(exponent, 1 + RatioSeries<1, 1>(k, n - k + 1, c.down, c.downSquared));
        return {lower, 1 - lower};
    }
    // At k = n - 1 the upper tail is b(n) itself, the same value as BinomialPoint.
    if (count + 1 == trials) {
        const Float upper = BinomialEndPoint(true, n, c);
        return {1 - upper, upper};
    }
    // s(k + 1) < 1 here; it may underflow for a tiny p, and with it the whole tail.
    const Float sum = RatioSeries<1, 1>(n - k, k + 1, c.up, c.upSquared);
    const Float upper = sum > 0 ? ScaledExp(exponent, sum) : 0;
    return {1 - upper, upper};
}

}  // namespace KornumStatistics::detail
