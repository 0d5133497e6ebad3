// Location and spread of one sample held in a vector: the arithmetic mean, sample and
// population variance and standard deviation (two-pass, and one-pass together with the
// mean), geometric, harmonic and root-mean-square means, the mean deviation,
// standardisation in place, and skewness and excess kurtosis from a given mean and
// standard deviation.
//
// Every result is a Float. Failures raise Platform::EMathError with a message of
// Kornum_RS_Math, before any output or element is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorDoubleVector;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::TKorInt64Vector;
using Kornumglobals::TKorLIntVector;
using Kornumglobals::TKorLWordVector;
using Kornumglobals::TKorSingleVector;

// ---- Arithmetic mean: SumVector / n ------------------------------------------------
// The integer members take the exact (64-bit wrapping) integer sum, then divide in Float.
Float KorMean(const TKorFloatVector& X);
Float KorMean(const TKorDoubleVector& X);
Float KorMean(const TKorSingleVector& X);
Float KorMean(const TKorInt64Vector& X);
Float KorMean(const TKorLWordVector& X);
Float KorMean(const TKorLIntVector& X);

// ---- Two-pass variance and standard deviation ---------------------------------------
// The mean first, then the sum of squared deviations from it (SumSqDiffVector), divided
// by n - 1 (sample) or n (population). A single value has population variance 0 and
// no sample variance (rsVectorG1).
Float SampleVariance(const TKorFloatVector& X);
Float SampleVariance(const TKorDoubleVector& X);
Float SampleVariance(const TKorSingleVector& X);
Float SampleVariance(const TKorInt64Vector& X);
Float SampleVariance(const TKorLWordVector& X);
Float SampleVariance(const TKorLIntVector& X);

Float PopulationVariance(const TKorFloatVector& X);
Float PopulationVariance(const TKorDoubleVector& X);
Float PopulationVariance(const TKorSingleVector& X);
Float PopulationVariance(const TKorInt64Vector& X);
Float PopulationVariance(const TKorLWordVector& X);
Float PopulationVariance(const TKorLIntVector& X);

Float SampleStdDev(const TKorFloatVector& X);
Float SampleStdDev(const TKorDoubleVector& X);
Float SampleStdDev(const TKorSingleVector& X);
Float SampleStdDev(const TKorInt64Vector& X);
Float SampleStdDev(const TKorLWordVector& X);
Float SampleStdDev(const TKorLIntVector& X);

Float PopulationStdDev(const TKorFloatVector& X);
Float PopulationStdDev(const TKorDoubleVector& X);
Float PopulationStdDev(const TKorSingleVector& X);
Float PopulationStdDev(const TKorInt64Vector& X);
Float PopulationStdDev(const TKorLWordVector& X);
Float PopulationStdDev(const TKorLIntVector& X);

// ---- One pass: spread and mean together ---------------------------------------------
// The textbook computational formula (Q - S*S/n) / d over plain running sums, with its
// cancellation: use the two-pass routines for accuracy. The spread is written first,
// then the mean. The integer members square each element in 32 bits, which wraps from
// magnitude 46,341 on (65,536 for LongWord); the Int64 members read only the low 32
// bits of each element for its square.
void SampleVarianceAndMean(const TKorFloatVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorDoubleVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorSingleVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorInt64Vector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorLWordVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorLIntVector& X, Float& Variance, Float& Mean);

void PopulationVarianceAndMean(const TKorFloatVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorDoubleVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorSingleVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorInt64Vector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorLWordVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorLIntVector& X, Float& Variance, Float& Mean);

void SampleStdDevAndMean(const TKorFloatVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorDoubleVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorSingleVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorInt64Vector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorLWordVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorLIntVector& X, Float& StdDev, Float& Mean);

void PopulationStdDevAndMean(const TKorFloatVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorDoubleVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorSingleVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorInt64Vector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorLWordVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorLIntVector& X, Float& StdDev, Float& Mean);

// ---- Other means -------------------------------------------------------------------
// The n-th root of the direct product (which may overflow or underflow for long samples).
Float GeometricMean(const TKorFloatVector& X);
// n divided by the sum of reciprocals.
Float HarmonicMean(const TKorFloatVector& X);
// The square root of the sum of squares, not divided by n: the Euclidean length.
Float RootMeanSquare(const TKorFloatVector& X);
// The mean absolute deviation from the caller's Mean; 0 for an empty vector.
Float MeanDeviation(const TKorFloatVector& X, Float Mean);

// Rewrites X in place: x := (x - Mean) / StdDev, stored, then x := x * NewStdDev + NewMean.
// Refuses a StdDev of exactly 0 (a tiny one is accepted).
void Standardise(TKorFloatVector& X, Float Mean, Float StdDev, Float NewMean, Float NewStdDev);

// ---- Shape, from the caller's mean and standard deviation ---------------------------
// Both forms need at least three values (skew) or four (kurtosis), and a StdDev that is
// not zero within the base tolerance. Kurtosis is excess kurtosis (3 subtracted).
Float GetSampleSkew(const TKorFloatVector& X, Float Mean, Float StdDev);
Float GetPopulationSkew(const TKorFloatVector& X, Float Mean, Float StdDev);
Float GetSampleKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev);
Float GetPopulationKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev);

}  // namespace KornumStatistics
