/// @file
/// Location, spread and shape of one sample held in a vector: the arithmetic mean,
/// sample and population variance and standard deviation (two-pass, and one-pass
/// together with the mean), geometric, harmonic and root-mean-square means, the mean
/// deviation, standardisation in place, and skewness and excess kurtosis from a given
/// mean and standard deviation. The sample need not be sorted.
///
/// Every result is a `Float`. Failures raise Platform::EMathError with the text of a
/// Kornum_RS_Math identifier, before any output or element is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

KORNUM_EXPORT_BEGIN
namespace KornumStatistics {

using Kornumglobals::Float;
using Kornumglobals::TKorDoubleVector;
using Kornumglobals::TKorFloatVector;
using Kornumglobals::TKorInt64Vector;
using Kornumglobals::TKorLIntVector;
using Kornumglobals::TKorLWordVector;
using Kornumglobals::TKorSingleVector;

// ---- Arithmetic mean ----------------------------------------------------------------

/// @name KorMean
/// @{

/// The arithmetic mean: the sum of the elements (`KornumVector::SumVector`) divided by
/// their count, in Float. The integer members take the exact 64-bit integer sum, which
/// wraps around on overflow, and divide it in Float. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Sum formed in |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector | Int64, wrapping |
Float KorMean(const TKorFloatVector& X);
Float KorMean(const TKorDoubleVector& X);
Float KorMean(const TKorSingleVector& X);
Float KorMean(const TKorInt64Vector& X);
Float KorMean(const TKorLWordVector& X);
Float KorMean(const TKorLIntVector& X);
/// @}

// ---- Two-pass variance and standard deviation ---------------------------------------

/// @name SampleVariance
/// @{

/// The sample variance, in two passes: the mean (`KorMean`) first, then the sum of the
/// squared deviations from it (`KornumVector::SumSqDiffVector`), divided by n - 1.
/// The Double and Single members subtract the mean rounded to their element type.
/// Failures, in order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); a single value raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorG1).
///
/// | Vector | Mean subtracted as |
/// |---|---|
/// | TKorFloatVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
Float SampleVariance(const TKorFloatVector& X);
Float SampleVariance(const TKorDoubleVector& X);
Float SampleVariance(const TKorSingleVector& X);
Float SampleVariance(const TKorInt64Vector& X);
Float SampleVariance(const TKorLWordVector& X);
Float SampleVariance(const TKorLIntVector& X);
/// @}

/// @name PopulationVariance
/// @{

/// The population variance, in two passes as `SampleVariance` but divided by n; a single
/// value gives 0. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Mean subtracted as |
/// |---|---|
/// | TKorFloatVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
Float PopulationVariance(const TKorFloatVector& X);
Float PopulationVariance(const TKorDoubleVector& X);
Float PopulationVariance(const TKorSingleVector& X);
Float PopulationVariance(const TKorInt64Vector& X);
Float PopulationVariance(const TKorLWordVector& X);
Float PopulationVariance(const TKorLIntVector& X);
/// @}

/// @name SampleStdDev
/// @{

/// The sample standard deviation: the square root of `SampleVariance`. Failures, in
/// order: an empty vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty);
/// a single value raises Platform::EMathError (Kornum_RS_Math::rsVectorG1).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | Float |
Float SampleStdDev(const TKorFloatVector& X);
Float SampleStdDev(const TKorDoubleVector& X);
Float SampleStdDev(const TKorSingleVector& X);
Float SampleStdDev(const TKorInt64Vector& X);
Float SampleStdDev(const TKorLWordVector& X);
Float SampleStdDev(const TKorLIntVector& X);
/// @}

/// @name PopulationStdDev
/// @{

/// The population standard deviation: the square root of `PopulationVariance`; a single
/// value gives 0. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | Float |
Float PopulationStdDev(const TKorFloatVector& X);
Float PopulationStdDev(const TKorDoubleVector& X);
Float PopulationStdDev(const TKorSingleVector& X);
Float PopulationStdDev(const TKorInt64Vector& X);
Float PopulationStdDev(const TKorLWordVector& X);
Float PopulationStdDev(const TKorLIntVector& X);
/// @}

// ---- One pass: spread and mean together ---------------------------------------------

/// @name SampleVarianceAndMean
/// @{

/// The sample variance and the mean in one pass. Running sums S (of the elements) and
/// Q (of their squares) give `Variance = (Q - S*S/n) / (n - 1)` and `Mean = S / n`.
/// This textbook formula cancels when the mean is large beside the spread (the
/// variance can even come out negative): `SampleVariance` and `KorMean` are the
/// accurate forms. `Variance` is written first, then `Mean`.
///
/// The integer members form each square in 32 bits, keeping only the low 32 bits of
/// the product: a LongInt square wraps from magnitude 46,341 on, a LongWord square from
/// 65,536 on. The Int64 members square only the low 32 bits of each element, and the
/// Int64 member of this routine also forms S exactly (wrapping) in Int64 and takes S*S
/// as the 32-bit square of the low 32 bits of S, so it wraps once |S| reaches 46,341.
///
/// Failures, in order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); a single value raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorG1).
///
/// | Vector | S | Each square added to Q | S*S |
/// |---|---|---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float | Float | Float |
/// | TKorLWordVector | Float | low 32 bits of x*x, unsigned | Float |
/// | TKorLIntVector | Float | low 32 bits of x*x, signed | Float |
/// | TKorInt64Vector | Int64, wrapping | low 32 bits of the low half squared, signed (Q in Int64) | low 32 bits of the low half of S squared, signed |
void SampleVarianceAndMean(const TKorFloatVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorDoubleVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorSingleVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorInt64Vector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorLWordVector& X, Float& Variance, Float& Mean);
void SampleVarianceAndMean(const TKorLIntVector& X, Float& Variance, Float& Mean);
/// @}

/// @name PopulationVarianceAndMean
/// @{

/// The population variance and the mean in one pass: `Variance = (Q - S*S/n) / n` and
/// `Mean = S / n` over running sums S and Q, with the cancellation and the narrow
/// integer squares described at `SampleVarianceAndMean`; here every member, Int64
/// included, forms S and S*S in Float. `Variance` is written first, then `Mean`.
/// Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | S | Each square added to Q |
/// |---|---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float | Float |
/// | TKorLWordVector | Float | low 32 bits of x*x, unsigned |
/// | TKorLIntVector | Float | low 32 bits of x*x, signed |
/// | TKorInt64Vector | Float | low 32 bits of the low half squared, signed |
void PopulationVarianceAndMean(const TKorFloatVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorDoubleVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorSingleVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorInt64Vector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorLWordVector& X, Float& Variance, Float& Mean);
void PopulationVarianceAndMean(const TKorLIntVector& X, Float& Variance, Float& Mean);
/// @}

/// @name SampleStdDevAndMean
/// @{

/// As `SampleVarianceAndMean`, with the square root of the variance written to
/// `StdDev` (NaN when the one-pass variance cancelled below zero). `StdDev` is written
/// first, then `Mean`. Failures, in order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); a single value raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorG1).
///
/// | Vector | Sums formed as in |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | `SampleVarianceAndMean` of the same vector type |
void SampleStdDevAndMean(const TKorFloatVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorDoubleVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorSingleVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorInt64Vector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorLWordVector& X, Float& StdDev, Float& Mean);
void SampleStdDevAndMean(const TKorLIntVector& X, Float& StdDev, Float& Mean);
/// @}

/// @name PopulationStdDevAndMean
/// @{

/// As `PopulationVarianceAndMean`, with the square root of the variance written to
/// `StdDev` (NaN when the one-pass variance cancelled below zero). `StdDev` is written
/// first, then `Mean`. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Sums formed as in |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLWordVector, TKorLIntVector | `PopulationVarianceAndMean` of the same vector type |
void PopulationStdDevAndMean(const TKorFloatVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorDoubleVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorSingleVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorInt64Vector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorLWordVector& X, Float& StdDev, Float& Mean);
void PopulationStdDevAndMean(const TKorLIntVector& X, Float& StdDev, Float& Mean);
/// @}

// ---- Other means --------------------------------------------------------------------

/// The geometric mean: the product of the elements, formed directly rather than through
/// logarithms, raised to the power 1/n (`Kornummath::XtoY`). The product may overflow
/// to infinity or underflow to 0 for long samples. Failures, in order: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); an element that is
/// not positive (`Kornummath::FloatIsPositive`: a value within `KorTolerance` of 0 does
/// not count as positive) raises Platform::EMathError (Kornum_RS_Math::rsVectorNotPos).
Float GeometricMean(const TKorFloatVector& X);
/// The harmonic mean: n divided by the sum of the reciprocals of the elements.
/// Failures, in order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); an element that is not positive
/// (`Kornummath::FloatIsPositive`) raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorNotPos).
Float HarmonicMean(const TKorFloatVector& X);
/// The square root of the sum of the squares (`KornumVector::SumSqVector`), not divided
/// by n: the Euclidean length of `X`, not the quadratic mean. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
Float RootMeanSquare(const TKorFloatVector& X);
/// The mean absolute deviation from the caller's `Mean`: the sum of |x - Mean| over the
/// elements, divided by n. An empty vector gives 0; never raises.
Float MeanDeviation(const TKorFloatVector& X, Float Mean);

/// Rescales `X` in place to a new mean and spread. Each element becomes
/// (x - Mean) / StdDev, is stored, and then becomes x * NewStdDev + NewMean. The
/// storage is written through, so every handle that shares it sees the new values.
/// Failures, in order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); a `StdDev` of exactly 0 raises
/// Platform::EMathError (Kornum_RS_Math::rsStdDev); a tiny nonzero one is accepted.
void Standardise(TKorFloatVector& X, Float Mean, Float StdDev, Float NewMean, Float NewStdDev);

// ---- Shape, from the caller's mean and standard deviation ---------------------------

/// @name Skewness and kurtosis
/// The shape of the sample from the caller's `Mean` and `StdDev` (s below), over the
/// sums S3 and S4 of (x - Mean)^3 and (x - Mean)^4. Kurtosis is excess kurtosis (3
/// subtracted, so a normal sample gives about 0). The skew members need at least three
/// values and the kurtosis members four, in both forms. Failures, in order: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); fewer than
/// three values raise Platform::EMathError (Kornum_RS_Math::rsVectorG2) for the skew,
/// fewer than four raise Platform::EMathError (Kornum_RS_Math::rsVectorG3) for the
/// kurtosis; a `StdDev` that is zero within `KorTolerance` raises Platform::EMathError
/// (Kornum_RS_Math::rsStdDev).
/// @{

/// The bias-corrected sample skewness: n S3 / (s^3 (n - 1)(n - 2)).
Float GetSampleSkew(const TKorFloatVector& X, Float Mean, Float StdDev);
/// The population skewness: S3 / (s^3 n).
Float GetPopulationSkew(const TKorFloatVector& X, Float Mean, Float StdDev);
/// The bias-corrected sample excess kurtosis:
/// n (n + 1) S4 / (s^4 (n - 1)(n - 2)(n - 3)) - 3 (n - 1)^2 / ((n - 2)(n - 3)).
Float GetSampleKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev);
/// The population excess kurtosis: S4 / (s^4 n) - 3.
Float GetPopulationKurtosis(const TKorFloatVector& X, Float Mean, Float StdDev);
/// @}

}  // namespace KornumStatistics
KORNUM_EXPORT_END
