// The Poisson point probability and both tails, each to full relative accuracy: the
// regularised incomplete gamma functions Q(k + 1, lambda) = P(Y <= k) and
// P(k + 1, lambda) = P(Y > k) for a whole k. Internal to the library (not installed).
//
// The point probability p(k) = e^-lambda lambda^k / k! is one exponential of an exponent
// in two Floats: k ln lambda - lambda - ln k! with ln k! from a table below k = 4096,
// where the parts reach only k ln k; beyond it
//   p(k) = exp(-D(k, lambda) - d(k)) / sqrt(2 pi k),   D = k ln(k / lambda) + lambda - k,
// whose D is free of the cancellation between k ln lambda, lambda and ln k! (each of them
// may reach 10^10 while D is small), and d is the remainder of Stirling's formula.
//
// The smaller tail is p(k) times a series of positive terms, the larger one is 1 minus
// it: below k + 1 = lambda the lower tail p(k) (1 + k / lambda + k (k - 1) / lambda^2 + ...),
// above it the upper tail p(k) (lambda / (k + 1) + lambda^2 / ((k + 1)(k + 2)) + ...). The
// terms fall geometrically away from the centre of the distribution; near it a tail
// would take about 10 sqrt(lambda) of them, so there, from k = 199 on, the uniform
// expansion of the incomplete gamma function takes over at a fixed cost.
#pragma once

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/GammaUniformExpansion.hpp"
#include "statistics/detail/LogFactorialRemainder.hpp"
#include "statistics/detail/LogFactorialTable.hpp"
#include "statistics/detail/MillsRatio.hpp"
#include "statistics/detail/SaddlePointTerms.hpp"

#include <kornum/Kornumglobals.h>

#include <cmath>
#include <cstdint>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornummath::special::TwoFloat;

// D(k, lambda) = k ln(k / lambda) + lambda - k >= 0 for k >= 1, in two Floats; logK()
// gives ln k in two Floats, called only where it is needed.
//
// Near the centre, with v = (k - lambda) / (k + lambda) and ln(k / lambda) =
// 2 (v + v^3 / 3 + v^5 / 5 + ...), D = (k - lambda) v + 2 k v^3 (1/3 + v^2 / 5 + ...): the
// cancelling terms are gone and the leading two are formed in two Floats. Elsewhere the
// logarithms in two Floats (absolute error below k 2^-79, where D is at least k / 35).
template <class LogK>
TwoFloat PoissonDeviance(Float k, Float lambda, LogK logK) {
    namespace special = Kornummath::special;
    const TwoFloat difference = special::TwoSum(k, -lambda);  // exact
    const TwoFloat sum = special::TwoSum(k, lambda);
    if (std::fabs(difference.hi) <= sum.hi / 8) {
        constexpr TwoFloat OneThird = {0xAAAAAAAAAAAAAAABP-65L, -0xAAAAAAAAAAAAAAABP-130L};
        const TwoFloat v = difference / sum;
        const Float v2 = v.hi * v.hi;
        // 1/5 + v^2 / 7 + ... + v^18 / 23: with v^2 <= 1/64 the first omitted term is
        // below 2^-66 of the sum.
        Float rest = 1.0L / 23;
        for (int j = 10; j >= 2; --j) rest = rest * v2 + 1.0L / Float(2 * j + 1);
        const TwoFloat odd = OneThird + TwoFloat{v2 * rest, 0};
        return difference * v + (v * v * v * odd) * (2 * k);
    }
    return (logK() - special::Log(lambda)) * k - difference;
}

// What the tails at one lambda share, remembered for the last lambda of this thread.
struct PoissonConstants {
    Float lambda = 0;  // never a valid mean: nothing is remembered yet
    Multiplier logLambda;
    TwoFloat inverse{0, 0}, inverseSquared{0, 0};  // 1 / lambda and its square
    TwoFloat square{0, 0};                         // lambda^2
};

