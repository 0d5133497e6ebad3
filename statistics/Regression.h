/// @file
/// The least-squares straight line Y = Intercept + Slope * X through paired samples,
/// and the sum of squared errors of a given line. Element i of `X` pairs with element i
/// of `Y`. Failures raise Platform::EMathError with the text of a Kornum_RS_Math
/// identifier, before anything is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorFloatVector;

/// Fits the least-squares line Y = Intercept + Slope * X. The fit works from the plain
/// sums Sx, Sy, Sxx (of the squares of X) and Sxy (of the products), with no centring
/// first: Slope = Qxy / Qxx with Qxx = Sxx - Sx*Sx/n and Qxy = Sxy - Sx*Sy/n, then
/// Intercept = (Sy - Slope*Sx) / n. The differences cancel when the X values are large
/// beside their spread. `Slope` is written first, then `Intercept`. Failures: vectors
/// of different lengths raise Platform::EMathError (Kornum_RS_Math::rsSameDimensions)
/// and write nothing. Nothing else is checked: empty vectors give NaN for both, and a
/// constant `X` an infinite or NaN slope.
void GetRegressionLine(const TKorFloatVector& X, const TKorFloatVector& Y, Float& Intercept,
                       Float& Slope);

/// The sum of squared errors of the line Y = Intercept + Slope * X: the sum of
/// (Slope * X[i] + Intercept - Y[i])^2; 0 for empty vectors. Failures: vectors of
/// different lengths raise Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
Float GetSSE(const TKorFloatVector& X, const TKorFloatVector& Y, Float Intercept, Float Slope);

}  // namespace KornumStatistics
KORNUM_EXPORT_END
