// Internal helpers shared by the gamma/beta and incomplete-beta sources. Not installed.
#pragma once

#include <kornum/Kornummath.h>

#include <cmath>

namespace Kornummath::special {

inline constexpr Float LnSqrtTwoPi = 0.9189385332046727417803297364056176398614L;
inline constexpr Float TwoPi = 6.283185307179586476925286766559005768394L;
inline constexpr Float Epsilon = 0x1p-63L;  // one ulp at 1

// Below this argument the Stirling remainder is reached by recurrence.
inline constexpr Float StirlingThreshold = 15;

// The Stirling remainder mu(z) = ln Gamma(z) - ((z - 1/2) ln z - z + ln sqrt(2 pi)),
// for z > 0. From 15 on, ten terms of the asymptotic series are below 1e-21;
// smaller z step up with mu(z) = mu(z + 1) + (z + 1/2) ln(1 + 1/z) - 1.
inline Float StirlingRemainder(Float z) {
    Float shift = 0;
    while (z < StirlingThreshold) {
        shift += (z + 0.5L) * std::log1p(1 / z) - 1;
        z += 1;
    }
    // B(2k) / (2k (2k - 1)), k = 1 .. 10.
    static constexpr Float c[] = {
        1.0L / 12,      -1.0L / 360,         1.0L / 1260,    -1.0L / 1680,
        1.0L / 1188,    -691.0L / 360360,    1.0L / 156,     -3617.0L / 122400,
        43867.0L / 244188, -174611.0L / 125400};
    const Float r = 1 / z;
    const Float r2 = r * r;
    Float sum = c[9];
    for (int k = 8; k >= 0; --k) sum = sum * r2 + c[k];
    return shift + sum * r;
}

// t - ln(1 + t) for t > -1, without the cancellation of the plain difference near 0:
// with u = t / (2 + t), ln(1 + t) = 2 atanh(u), so t - ln(1 + t) = t^2 / (2 + t)
// - 2 (u^3 / 3 + u^5 / 5 + ...).
inline Float LogOnePlusDeficit(Float t) {
    if (t < -0.5L || t > 0.5L) return t - std::log1p(t);
    const Float u = t / (2 + t);
    const Float u2 = u * u;
    Float power = u * u2;
    Float series = 0;
    for (int k = 3; k < 80; k += 2) {
        const Float term = power / k;
        series += term;
        if (std::fabs(term) <= 1e-22L * std::fabs(series)) break;
        power *= u2;
    }
    return t * t / (2 + t) - 2 * series;
}

// t - ln(1 + t) for t = d / v0, where d = v - v0 holds the exact difference of v and
// its reference v0. Far from v0, ln(v / v0) is taken directly: one rounding of the
// ratio costs less there than the rounding of t magnified by ln(1 + t) near -1.
inline Float LogRatioDeficit(Float d, Float v, Float v0) {
    const Float t = d / v0;
    if (t < -0.5L) return t - std::log(v / v0);
    return LogOnePlusDeficit(t);
}

// (1 - x)^b for x in [0, 1], with 1 - x taken exactly: below 0.5 the rounded
// complement y is corrected by its exact residual e = (1 - x) - y, as
// y^b (1 + e / y)^b, so a large b does not magnify the rounding of 1 - x.
inline Float ComplementPower(Float x, Float b) {
    const Float y = 1 - x;
    if (x >= 0.5L) return std::pow(y, b);  // exact complement
    const Float residual = (1 - y) - x;    // both steps exact
    return std::pow(y, b) * std::exp(b * std::log1p(residual / y));
}

}  // namespace Kornummath::special
