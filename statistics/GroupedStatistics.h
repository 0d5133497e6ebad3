/// @file
/// Statistics of data grouped into equal-width classes: a frequency table `F` of class
/// counts, the lower bound `L` of the first class and the class width `W`. Class i runs
/// from i*W + L to (i + 1)*W + L; its mid-point m_i is i*W + L + W/2, added in that
/// order. N is the total count, the integer sum of `F`.
///
/// The median, quartiles and deciles interpolate within the first class k whose
/// cumulative count cum_k reaches a target count T: k*W + L + (T - cum_(k-1)) * W / f_k.
/// Every routine raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty) when `F`
/// is empty, before anything is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <limits>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorLWordVector;

/// The value `GroupedMode` leaves in `Mode` when two classes share the largest count:
/// the smallest positive Float (the denormal with mantissa 1, about 3.6e-4951). Callers
/// test the Boolean result; the value only marks the case.
inline constexpr Float GroupedModeTieMarker = std::numeric_limits<Float>::denorm_min();

// ---- Location -----------------------------------------------------------------------

/// The grouped mean: the sum of f_i * m_i over the classes, divided by N; 0 when N = 0.
/// Failures: an empty `F` raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float GroupedMean(const TKorLWordVector& F, Float L, Float W);
/// The grouped median: interpolated within the first class whose cumulative count
/// reaches N/2. With every count zero (N = 0) it interpolates 0/0 and is NaN.
/// Failures, in order: an empty `F` raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); should no class reach N/2, the root
/// Platform::Exception (not EMathError) is raised with Kornum_RS_Math::rsMedianNotFound
/// (the last class always reaches it, so this is a guard).
Float GroupedMedian(const TKorLWordVector& F, Float L, Float W);
/// The grouped mode, interpolated within the modal class. With k the class of the
/// largest count f_k, the mode is k*W + L + d1*W / (d1 + d2), from the count
/// differences to the neighbouring classes, d1 = f_k - f_(k-1) and d2 = f_k - f_(k+1),
/// a missing neighbour counting as 0. Returns true. When the largest count is not unique, returns false and sets `Mode` to
/// `GroupedModeTieMarker`. A single class of count 0 gives NaN. Failures: an empty `F`
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
bool GroupedMode(const TKorLWordVector& F, Float L, Float W, Float& Mode);
/// The grouped quartiles, interpolated within the classes whose cumulative counts first
/// reach N/4 (`Q1`) and 3N/4 (`Q3`); NaN when N = 0. Failures, in order: an empty `F`
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); should either class
/// be missing (a guard, as for the median), Platform::EMathError
/// (Kornum_RS_Math::rsQuartilesNotFound) is raised with `Q1` and `Q3` untouched.
void GroupedQuartiles(const TKorLWordVector& F, Float L, Float W, Float& Q1, Float& Q3);
/// The nine grouped deciles, written to `D[0]` to `D[8]` (`D` must point to nine
/// Floats): decile j interpolated within the class whose cumulative count first reaches
/// j*N/10, like the median; NaN when N = 0. Failures: an empty `F` raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty), with `D` untouched.
void GetGroupedDeciles(const TKorLWordVector& F, Float L, Float W, Float* D);

// ---- Spread -------------------------------------------------------------------------

/// The grouped sample variance: the sum of f_i * (m_i - mean)^2, with the mean of
/// `GroupedMean`, divided by N - 1; 0 when N < 2. Failures: an empty `F` raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float GroupedSampleVariance(const TKorLWordVector& F, Float L, Float W);
/// The grouped population variance: as `GroupedSampleVariance`, divided by N; 0 when
/// N = 0. Failures: an empty `F` raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
Float GroupedPopulationVariance(const TKorLWordVector& F, Float L, Float W);
/// The square root of `GroupedSampleVariance`. Failures: an empty `F` raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float GroupedSampleStdDev(const TKorLWordVector& F, Float L, Float W);
/// The square root of `GroupedPopulationVariance`. Failures: an empty `F` raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float GroupedPopulationStdDev(const TKorLWordVector& F, Float L, Float W);
/// The two weighted sums of the mid-points: `SumFM` = the sum of f_i * m_i and
/// `SumFM2` = the sum of f_i * m_i^2, written in that order. Failures: an empty `F`
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
void GroupedSums(const TKorLWordVector& F, Float L, Float W, Float& SumFM, Float& SumFM2);
/// The grouped mean deviation from the caller's `Mean`: the sum of
/// |m_i - Mean| * f_i, divided by N; NaN when N = 0. Failures: an empty `F` raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float GetGroupedMeanDev(const TKorLWordVector& F, Float L, Float W, Float Mean);

// ---- Shape --------------------------------------------------------------------------

/// @name Grouped skewness and kurtosis
/// The shape from the caller's `Mean` and `StdDev` (s below). S3 and S4 are the sums of
/// (m_i - Mean)^3 and (m_i - Mean)^4 over the classes, NOT weighted by the counts. The
/// "sample" members divide like the ungrouped population statistics and the
/// "population" members like the bias-corrected ungrouped sample statistics, so with a
/// count of one in every class each grouped member equals its ungrouped counterpart
/// named the other way round (`GetGroupedSampleSkew` equals `GetPopulationSkew`, and so
/// on). Kurtosis is excess kurtosis (3 subtracted).
///
/// Failures, in order: an empty `F` raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); N < 3 raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorG2) for the skew members, N < 4 raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorG3) for the kurtosis members; a `StdDev` that is zero
/// within `KorTolerance` raises Platform::EMathError (Kornum_RS_Math::rsStdDev).
/// @{

/// The grouped "sample" skewness: S3 / (s^3 N).
Float GetGroupedSampleSkew(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
/// The grouped "population" skewness: N S3 / (s^3 (N - 1)(N - 2)).
Float GetGroupedPopulationSkew(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
/// The grouped "sample" excess kurtosis: S4 / (s^4 N) - 3.
Float GetGroupedSampleKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean, Float StdDev);
/// The grouped "population" excess kurtosis:
/// N (N + 1) S4 / (s^4 (N - 1)(N - 2)(N - 3)) - 3 (N - 1)^2 / ((N - 2)(N - 3)).
Float GetGroupedPopulationKurtosis(const TKorLWordVector& F, Float L, Float W, Float Mean,
                                   Float StdDev);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
