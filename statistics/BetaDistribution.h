// The beta distribution on [Lo, Hi]: both tails computed directly, the density and the
// inverse.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;

// ---- Beta with shapes A, B on [Lo, Hi] --------------------------------------------------------
// A or B <= 0: rsValueGZero; Lo = Hi: rsSameValue. Below Lo the distribution function is
// 0, above Hi 1.
Float BetaDistLess(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
Float BetaDistGreater(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
Float BetaPDF(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
// Then P outside [0, 1]: rsValue01Inc. Lo at P = 0, Hi at P = 1, else
// Lo + (Hi - Lo) InverseIncompleteBeta(P, A, B).
Float InvBetaDistLess(Float P, Float A, Float B, Float Lo = 0, Float Hi = 1);

}  // namespace KornumStatistics
