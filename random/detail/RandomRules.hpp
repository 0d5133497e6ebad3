// What the generators share. Internal to the library (not installed).
#pragma once

#include <kornum/KornumRandom.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Platform.h>

#include <cmath>

namespace KornumRandom::detail {

using namespace Kornummath;
using std::exp;
using std::fabs;
using std::log;
using std::sqrt;

// The large guard of the continuous generators.
inline constexpr Float VLarge = 1.7E308L;

using Platform::Require;

// Truncation toward zero to an integer. x must lie within Int64 (a conversion outside it
// is undefined): each generator bounds its parameters so that its values do.
inline Int64 Trunc(Float x) noexcept { return Int64(x); }

}  // namespace KornumRandom::detail

// The overload that draws from DefaultRandom, for a generator of the given result type,
// name, parameter list and argument list.
#define KORNUM_FROM_DEFAULT_RANDOM(Result, Name, Parameters, Arguments) \
    Result Name Parameters { return Name Arguments; }
