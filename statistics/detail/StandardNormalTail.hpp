// The standard normal upper tail at a point given in two Floats, for the distributions
// whose closed forms contain it. Internal to the library (not installed).
#pragma once

#include <kornum/Kornumglobals.h>

namespace KornumStatistics::detail {

// P(N > hi + lo) for N standard normal, lo a correction far below hi: to full relative
// precision however far out (defined with the normal distributions).
Kornumglobals::Float StandardUpperTail(Kornumglobals::Float hi, Kornumglobals::Float lo);

}  // namespace KornumStatistics::detail
