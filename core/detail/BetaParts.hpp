// Beta(a, b) split for the gamma and incomplete-beta sources of the base library.
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

namespace Kornummath::special {

// Beta(a, b) = exp(logBeta) / ratio for a, b > 0, with ratio the quotient
// product(a) product(b) / product(a + b) of the shift products of SplitGamma.
struct BetaParts {
    TwoFloat logBeta;
    TwoFloat ratio;
};

BetaParts SplitBeta(Float a, Float b);

}  // namespace Kornummath::special
