// The incomplete gamma function and the chi-square distribution.
//
// IncompleteGamma(A, X) is the regularised lower incomplete gamma P(A, X), and
// IncompleteGamma2 the unregularised Gamma(A) P(A, X); A <= 0 raises rsValueGZero, then
// X < 0 rsValueGEZero. Both sum a series (X < A + 1) or a continued fraction (beyond,
// for the upper tail) until a step changes the result by less than KorTolerance of it:
// the result is as accurate as the tolerance in force allows. The factor
// X^A e^-X / Gamma(A) is formed from its logarithm carried in about 128 bits, so that
// large arguments lose nothing to cancellation.
//
// The chi-square routines with DF degrees of freedom: ChiSq < 0 raises rsValueGEZero,
// DF < 1 rsDF, and for the inverse a P outside [0, 1] rsValue01Inc. Less and Greater
// are each computed directly (no 1 - x), so small upper tails keep their digits.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::Integer;

Float IncompleteGamma(Float A, Float X);
Float IncompleteGamma2(Float A, Float X);

Float ChiSquareLess(Float ChiSq, Integer DF);
Float ChiSquareGreater(Float ChiSq, Integer DF);
Float ChiSquarePDF(Float ChiSq, Integer DF);
// The ChiSq with ChiSquareLess(ChiSq, DF) = P: 0 at P = 0, infinity at P = 1.
Float InvChiSquareLess(Float P, Integer DF);

}  // namespace KornumStatistics
