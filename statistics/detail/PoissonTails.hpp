// The Poisson point probability and both tails, each to full relative accuracy: the
// regularised incomplete gamma functions Q(k + 1, lambda) = P(Y <= k) and
// P(k + 1, lambda) = P(Y > k) for a whole k. Internal to the library (not installed).
//
// The point probability p(k) = e^-lambda lambda^k / k! is formed as one exponential of an
// exponent in two Floats. From k = 15 on, Stirling's series turns it into
//   p(k) = exp(-D(k, lambda) - mu(k)) / sqrt(2 pi k),   D = k ln(k / lambda) + lambda - k,
// whose D is free of the cancellation between k ln lambda, lambda and ln k! (each of them
// may reach 10^10 while D is small), and mu is the Stirling remainder.
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
#include "statistics/detail/MillsRatio.hpp"

#include <kornum/Kornumglobals.h>

#include <cmath>

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

// ln p(k) in two Floats, for a whole k >= 0 and a finite lambda > 0.
inline TwoFloat PoissonPointExponent(Float k, Float lambda) {
    namespace special = Kornummath::special;
    if (k < special::StirlingThreshold) {
        // k ln lambda - lambda - ln k!, with k! exact in a Float.
        Float factorial = 1;
        for (Float i = 2; i <= k; i += 1) factorial *= i;
        const TwoFloat power = k == 0 ? TwoFloat{0, 0} : special::Log(lambda) * k;
        return power - TwoFloat{lambda, 0} - special::Log(factorial);
    }
    const TwoFloat logK = special::Log(k);
    return -(PoissonDeviance(k, lambda, [&] { return logK; }) + logK * 0.5L + special::LnSqrtTwoPi +
             TwoFloat{special::StirlingRemainder(1 / k), 0});
}

// e^exponent times a factor s >= 1; near the underflow threshold the factor enters the
// exponent, so that a tail that is still normal is not built from a subnormal p(k).
inline Float ScaledExp(TwoFloat exponent, Float s) {
    namespace special = Kornummath::special;
    if (exponent.hi > -11000) return special::Exp(exponent) * s;
    return special::Exp(exponent + special::Log(s));
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

// Both tails at a whole k >= 0 for lambda > 0 (infinite included).
inline PoissonTailPair PoissonTails(Float lambda, Float k) {
    if (std::isinf(lambda)) return {0, 1};
    const Float a = k + 1;
    if (a >= GammaExpansionMinShape) {
        const TwoFloat deviance = PoissonDeviance(a, lambda, [a] { return Kornummath::special::Log(a); });
        // |eta| <= 1, that is a eta^2 / 2 <= a / 2.
        if (deviance.hi <= a * (GammaExpansionMaxEta * GammaExpansionMaxEta) / 2)
            return PoissonTailsNearCentre(lambda, a, deviance);
    }
    constexpr Float Negligible = 0x1p-66L;  // a term this far below the sum ends it
    const TwoFloat exponent = PoissonPointExponent(k, lambda);
    if (a >= lambda) {
        // The terms lambda^n / ((k + 1) ... (k + n)), whose ratios lambda / (k + n) fall
        // from at most 1, two at a time: with q = lambda / (j (j + 1)) (j (j + 1) is exact)
        // the next two add term q (j + 1 + lambda) and the second of them is term lambda q.
        // One division per two terms, each rounded once, so that their errors do not add
        // up in one direction.
        Float term = 1, sum = 0;
        for (Float j = k + 1;; j += 2) {
            const Float q = lambda / (j * (j + 1));
            sum += term * q * (j + 1 + lambda);
            term *= lambda * q;
            if (term <= sum * Negligible) break;
        }
        const Float upper = ScaledExp(exponent, sum);
        return {1 - upper, upper};
    }
    // The terms k (k - 1) ... (k - n + 1) / lambda^n; the ratios j / lambda with 1 / lambda
    // in two Floats, so that its rounding is not repeated in every term.
    const TwoFloat inverse = TwoFloat{1, 0} / TwoFloat{lambda, 0};
    Float term = 1, sum = 1;
    for (Float j = k; j > 0; j -= 1) {
        term *= j * inverse.hi + j * inverse.lo;
        sum += term;
        if (term <= sum * Negligible) break;
    }
    const Float lower = ScaledExp(exponent, sum);
    return {lower, 1 - lower};
}

}  // namespace KornumStatistics::detail
