// Statistics of data grouped into equal-width classes: a frequency table F of class
// counts, the lower bound L of the first class and the class width W. Class i runs
// from i*W + L to (i + 1)*W + L; its mid-point is i*W + L + W/2. N is the total count.
// Every routine raises rsVectorIsEmpty when F is empty.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <limits>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorLWordVector;

// The value GroupedMode leaves in Mode when two classes share the largest count: the
// smallest positive Float (the denormal with mantissa 1, about 3.6e-4951). Callers
// test the Boolean result; the value only marks the case.
inline constexpr Float GroupedModeTieMarker = std::numeric_limits<Float>::denorm_min();

// Sum of count times mid-point, over N; 0 when N = 0.
Float GroupedMean(const TKorLWordVector& F, Float L, Float W);
// Interpolated within the first class whose cumulative count reaches N/2. Raises the
// root class Platform::Exception (not EMathError) with rsMedianNotFound when no class
// does.
Float GroupedMedian(const TKorLWordVector& F, Float L, Float W);
// The mode interpolated within the modal class from the count differences to its
// neighbours. Returns false, with Mode = GroupedModeTieMarker, when the largest count
// is not unique.
bool GroupedMode(const TKorLWordVector& F, Float L, Float W, Float& Mode);
// Interpolated within the classes whose cumulative counts first reach N/4 and 3N/4.
// Raises rsQuartilesNotFound when either class is missing; Q1 and Q3 are then untouched.
void GroupedQuartiles(const TKorLWordVector& F, Float L, Float W, Float& Q1, Float& Q3);
// D[0] .. D[8] receive the deciles at j*N/10, j = 1 .. 9, interpolated like the median.
// With every count zero (N = 0) the median, quartiles and deciles interpolate 0/0 and
// are NaN.
void GetGroupedDeciles(const TKorLWordVector& F, Float L, Float W, Float* D);

// Sum of count times squared deviation of the mid-point from the grouped mean, over
// N - 1 (0 when N < 2) or over N (0 when N = 0).
Float GroupedSampleVariance(const TKorLWordVector& F, Float L, Float W);
Float GroupedPopulationVariance(const TKorLWordVector& F, Float L, Float W);
Float GroupedSampleStdDev(const TKorLWordVector& F, Float L, Float W);
Float GroupedPopulationStdDev(const TKorLWordVector& F, Float L, Float W);
// SumFM = sum of count * mid-point, SumFM2 = sum of count * mid-point^2.
void GroupedSums(const TKorLWordVector& F, Float L, Float W, Float& SumFM, Float& SumFM2);
// Sum of |mid-point - Mean| * count, over N (NaN when N = 0).
Float GetGroupedMeanDev(const TKorLWordVector& F, Float L, Float W, Float Mean);

// Shape. S3 and S4 are the sums of (m_i - Mean)^3 and (m_i - Mean)^4 over the classes,
// NOT weighted by the counts; s = StdDev. The "sample" members divide like the
// ungrouped population statistics and the "population" members like the
// bias-corrected ungrouped sample statistics, so with one value in every class each
// grouped member equals its ungrouped counterpart named the other way round:
//   GetGroupedSampleSkew       = S3 / (s^3 N)
//   GetGroupedPopulationSkew   = N S3 / (s^3 (N - 1)(N - 2))
//   GetGroupedSampleKurtosis   = S4 / (s^4 N) - 3
//   GetGroupedPopulationKurtosis
//     = N (N + 1) S4 / (s^4 (N - 1)(N - 2)(N - 3)) - 3 (N - 1)^2 / ((N - 2)(N - 3))
// The skew members raise rsVectorG2 when N < 3, the kurtosis members rsVectorG3 when
// N < 4, then all four raise rsStdDev when StdDev is zero within tolerance.
Float GetGroupedSampleSkew(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
Float GetGroupedPopulationSkew(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
Float GetGroupedSampleKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
Float GetGroupedPopulationKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean,
                                   Float StdDev);

}  // namespace KornumStatistics
