// What the binomial and Poisson tails at whole counts share: the deviance and the
// exponential of a point probability's logarithm in two Floats, and the series of
// products of term ratios that turn a point into a tail. Internal to the library (not
// installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

#include <kornum/Kornumglobals.h>

#include <cmath>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornummath::special::TwoFloat;

// D(k, m) = k ln(k / m) + m - k >= 0 for a k >= 1 and a mean m > 0 given in two Floats,
// by one logarithm of the quotient in two Floats. Near m the two parts cancel, but
// their absolute errors stay near |k - m| 2^-100, far below an ulp of the exponent.
inline TwoFloat Deviance(Float k, TwoFloat mean) {
    namespace special = Kornummath::special;
    const TwoFloat ratio = TwoFloat{k, 0} / mean;
    // A quotient beyond the normal range (a subnormal or a huge mean): the logarithms apart.
    const bool normal = ratio.hi > 0x1p-16000L && ratio.hi < 0x1p+16000L;
    const TwoFloat log = normal ? special::Log(ratio) : special::Log(k) - special::Log(mean);
    return log * k + (mean - TwoFloat{k, 0});
}

// A TwoFloat with its high part split in advance into halves of 32 bits, for products
// with whole numbers below 2^32: both products of a half are then exact, and the
// product takes four operations instead of a TwoFloat * Float, whose value it equals
// bit for bit.
struct Multiplier {
    TwoFloat value{0, 0};
    TwoFloat halves{0, 0};

    Multiplier() = default;
    explicit Multiplier(TwoFloat x) : value(x), halves(Kornummath::special::Split(x.hi)) {}

    TwoFloat Times(Float whole) const {
        const Float product = value.hi * whole;
        return Kornummath::special::FastTwoSum(
            product, ((halves.hi * whole - product) + halves.lo * whole) + value.lo * whole);
    }
};

// e^exponent times a factor s > 0; near the underflow threshold the factor enters the
// exponent, so that a tail that is still normal is not built from a subnormal point.
inline Float ScaledExp(TwoFloat exponent, Float s) {
    namespace special = Kornummath::special;
    if (exponent.hi > -11000) return special::Exp(exponent) * s;
    return special::Exp(exponent + special::Log(s));
}

// The sum over i >= 1 of the products of the first i ratios c top / bottom, with top
// falling by TopStep and bottom rising by BottomStep from ratio to ratio (each step 0
// or 1), until a term is negligible or top reaches 0; c2 = c * c. The ratios must not
// rise.
//
// Two terms a step: the second is the first's predecessor times c^2 and
// top (top - TopStep) / (bottom (bottom + BottomStep)), whose products are exact, so
// that each term carries forward about half as many roundings as one ratio at a time
// would leave; c is in two Floats so that its own rounding does not recur in every
// term. The sum is compensated: a slowly falling series adds a few hundred terms, and
// the half ulps of the sum lost in each addition would otherwise grow to several ulps.
template <int TopStep, int BottomStep>
inline Float RatioSeries(Float top, Float bottom, TwoFloat c, TwoFloat c2) {
    Float term = 1, sum = 0, lost = 0;
    const auto add = [&](Float x) {
        const Float y = x - lost, next = sum + y;
        lost = (next - sum) - y;
        sum = next;
    };
    for (; TopStep == 0 || top > 1; top -= 2 * TopStep, bottom += 2 * BottomStep) {
        Float first, both;
        if constexpr (BottomStep == 0) {  // bottom stays 1
            first = top;
            both = top * (top - TopStep);
        } else {
            first = top / bottom;
            both = (top * (top - TopStep)) / (bottom * (bottom + BottomStep));
        }
        const Float next = term * (both * c2.hi + both * c2.lo);
        add(term * (first * c.hi + first * c.lo) + next);
        term = next;
        if (term <= sum * 0x1p-68L) return sum - lost;
    }
    if (top == 1) add(term * (c.hi / bottom + c.lo / bottom));
    return sum - lost;
}

// About how many terms RatioSeries takes from k, for a distribution with this mean and
// standard deviation: in the normal approximation the terms fall as
// exp(-(i^2 / 2 + i d) / deviation^2) with d = |k - mean|, to 2^-66 after
// i = deviation (sqrt(d'^2 + 92) - d') for d' = d / deviation.
inline Float RatioSeriesLength(Float k, Float mean, Float deviation) {
    const Float distance = std::fabs(k - mean) / deviation;
    return 92 * deviation / (std::sqrt(distance * distance + 92) + distance);
}

}  // namespace KornumStatistics::detail
