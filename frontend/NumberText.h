// Numbers as the command line and the Python package print them.
#pragma once

#include <kornum/Kornumglobals.h>

#include <string>

namespace KornumFrontend {

// A number as text: with Decimals < 0 the shortest form that reads back as the same
// Float (an exponent when that is shorter), otherwise fixed with that many decimals.
// Infinities and NaN read "inf", "-inf" and "nan".
std::string NumberText(Kornumglobals::Float x, int decimals = -1);

}  // namespace KornumFrontend