// Kept out of line, so that the callers stay small enough to be inlined themselves.
[[gnu::noinline, gnu::cold]] inline void Refresh(PoissonConstants& c, Float lambda) {
    namespace special = Kornummath::special;
    const TwoFloat inverse = TwoFloat{1, 0} / TwoFloat{lambda, 0};
    c.lambda = lambda;
    c.logLambda = Multiplier(special::Log(lambda));
    c.inverse = inverse;
    c.inverseSquared = inverse * inverse;
    c.square = TwoFloat{lambda, 0} * TwoFloat{lambda, 0};
}

inline const PoissonConstants& PoissonConstantsAt(Float lambda) {
    thread_local PoissonConstants last;
    if (last.lambda != lambda) Refresh(last, lambda);
    return last;
}

// ln p(k) in two Floats, for k >= 0 and a finite lambda > 0. Inlined: a TwoFloat
// returned through memory costs two slow stores and loads of the 80-bit format. The
// count comes as an integer: converting a Float to one would cost two changes of the
// x87 control word.
[[gnu::always_inline]] inline TwoFloat PoissonPointExponent(std::uint32_t count, const PoissonConstants& c) {
    namespace special = Kornummath::special;
    const Float k = count;
    if (count < LogFactorialTableSize)
        return c.logLambda.Times(k) - (TwoFloat{c.lambda, 0} + LogFactorialTable::UpTo(count)[count]);
    const TwoFloat logK = special::Log(k);
    return -(Deviance(k, {c.lambda, 0}) + logK * 0.5L + special::LnSqrtTwoPi +
             TwoFloat{LogFactorialRemainder(k), 0});
}

struct PoissonTailPair {
    Float lower;  // P(Y <= k)
    Float upper;  // P(Y > k)
};

// Both tails by the uniform expansion with a = k + 1, given D(a, lambda) = a eta^2 / 2 =
// z^2 / 2: phi(z) from D in two Floats (the exponent reaches 11400 and must not lose
// its low digits), R and S from z and eta in one Float each.
inline PoissonTailPair PoissonTailsNearCentre(Float lambda, Float a, TwoFloat deviance) {
    namespace special = Kornummath::special;
    const Float density = special::Exp(-(deviance + special::LnSqrtTwoPi));
    const Float z = std::sqrt(std::fmax(2 * deviance.hi, 0)), root = std::sqrt(a);
    const Float mills = MillsRatio(z);
    if (lambda > a) {  // eta > 0: the lower tail Q(a, lambda) is the smaller
        const Float lower = density * (mills + GammaExpansionSum(z / root, 1 / a) / root);
        return {lower, 1 - lower};
    }
    const Float upper = density * (mills - GammaExpansionSum(-z / root, 1 / a) / root);
    return {1 - upper, upper};
}

// Both tails at k >= 0 for lambda > 0 (infinite included).
inline PoissonTailPair PoissonTails(Float lambda, std::uint32_t count) {
    if (std::isinf(lambda)) return {0, 1};
    const Float k = count, a = k + 1;
    if (a >= GammaExpansionMinShape) {
        const TwoFloat deviance = PoissonDeviance(a, lambda, [a] { return Kornummath::special::Log(a); });
        // |eta| <= 1, that is a eta^2 / 2 <= a / 2.
        if (deviance.hi <= a * (GammaExpansionMaxEta * GammaExpansionMaxEta) / 2)
            return PoissonTailsNearCentre(lambda, a, deviance);
    }
    const PoissonConstants& c = PoissonConstantsAt(lambda);
    const TwoFloat exponent = PoissonPointExponent(count, c);
    if (a >= lambda) {  // the ratios lambda / (k + n) fall from at most 1
        // The series underflows to 0 for a subnormal lambda, and with it the tail.
        const Float sum = RatioSeries<0, 1>(1, k + 1, {lambda, 0}, c.square);
        const Float upper = sum > 0 ? ScaledExp(exponent, sum) : 0;
        return {1 - upper, upper};
    }
    // The ratios (k - n + 1) / lambda, with 1 / lambda in two Floats.
    const Float sum = 1 + RatioSeries<1, 0>(k, 1, c.inverse, c.inverseSquared);
    const Float lower = ScaledExp(exponent, sum);
    return {lower, 1 - lower};
}

}  // namespace KornumStatistics::detail
