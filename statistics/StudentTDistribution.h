/// @file
/// Student's t distribution: both tails, the density and the inverses of both tails.
///
/// The tail beyond |T| is evaluated on its own: in closed form for one degree of freedom
/// (an arctangent), by finite sums for up to 60, and otherwise through the incomplete beta
/// function with its arguments carried in two Floats. Each tail routine returns that value
/// directly on its own side of 0 and 1 minus it on the other, so a small tail on either
/// side keeps its relative precision; results are good to near Float precision.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// ---- Student's t with DF degrees of freedom -----------------------------------------------

/// @name Student's t
/// Student's t distribution with `DF` degrees of freedom. Every routine raises
/// Platform::EMathError with Kornum_RS_Math::rsDF when DF < 1, before any other check.
/// @{

/// P(X < `T`): computed directly for T < 0, as 1 minus the upper tail for T >= 0. 1/2 at
/// T = 0, 0 at minus infinity, 1 at plus infinity. Failures: DF < 1 raises
/// Platform::EMathError with Kornum_RS_Math::rsDF.
Float StudentTLess(Float T, Integer DF);
/// P(X > `T`): computed directly for T > 0, as 1 minus the lower tail for T <= 0. Twice
/// `StudentTGreater(|T|, DF)` is the two-sided p-value of a t statistic. Failures: DF < 1
/// raises Platform::EMathError with Kornum_RS_Math::rsDF.
Float StudentTGreater(Float T, Integer DF);
/// The density `(1 + T^2/DF)^(-(DF+1)/2) / (sqrt(DF) Beta(DF/2, 1/2))`; 0 at infinity.
/// Failures: DF < 1 raises Platform::EMathError with Kornum_RS_Math::rsDF.
Float StudentTPDF(Float T, Integer DF);
/// The quantile: the T with `StudentTLess(T, DF) = P`, by Halley's method on the smaller
/// tail (P and 1 - P exchanged by the symmetry) from a Cornish-Fisher start; closed forms
/// for DF = 1 and 2. 0 at P = 1/2, minus infinity at P = 0, plus infinity at P = 1.
/// Within 1e-16 relative, or the error that P's own rounding causes (P 2^-64 divided by
/// the density at the quantile) where that is larger, for every P and DF up to 1e6.
/// `InvStudentTLess(0.975, 10)` is the two-sided 5% critical value, about 2.228139.
///
/// Failures (Platform::EMathError), in this order: DF < 1 raises Kornum_RS_Math::rsDF;
/// P outside [0, 1] (a NaN P included) raises Kornum_RS_Math::rsValue01Inc.
Float InvStudentTLess(Float P, Integer DF);
/// The upper quantile: the T with `StudentTGreater(T, DF) = Q`, which the symmetry makes
/// `-InvStudentTLess(Q, DF)`: computed from Q itself, so that a tiny Q keeps its digits.
/// 0 at Q = 1/2, plus infinity at Q = 0, minus infinity at Q = 1.
/// `InvStudentTGreater(0.025, 10)` is the two-sided 5% critical value, about 2.228139.
///
/// Failures (Platform::EMathError), in this order: DF < 1 raises Kornum_RS_Math::rsDF;
/// Q outside [0, 1] (a NaN Q included) raises Kornum_RS_Math::rsValue01Inc.
Float InvStudentTGreater(Float Q, Integer DF);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
