/// @file
/// Position-based measures of one sample: median, quartiles, deciles, mode, the most
/// frequent values and two trimmed means.
///
/// Every routine here expects `X` already sorted in ascending order (for example by
/// `KornumVector::QSortVector`) and neither sorts, copies nor checks it; on unsorted
/// input each returns whatever its index arithmetic picks. Failures raise
/// Platform::EMathError with the text of a Kornum_RS_Math identifier, before any output
/// is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <array>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Boolean;
using Kornumglobals::Float;
using Kornumglobals::TKorDoubleVector;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::TKorInt64Vector;
using Kornumglobals::TKorLIntVector;
using Kornumglobals::TKorLWordVector;
using Kornumglobals::TKorSingleVector;

/// The nine deciles D1 to D9 that `GetDeciles` returns, indexed 1 to 9 as the deciles
/// are numbered.
struct TKorDeciles {
    /// D1 to D9 in `Values[0]` to `Values[8]`.
    std::array<Float, 9> Values{};

    /// Decile `Decile` (1 to 9, not checked), writable.
    Float& operator[](int Decile) noexcept { return Values[std::size_t(Decile - 1)]; }
    /// Decile `Decile` (1 to 9, not checked).
    const Float& operator[](int Decile) const noexcept { return Values[std::size_t(Decile - 1)]; }
};

/// The value `GetMode` leaves in `Mode` when no value repeats: -1.1e4932, near the most
/// negative Float, standing for "no mode".
inline constexpr Float KorNoMode = -1.1e4932L;

// ---- Median -------------------------------------------------------------------------

/// @name GetMedian
/// @{

/// The median of the sorted `X`: the middle value of an odd count, the mean of the two
/// middle values of an even count, in Float. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector, TKorLWordVector | Float |
Float GetMedian(const TKorFloatVector& X);
Float GetMedian(const TKorDoubleVector& X);
Float GetMedian(const TKorSingleVector& X);
Float GetMedian(const TKorInt64Vector& X);
Float GetMedian(const TKorLIntVector& X);
Float GetMedian(const TKorLWordVector& X);
/// @}

// ---- Quartiles and deciles ----------------------------------------------------------

/// The first and third quartiles of the sorted `X`, interpolated at the 1-based
/// positions P = n/4 + 0.5 and P = 3n/4 + 0.5. With K = Trunc(P) and F = Frac(P), the
/// quartile is X[K-1] + F * (X[K] - X[K-1]): the K-th value plus the fraction F of the
/// step to the next. A position before the first value gives the first value, one at or
/// past the last gives the last; a single value is both quartiles. `Q1` is written
/// before `Q3`. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
void GetQuartiles(const TKorFloatVector& X, Float& Q1, Float& Q3);
/// The nine deciles of the sorted `X`: decile j interpolated at the 1-based position
/// n*j/10 + 0.5 as in `GetQuartiles`; a single value is every decile. Failures: an
/// empty vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
TKorDeciles GetDeciles(const TKorFloatVector& X);

// ---- Mode and most frequent values --------------------------------------------------

/// Whether the sorted `X` has a single most frequent value, and that value. Neighbours
/// that are the same by `Kornummath::SameFloat` form a run; a run stands for the value
/// of its last element, and only runs of two or more count. Returns true with `Mode`
/// set to the value of the longest run when no other run is as long; false with
/// `Mode` set to the smallest of the tied values when several runs share the greatest
/// length; false with `Mode` = `KorNoMode` when no value repeats. A single element is
/// its own mode (true). Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
Boolean GetMode(const TKorFloatVector& X, Float& Mode);

/// The values tied for the highest frequency in the sorted `X`, as a new vector. Runs
/// are formed as in `GetMode`; the values come in ascending order, each once. The
/// result is empty when no value repeats, and the element itself for a single element.
/// One case is kept as existing callers expect it: when the only run of two or more is
/// the final one, the result holds `X[0]` rather than that run's value. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
TKorFloatVector GetMostFrequent(const TKorFloatVector& X);

// ---- Trimmed means ------------------------------------------------------------------

/// @name TrimmedMean
/// @{

/// The mean of the sorted `X` after dropping k = Trunc(n * Alpha) values at each end:
/// `Alpha` in [0, 0.5] is the fraction dropped at each end. An `Alpha` that is zero
/// within `KorTolerance` gives `KorMean(X)`, one that is the same as 0.5
/// (`Kornummath::SameFloat`) gives `GetMedian(X)`; a single value gives that value.
/// Failures, in order: an `Alpha` outside [0, 0.5], or NaN, raises
/// Platform::EMathError (Kornum_RS_Math::rsInvalidValue); an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty). With an `Alpha` taken as 0
/// or 0.5 the empty vector is refused by `KorMean` or `GetMedian`, with the same
/// message.
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector, TKorLWordVector | Float |
Float TrimmedMean(const TKorFloatVector& X, Float Alpha);
Float TrimmedMean(const TKorDoubleVector& X, Float Alpha);
Float TrimmedMean(const TKorSingleVector& X, Float Alpha);
Float TrimmedMean(const TKorInt64Vector& X, Float Alpha);
Float TrimmedMean(const TKorLIntVector& X, Float Alpha);
Float TrimmedMean(const TKorLWordVector& X, Float Alpha);
/// @}

/// @name ExcelTrimmedMean
/// @{

/// As `TrimmedMean`, but `Alpha` in [0, 1] is the total fraction dropped, split between
/// the ends: k = Trunc(n * Alpha) div 2 values go at each end. An `Alpha` that is zero
/// within `KorTolerance` gives `KorMean(X)`, one that is the same as 1 gives
/// `GetMedian(X)`. Failures, in order: an `Alpha` outside [0, 1], or NaN, raises
/// Platform::EMathError (Kornum_RS_Math::rsInvalidValue); an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector, TKorLWordVector | Float |
Float ExcelTrimmedMean(const TKorFloatVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorDoubleVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorSingleVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorInt64Vector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorLIntVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorLWordVector& X, Float Alpha);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
