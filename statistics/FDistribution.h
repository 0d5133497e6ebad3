// The F distribution: both tails computed directly, the density and the inverse.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// ---- F with N1 and N2 degrees of freedom ------------------------------------------------------
// X <= 0: rsValueGZero; N1 or N2 < 1: rsDF. The upper tail is
// IncompleteBeta(N2 / (N2 + N1 X), N2 / 2, N1 / 2).
Float FDistLess(Float X, Integer N1, Integer N2);
Float FDistGreater(Float X, Integer N1, Integer N2);
// X < 0: rsValueGEZero; N1 or N2 < 1: rsDF.
Float FDistPDF(Float X, Integer N1, Integer N2);
// P outside [0, 1]: rsValue01Inc; N1 or N2 < 1: rsDF; P = 1: rsInvalidValue (the
// quantile is infinite); 0 at P = 0.
Float InvFDistLess(Float P, Integer N1, Integer N2);

}  // namespace KornumStatistics
