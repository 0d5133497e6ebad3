/// @file
/// The exponential distribution: both tails and the density.
///
/// Both tails are computed directly from one table-driven evaluation of e^-(Lambda X),
/// within about an ulp: the lower tail 1 - e^-(Lambda X) without cancellation near 0, the
/// upper tail e^-(Lambda X) itself, so each keeps its relative precision.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;

// ---- Exponential with rate Lambda -----------------------------------------------------------

/// @name Exponential
/// The exponential distribution with rate `Lambda` (mean 1 / Lambda). Every routine raises
/// Platform::EMathError with Kornum_RS_Math::rsExpDistInvalid unless Lambda > 0 (a NaN
/// included). A negative X lies below the support and is accepted.
/// @{

/// P(X' < `X`) = `1 - exp(-Lambda X)`: 0 for X <= 0, 1 at infinity. Failures: Lambda <= 0
/// raises Platform::EMathError with Kornum_RS_Math::rsExpDistInvalid.
Float ExponentialLess(Float X, Float Lambda);
/// P(X' > `X`) = `exp(-Lambda X)`, computed directly (not as 1 - `ExponentialLess`): 1 for
/// X <= 0, 0 at infinity. Failures as for `ExponentialLess`.
Float ExponentialGreater(Float X, Float Lambda);
/// The density `Lambda exp(-Lambda X)`: Lambda at X = 0, 0 for X < 0 and at infinity.
/// Failures as for `ExponentialLess`.
Float ExponentialPDF(Float X, Float Lambda);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
