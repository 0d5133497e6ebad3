/// @file
/// The F distribution: both tails, the density and the inverses of both tails.
///
/// Each tail is its own regularised incomplete beta function (neither is 1 minus the
/// other), with its argument formed from the exact product N1 X and carried in two Floats,
/// so small tails on both sides keep their relative precision; results are good to near
/// Float precision.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// ---- F with N1 and N2 degrees of freedom ------------------------------------------------------

/// @name F
/// The F distribution with `N1` (numerator) and `N2` (denominator) degrees of freedom.
/// The degrees of freedom are checked after the point or the probability: N1 < 1, then
/// N2 < 1, raise Platform::EMathError with Kornum_RS_Math::rsDF.
/// @{

/// P(F < `X`) = `IncompleteBeta(N1 X / (N1 X + N2), N1 / 2, N2 / 2)`; 1 at infinity.
///
/// Failures (Platform::EMathError), in this order: X <= 0 raises
/// Kornum_RS_Math::rsValueGZero (X = 0 included); N1 < 1, then N2 < 1, raise
/// Kornum_RS_Math::rsDF.
Float FDistLess(Float X, Integer N1, Integer N2);
/// P(F > `X`) = `IncompleteBeta(N2 / (N2 + N1 X), N2 / 2, N1 / 2)`, computed directly (not
/// as 1 - `FDistLess`): the p-value of an F statistic. 0 at infinity. Failures as for
/// `FDistLess`: Kornum_RS_Math::rsValueGZero for X <= 0, then Kornum_RS_Math::rsDF.
Float FDistGreater(Float X, Integer N1, Integer N2);
/// The F density: the beta density of y = N1 X / (N1 X + N2), with y and 1 - y formed
/// exactly, times dy/dX; within a few ulps for degrees of freedom up to 2e5. At X = 0 it is
/// infinity for N1 = 1, 1 for N1 = 2 and 0 beyond; 0 at infinity.
///
/// Failures (Platform::EMathError), in this order: X < 0 raises
/// Kornum_RS_Math::rsValueGEZero; N1 < 1, then N2 < 1, raise Kornum_RS_Math::rsDF.
Float FDistPDF(Float X, Integer N1, Integer N2);
/// The quantile: the X with `FDistLess(X, N1, N2) = P`, from the inverse incomplete beta
/// of the smaller side, which gives y = N1 X / (N1 X + N2) and 1 - y each to full
/// precision. 0 at P = 0. Within 1e-16 relative, or the error that P's own rounding causes
/// (P 2^-64 divided by the density at the quantile) where that is larger, for P down to
/// the smallest Float and degrees of freedom up to 1e6.
///
/// Failures (Platform::EMathError), in this order: P outside [0, 1] raises
/// Kornum_RS_Math::rsValue01Inc; N1 < 1, then N2 < 1, raise Kornum_RS_Math::rsDF; P = 1
/// raises Kornum_RS_Math::rsInvalidValue (the quantile is infinite).
Float InvFDistLess(Float P, Integer N1, Integer N2);
/// The upper quantile: the X with `FDistGreater(X, N1, N2) = Q`, the critical value of an
/// F test at level Q, computed from Q itself (not as `InvFDistLess(1 - Q, ...)`), so that
/// a tiny Q keeps its digits; infinity where the quantile lies beyond the range of Float.
/// 0 at Q = 1. Accurate as `InvFDistLess`, with Q for P.
///
/// Failures (Platform::EMathError), in this order: Q outside [0, 1] raises
/// Kornum_RS_Math::rsValue01Inc; N1 < 1, then N2 < 1, raise Kornum_RS_Math::rsDF; Q = 0
/// raises Kornum_RS_Math::rsInvalidValue (the quantile is infinite).
Float InvFDistGreater(Float Q, Integer N1, Integer N2);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
