// What the distribution sources share: argument checks and the density's exponential.
// Internal to the library (not installed).
#pragma once

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornumglobals.h>
#include <kornum/Platform.h>

#include "core/detail/ExtendedPrecision.hpp"

#include <limits>

namespace KornumStatistics::detail {

namespace special = Kornummath::special;
using Kornumglobals::Float;
using Kornumglobals::Integer;
using Platform::Require;
using special::TwoFloat;

inline constexpr Float Infinity = std::numeric_limits<Float>::infinity();
inline constexpr Float InversePi = 0.318309886183790671537767526745028724L;

inline void RequireProbability(Float p) { Require(p >= 0 && p <= 1, Kornum_RS_Math::rsValue01Inc); }
inline void RequireDegrees(Integer df) { Require(df >= 1, Kornum_RS_Math::rsDF); }

// exp(E) / divisor with E a TwoFloat: one exponential at the end.
inline Float ExpOver(TwoFloat e, Float divisor) { return Kornummath::special::Exp(e) / divisor; }

}  // namespace KornumStatistics::detail
