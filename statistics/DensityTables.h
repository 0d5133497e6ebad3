/// @file
/// Density tables: a distribution's density over a grid of points, ready to plot.
///
/// The continuous tables fill `X` with `N` points equally spaced from `XLo` to `XHi`
/// (both included: point i is XLo + (XHi - XLo) i / (N - 1), the last one exactly XHi) and
/// `Y` with the density at each, through the density routine of the distribution with its
/// own checks. The discrete tables fill X with the counts 0, 1, ..., and Y with the point
/// probabilities. X and Y are built aside and handed over only when every point is done:
/// on failure nothing is written, and on success X and Y are new vectors (another handle
/// still sharing their old storage keeps the old values).
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Cardinal;
using Kornumglobals::Float;
using Kornumglobals::Integer;
using Kornumglobals::TKorFloatVector;

// ---- Density tables ----------------------------------------------------------------------------

/// @name Continuous density tables
/// Each raises Platform::EMathError with Kornum_RS_Math::rsInvalidValue when N < 2 or
/// XHi <= XLo, then raises what its density routine raises for the parameters or for a
/// point of the grid (the first point is XLo).
/// @{

/// `NormalPDF(x, Mean, StdDev)` over the grid. Failures (Platform::EMathError): Kornum_RS_Math::rsInvalidValue,
/// then Kornum_RS_Math::rsStdDev.
void NormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X, TKorFloatVector& Y);
/// `LogNormalPDF(x, Mean, StdDev)` over the grid. Failures (Platform::EMathError): Kornum_RS_Math::rsInvalidValue,
/// Kornum_RS_Math::rsStdDev, then Kornum_RS_Math::rsValueGZero unless XLo is positive
/// beyond `KorTolerance` (the density is not defined at 0).
void LogNormalPDFValues(Float XLo, Float XHi, Integer N, Float Mean, Float StdDev, TKorFloatVector& X,
                        TKorFloatVector& Y);
/// `ChiSquarePDF(x, DF)` over the grid. Failures (Platform::EMathError): Kornum_RS_Math::rsInvalidValue, then
/// Kornum_RS_Math::rsValueGEZero for XLo < 0, then Kornum_RS_Math::rsDF for DF < 1.
void ChiSquarePDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y);
/// `StudentTPDF(x, DF)` over the grid. Failures (Platform::EMathError): Kornum_RS_Math::rsInvalidValue, then
/// Kornum_RS_Math::rsDF for DF < 1.
void StudentTPDFValues(Float XLo, Float XHi, Integer N, Integer DF, TKorFloatVector& X, TKorFloatVector& Y);
/// `FDistPDF(x, N1, N2)` over the grid. Failures (Platform::EMathError): Kornum_RS_Math::rsInvalidValue, then
/// Kornum_RS_Math::rsValueGEZero for XLo < 0, then Kornum_RS_Math::rsDF for N1 or N2 < 1.
void FDistPDFValues(Float XLo, Float XHi, Integer N, Integer N1, Integer N2, TKorFloatVector& X, TKorFloatVector& Y);
/// `BetaPDF(x, A, B, Lo, Hi)` over the grid (points outside [Lo, Hi] get 0). Failures (Platform::EMathError):
/// Kornum_RS_Math::rsInvalidValue, then Kornum_RS_Math::rsValueGZero unless A, B > 0, then
/// Kornum_RS_Math::rsSameValue for Lo = Hi.
void BetaPDFValues(Float XLo, Float XHi, Integer N, Float A, Float B, Float Lo, Float Hi, TKorFloatVector& X,
                   TKorFloatVector& Y);
/// `ExponentialPDF(x, Lambda)` over the grid (negative points get 0). Failures (Platform::EMathError):
/// Kornum_RS_Math::rsInvalidValue, then Kornum_RS_Math::rsExpDistInvalid unless Lambda > 0.
void ExponentialPDFValues(Float XLo, Float XHi, Integer N, Float Lambda, TKorFloatVector& X, TKorFloatVector& Y);
/// @}

/// @name Discrete probability tables
/// @{

/// X = 0, 1, ..., N and Y the binomial point probabilities `BinomialEq(P, N, k)` (note the
/// argument order: N before P here). Failures: Platform::EMathError with
/// Kornum_RS_Math::rsBinomDistInvalid when N = 0 or P is outside [0, 1], checked before
/// the table is built; Kornum_RS_Math::rsBinomOverflowed when a binomial coefficient
/// overflows (N above about 16,400).
void BinomialPDFValues(Cardinal N, Float P, TKorFloatVector& X, TKorFloatVector& Y);
/// X = 0, 1, ..., KMax and Y the Poisson point probabilities `PoissonEq(Lambda, k)`.
/// Failures: Platform::EMathError with Kornum_RS_Math::rsPoissonInvalid when Lambda <= 0,
/// checked before the table is built; Kornum_RS_Math::rsFactOverflow when KMax exceeds
/// `MaxFactorialArgument` (1754), raised on reaching that count.
void PoissonPDFValues(Float Lambda, Cardinal KMax, TKorFloatVector& X, TKorFloatVector& Y);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
