// The exponential distribution: both tails computed directly and the density.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;

// ---- Exponential with rate Lambda (Lambda <= 0: rsExpDistInvalid); X < 0 gives 0 -----------
Float ExponentialLess(Float X, Float Lambda);
Float ExponentialGreater(Float X, Float Lambda);
Float ExponentialPDF(Float X, Float Lambda);

}  // namespace KornumStatistics
