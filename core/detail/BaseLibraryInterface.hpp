// What kornum_stats_rt takes from kornum_base_rt beyond the public headers, and the only
// internal symbols the base library exports.
//
// The Student t and F distributions form the incomplete beta's argument exactly, as the
// unevaluated sum of two Floats (x = n / (n + t^2) rounded to one Float would multiply
// its rounding error by n / 2 in x^(n/2)). The public IncompleteBeta takes one Float, so
// the two-Float form is exported here on purpose instead of being duplicated in the
// statistics library. It is not part of the installed API and may change with it.
#pragma once

#include <kornum/KornumExport.h>

#include "core/detail/ExtendedPrecision.hpp"

namespace Kornummath::special {

// I_x(a, b) for x = hi + lo strictly inside (0, 1) and a, b > 0 finite, keeping the digits
// of x beyond one Float (x^a magnifies the relative error of x by a).
KORNUM_API Float IncompleteBeta(TwoFloat x, Float a, Float b);

}  // namespace Kornummath::special
