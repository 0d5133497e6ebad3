/// @file
/// The exponential distribution: both tails, the density and the quantiles of each tail.
///
/// Both tails are computed directly from one table-driven evaluation of e^-(Lambda X),
/// within about an ulp: the lower tail 1 - e^-(Lambda X) without cancellation near 0, the
/// upper tail e^-(Lambda X) itself, so each keeps its relative precision. Their inverses
/// are logarithms within a few ulps, each of its own tail.
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
/// The quantile `-ln(1 - P) / Lambda`, with ln(1 - P) formed without rounding 1 - P:
/// 0 at P = 0, infinity at P = 1. Failures (Platform::EMathError), in this order:
/// Lambda <= 0 raises Kornum_RS_Math::rsExpDistInvalid; P outside [0, 1] (a NaN P
/// included) raises Kornum_RS_Math::rsValue01Inc.
Float InvExponentialLess(Float P, Float Lambda);
/// The upper quantile `-ln(Q) / Lambda`, the X with `ExponentialGreater(X, Lambda) = Q`,
/// from Q itself so that a tiny Q keeps its digits: infinity at Q = 0, 0 at Q = 1.
/// Failures (Platform::EMathError), in this order: Lambda <= 0 raises
/// Kornum_RS_Math::rsExpDistInvalid; Q outside [0, 1] (a NaN Q included) raises
/// Kornum_RS_Math::rsValue01Inc.
Float InvExponentialGreater(Float Q, Float Lambda);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
