// Distributions that rest on the incomplete beta function - Student's t, F and beta -
// and the exponential distribution; and the density tables of every continuous and
// discrete distribution of the module.
//
// Checks come in the order listed, before any work. The upper tails (...Greater) are
// computed directly, not as 1 - ...Less, so small p-values keep their digits; the two
// add up to 1 within rounding.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

// ---- Student's t with DF degrees of freedom (DF < 1: rsDF) ---------------------------------
Float StudentTLess(Float T, Integer DF);
Float StudentTGreater(Float T, Integer DF);
Float StudentTPDF(Float T, Integer DF);
// P outside [0, 1]: rsValue01Inc; -infinity at P = 0, +infinity at P = 1.
Float InvStudentTLess(Float P, Integer DF);

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

// ---- Beta with shapes A, B on [Lo, Hi] --------------------------------------------------------
// A or B <= 0: rsValueGZero; Lo = Hi: rsSameValue. Below Lo the distribution function is
// 0, above Hi 1.
Float BetaDistLess(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
Float BetaDistGreater(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
Float BetaPDF(Float X, Float A, Float B, Float Lo = 0, Float Hi = 1);
// Then P outside [0, 1]: rsValue01Inc. Lo at P = 0, Hi at P = 1, else
// Lo + (Hi - Lo) InverseIncompleteBeta(P, A, B).
Float InvBetaDistLess(Float P, Float A, Float B, Float Lo = 0, Float Hi = 1);

// ---- Exponential with rate Lambda (Lambda <= 0: rsExpDistInvalid); X < 0 gives 0 -----------
Float ExponentialLess(Float X, Float Lambda);
Float ExponentialGreater(Float X, Float Lambda);
Float ExponentialPDF(Float X, Float Lambda);

// ---- Density tables ----------------------------------------------------------------------------
// X receives N points equally spaced from XLo to XHi (both included) and Y the density at
// each. N < 2 or XHi <= XLo: rsInvalidValue; then the density's own checks. Nothing is
// written on failure.
void NormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X, TKorFloatVector& Y);
void LogNormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X,
                        TKorFloatVector& Y);
void ChiSquarePDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y);
void StudentTPDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y);
void FDistPDFValues(Float XLo, Float XHi, Integer N, Integer N1, Integer N2, TKorFloatVector& X, TKorFloatVector& Y);
void BetaPDFValues(Float XLo, Float XHi, Integer N, Float A, Float B, Float Lo, Float Hi, TKorFloatVector& X,
                   TKorFloatVector& Y);
void ExponentialPDFValues(Float XLo, Float XHi, Integer N, Float Lambda, TKorFloatVector& X, TKorFloatVector& Y);
// k = 0 .. N (or KMax) and P(X = k), with the point routines' checks.
void BinomialPDFValues(Cardinal N, Float P, TKorFloatVector& X, TKorFloatVector& Y);
void PoissonPDFValues(Float Lambda, Cardinal KMax, TKorFloatVector& X, TKorFloatVector& Y);

}  // namespace KornumStatistics
