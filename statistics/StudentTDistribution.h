// Student's t distribution: both tails computed directly, the density and the inverse.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// ---- Student's t with DF degrees of freedom (DF < 1: rsDF) ---------------------------------
Float StudentTLess(Float T, Integer DF);
Float StudentTGreater(Float T, Integer DF);
Float StudentTPDF(Float T, Integer DF);
// P outside [0, 1]: rsValue01Inc; -infinity at P = 0, +infinity at P = 1.
Float InvStudentTLess(Float P, Integer DF);

}  // namespace KornumStatistics
