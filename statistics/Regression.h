// Least-squares straight line Y = Intercept + Slope * X through paired samples, and the
// sum of squared errors of a given line. Element i of X pairs with element i of Y.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorFloatVector;

// Fits the line from the plain sums (no centring first): Slope = Qxy / Qxx with
// Qxx = Sxx - Sx*Sx/n and Qxy = Sxy - Sx*Sy/n, then Intercept = (Sy - Slope*Sx) / n.
// Slope is written first. Vectors of different lengths raise rsSameDimensions and
// write nothing; nothing else is checked, so empty vectors or a constant X give
// infinity or NaN.
void GetRegressionLine(const TKorFloatVector& X, const TKorFloatVector& Y, Float& Intercept,
                       Float& Slope);

// The sum of (Slope * X[i] + Intercept - Y[i]) squared; 0 for empty vectors.
Float GetSSE(const TKorFloatVector& X, const TKorFloatVector& Y, Float Intercept, Float Slope);

}  // namespace KornumStatistics
