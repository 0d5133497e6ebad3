// What kornum_stats_rt takes from kornum_base_rt beyond the public headers, and the only
// internal symbols the base library exports.
//
// The Student t, F and beta distributions form the incomplete beta's argument exactly, as
// the unevaluated sum of two Floats (x = n / (n + t^2) rounded to one Float would multiply
// its rounding error by n / 2 in x^(n/2)), and need both x and 1 - x of a quantile to full
// relative precision. The public IncompleteBeta and InverseIncompleteBeta take and give one
// Float, so these forms are exported here on purpose instead of being duplicated in the
// statistics library. They are not part of the installed API and may change with it.
#pragma once

#include <kornum/KornumExport.h>

#include "core/detail/ExtendedPrecision.hpp"

namespace Kornummath::special {

// I_x(a, b) for x = hi + lo strictly inside (0, 1) and a, b > 0 finite, keeping the digits
// of x beyond one Float (x^a magnifies the relative error of x by a). x is passed by
// reference: by value GCC copies it with 16-byte moves of 10-byte stores, which the store
// buffer cannot forward (a stall of some 10 ns a call).
KORNUM_API Float IncompleteBeta(const TwoFloat& x, Float a, Float b);

// The beta density x^(a-1) (1-x)^(b-1) / B(a, b) for x strictly inside (0, 1), given with
// its complement 1 - x, both as unevaluated sums; a, b > 0 finite. Its logarithm is formed
// from the two exactly (a rounded 1 - x would carry its error times b - 1), and is never
// split into x^(a-1) and B(a, b), which leave the range of Float for large shapes.
KORNUM_API Float BetaDensity(TwoFloat x, TwoFloat complement, Float a, Float b);

// A quantile x of the beta distribution together with 1 - x, each to full relative
// precision: either may be the one next to its end of (0, 1).
struct BetaQuantile {
    Float x, complement;
};

// The x with I_x(a, b) = p, or with 1 - I_x(a, b) = I_{1-x}(b, a) = p for upper, for
// 0 < p < 1 and a, b > 0 finite. Solved on the smaller tail, so that a tiny p on either
// side keeps its digits in the quantile.
KORNUM_API BetaQuantile InverseIncompleteBeta(Float p, Float a, Float b, bool upper);

}  // namespace Kornummath::special
