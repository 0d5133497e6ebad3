// The upper regularised incomplete gamma Q(a, y) in closed form for a small whole or
// half-whole a: the chi-square upper tail for up to 80 degrees of freedom and the Poisson
// lower tail for counts below 40. Sums of positive terms only, each nested from its
// innermost term, with no logarithm and no gamma function. Internal to the library (not
// installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"
#include "statistics/detail/NegativeExponential.hpp"
#include "statistics/detail/StandardNormalTail.hpp"

#include <kornum/Kornumglobals.h>

#include <array>
#include <limits>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// Degrees of freedom up to this take the closed forms: at most 40 terms, each a
// multiply-add, where the general method forms y^a e^-y / Gamma(a) through logarithms and
// then sums a series or a continued fraction.
inline constexpr Integer ClosedFormDegrees = 80;

// 1 / j for j = 1 .. 80: the nested sums multiply rather than divide.
inline constexpr std::array<Float, ClosedFormDegrees + 1> Reciprocals = [] {
    std::array<Float, ClosedFormDegrees + 1> r{};
    for (int j = 1; j <= ClosedFormDegrees; ++j) r[j] = 1.0L / j;
    return r;
}();

// e^-y for the closed forms; 0 where it leaves the normal range (a subnormal value has
// lost digits), for the caller to fall back on the general method.
inline Float NormalExpOfNegative(Float y) {
    const Float e = ExpOfNegative(y);
    return e >= std::numeric_limits<Float>::min() ? e : 0;
}

// Q(m, y) = e^-y sum_{j < m} y^j / j! for a whole 1 <= m <= 40 and finite y >= 0.
inline Float UpperGammaWhole(Float y, Integer m) {
    Float sum = 1;
    for (Integer j = m - 1; j >= 1; --j) sum = 1 + sum * y * Reciprocals[j];
    return NormalExpOfNegative(y) * sum;
}

// P(chi-square > x) for finite x > 0 and df <= ClosedFormDegrees, within a few ulps:
// - even df: Q(df / 2, x / 2);
// - odd df: 2 R(sqrt x) + sqrt(2 / pi) e^(-x/2) sqrt x sum_{j < (df-1)/2} x^j / (2j + 1)!!,
//   R the standard normal upper tail, sqrt x in two Floats (R magnifies the rounding of
//   its argument by about x).
inline Float ChiSquareUpperClosedForm(Float x, Integer df) {
    if (df % 2 == 0) return UpperGammaWhole(x / 2, df / 2);
    constexpr Float SqrtTwoOverPi = 0.797884560802865355879892119868763737L;
    const Float e = NormalExpOfNegative(x / 2);
    if (e == 0) return 0;
    Float sum = 1;
    for (Integer j = (df - 1) / 2 - 1; j >= 1; --j) sum = 1 + sum * x * Reciprocals[2 * j + 1];
    const Kornummath::special::TwoFloat root = Kornummath::special::SquareRoot({x, 0});
    const Float series = df == 1 ? 0 : SqrtTwoOverPi * e * root.hi * sum;
    return 2 * StandardUpperTail(root.hi, root.lo) + series;
}

}  // namespace KornumStatistics::detail
