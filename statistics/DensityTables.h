// Density tables of every continuous and discrete distribution of the module.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

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
