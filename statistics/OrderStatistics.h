// Position-based measures of one sample: median, quartiles, deciles, mode, the most
// frequent values and two trimmed means.
//
// Every routine here expects X already sorted in ascending order and neither sorts,
// copies nor checks it; on unsorted input each returns whatever its index arithmetic
// picks. Failures raise Platform::EMathError with a message of Kornum_RS_Math.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

#include <array>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Boolean;
using Kornumglobals::Float;
using Kornumglobals::TKorDoubleVector;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::TKorInt64Vector;
using Kornumglobals::TKorLIntVector;
using Kornumglobals::TKorLWordVector;
using Kornumglobals::TKorSingleVector;

// The nine deciles D1 .. D9, indexed 1 to 9 as the deciles are numbered.
struct TKorDeciles {
    std::array<Float, 9> Values{};

    Float& operator[](int Decile) noexcept { return Values[std::size_t(Decile - 1)]; }
    const Float& operator[](int Decile) const noexcept { return Values[std::size_t(Decile - 1)]; }
};

// The value GetMode leaves in Mode when no value repeats: the most negative extended
// value, standing for "no mode".
inline constexpr Float KorNoMode = -1.1e4932L;

// The middle value, or the mean of the two middle values of an even count.
Float GetMedian(const TKorFloatVector& X);
Float GetMedian(const TKorDoubleVector& X);
Float GetMedian(const TKorSingleVector& X);
Float GetMedian(const TKorInt64Vector& X);
Float GetMedian(const TKorLIntVector& X);
Float GetMedian(const TKorLWordVector& X);

// Quartiles and deciles interpolate at position n*q + 0.5 (1-based): the integer part
// picks the lower neighbour, the fraction weights the step to the next one. Q1 is
// written before Q3.
void GetQuartiles(const TKorFloatVector& X, Float& Q1, Float& Q3);
TKorDeciles GetDeciles(const TKorFloatVector& X);

// True when one value is repeated more often than every other (values compared with
// SameFloat). With no repeated value Mode is KorNoMode; with a tie for the highest count
// the result is false and Mode holds the smallest of the tied values.
Boolean GetMode(const TKorFloatVector& X, Float& Mode);

// Every value tied for the highest frequency, in ascending order, each once; empty when
// no value repeats. When the only repeated values form the final run, the result holds
// X[0] rather than that value (kept for compatibility with existing callers).
TKorFloatVector GetMostFrequent(const TKorFloatVector& X);

// The mean after dropping Trunc(n * Alpha) values at each end, Alpha in [0, 0.5];
// Alpha zero (within tolerance) gives KorMean, Alpha = 0.5 (within tolerance) GetMedian.
Float TrimmedMean(const TKorFloatVector& X, Float Alpha);
Float TrimmedMean(const TKorDoubleVector& X, Float Alpha);
Float TrimmedMean(const TKorSingleVector& X, Float Alpha);
Float TrimmedMean(const TKorInt64Vector& X, Float Alpha);
Float TrimmedMean(const TKorLIntVector& X, Float Alpha);
Float TrimmedMean(const TKorLWordVector& X, Float Alpha);

// As TrimmedMean, but Alpha in [0, 1] is the total fraction dropped, split between the
// ends: Trunc(n * Alpha) div 2 values go at each end; Alpha = 1 gives GetMedian.
Float ExcelTrimmedMean(const TKorFloatVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorDoubleVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorSingleVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorInt64Vector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorLIntVector& X, Float Alpha);
Float ExcelTrimmedMean(const TKorLWordVector& X, Float Alpha);

}  // namespace KornumStatistics
