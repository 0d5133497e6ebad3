/// @file
/// The incomplete gamma function and the chi-square distribution.
///
/// Both rest on one evaluation of the regularised incomplete gamma: a series for the lower
/// tail where X < A + 1, a continued fraction (modified Lentz) for the upper tail beyond.
/// The series is summed until a bound on its remaining terms falls below `KorTolerance`
/// of the sum, the fraction until a step changes it by less than that, so the result is
/// as accurate as the tolerance in force allows: within four times it at the default
/// 1e-15, for A and X up to 1e6. The factor X^A e^-X / Gamma(A) is formed from its logarithm
/// carried in two Floats, so that large arguments lose nothing to cancellation. The lower
/// tail is computed directly below X = A + 1 and the upper one from there on, the other
/// tail being 1 minus it; as the split lies just above the median, a small tail on either
/// side keeps its relative precision.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

// ---- Incomplete gamma ---------------------------------------------------------------------

/// @name Incomplete gamma
/// Both raise Platform::EMathError with Kornum_RS_Math::rsValueGZero unless A > 0 (a NaN A
/// included), then Kornum_RS_Math::rsValueGEZero when X < 0.
/// @{

/// The regularised lower incomplete gamma function P(A, X): the integral of
/// t^(A-1) e^-t from 0 to X, divided by Gamma(A). 0 at X = 0, 1 at X = infinity.
/// Failures (Platform::EMathError): Kornum_RS_Math::rsValueGZero unless A > 0, then
/// Kornum_RS_Math::rsValueGEZero for X < 0.
Float IncompleteGamma(Float A, Float X);
/// The unregularised lower incomplete gamma function: `Kornummath::Gamma(A) *
/// IncompleteGamma(A, X)`; Gamma(A) at X = infinity. Failures as for `IncompleteGamma`.
Float IncompleteGamma2(Float A, Float X);
/// @}

// ---- Chi-square ---------------------------------------------------------------------------

/// @name Chi-square
/// The chi-square distribution with `DF` degrees of freedom, through the incomplete gamma
/// with A = DF / 2 and X = ChiSq / 2. The forward routines raise Platform::EMathError with
/// Kornum_RS_Math::rsValueGEZero when ChiSq < 0, then Kornum_RS_Math::rsDF when DF < 1.
/// @{

/// P(X < `ChiSq`) = `IncompleteGamma(DF / 2, ChiSq / 2)`: 0 at ChiSq = 0, 1 at infinity.
/// Computed directly for ChiSq < DF + 2 and as 1 minus the upper tail from there on, so
/// a small lower tail keeps its relative precision. Failures (Platform::EMathError):
/// Kornum_RS_Math::rsValueGEZero for ChiSq < 0, then Kornum_RS_Math::rsDF for DF < 1.
Float ChiSquareLess(Float ChiSq, Integer DF);
/// P(X > `ChiSq`), the p-value of a chi-square statistic: 1 at ChiSq = 0, 0 at infinity.
/// Computed directly for ChiSq >= DF + 2 (not as 1 - `ChiSquareLess`) and as 1 minus the
/// lower tail below, so a small p-value keeps its relative precision. Failures as for
/// `ChiSquareLess`.
Float ChiSquareGreater(Float ChiSq, Integer DF);
/// The chi-square density `(x/2)^(DF/2 - 1) e^(-x/2) / (2 Gamma(DF/2))`. At ChiSq = 0 it
/// is infinity for DF = 1, 1/2 for DF = 2 and 0 beyond; an infinite ChiSq gives NaN.
/// Failures as for `ChiSquareLess`.
Float ChiSquarePDF(Float ChiSq, Integer DF);
/// The quantile: the ChiSq with `ChiSquareLess(ChiSq, DF) = P`. 0 at P = 0, infinity at
/// P = 1. Solved on the logarithm of the smaller tail (1 - P is exact for P >= 1/2) by
/// Halley steps inside a bracket, from a start that is right in each tail, with the tails
/// summed to the precision of the format whatever `KorTolerance` is: within 1e-16
/// relative, or the error that P's own rounding causes where that is larger (near P = 1,
/// where `InvChiSquareGreater` of the upper tail keeps its digits).
///
/// Failures (Platform::EMathError), in this order: DF < 1 raises Kornum_RS_Math::rsDF;
/// P outside [0, 1] (a NaN P included) raises Kornum_RS_Math::rsValue01Inc.
Float InvChiSquareLess(Float P, Integer DF);
/// The upper quantile: the ChiSq with `ChiSquareGreater(ChiSq, DF) = Q`, computed from Q
/// itself so that a tiny Q (down to the least subnormal) keeps its digits. Infinity at
/// Q = 0, 0 at Q = 1; the method and accuracy of `InvChiSquareLess`.
///
/// Failures (Platform::EMathError), in this order: DF < 1 raises Kornum_RS_Math::rsDF;
/// Q outside [0, 1] (a NaN Q included) raises Kornum_RS_Math::rsValue01Inc.
Float InvChiSquareGreater(Float Q, Integer DF);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
