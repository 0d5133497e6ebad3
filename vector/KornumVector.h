// Typed vector routines: construction and resizing, copies and conversions, aggregates
// and sign tests, sorting and ranking, element-wise arithmetic, geometry, in-place
// transforms, the moving average and polynomial evaluation.
//
// Every family is a set of plain overloads, one per element type it supports; a
// combination that is not declared here does not exist. Floating results are Float,
// integer sums Int64. Failures raise Platform::EMathError with the text of a
// Kornum_RS_Math identifier, before anything is written.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumVector {

using namespace Kornumglobals;

// ---- Construction and resizing ------------------------------------------------------
// AppendValue2Vector grows V by one and stores Value last. AddValue2Vector inserts
// Value at Index; an Index outside 0..High appends instead. DeleteValueFromVector
// removes element Index; an Index outside 0..High is ignored. None of them raises.

void AppendValue2Vector(TKorFloatVector& V, Float Value);
void AppendValue2Vector(TKorDoubleVector& V, Double Value);
void AppendValue2Vector(TKorSingleVector& V, Single Value);
void AppendValue2Vector(TKorInt64Vector& V, Int64 Value);
void AppendValue2Vector(TKorLWordVector& V, Cardinal Value);
void AppendValue2Vector(TKorLIntVector& V, Integer Value);

void AddValue2Vector(TKorFloatVector& V, Float Value, Integer Index);
void AddValue2Vector(TKorDoubleVector& V, Double Value, Integer Index);
void AddValue2Vector(TKorSingleVector& V, Single Value, Integer Index);
void AddValue2Vector(TKorInt64Vector& V, Int64 Value, Integer Index);
void AddValue2Vector(TKorLWordVector& V, Cardinal Value, Integer Index);
void AddValue2Vector(TKorLIntVector& V, Integer Value, Integer Index);

void DeleteValueFromVector(TKorFloatVector& V, Integer Index);
void DeleteValueFromVector(TKorDoubleVector& V, Integer Index);
void DeleteValueFromVector(TKorSingleVector& V, Integer Index);
void DeleteValueFromVector(TKorInt64Vector& V, Integer Index);
void DeleteValueFromVector(TKorLWordVector& V, Integer Index);
void DeleteValueFromVector(TKorLIntVector& V, Integer Index);

// ---- Filling: the elements are rewritten where they lie, seen by every sharer -------

void FillVector(const TKorFloatVector& V, Float Value);
void FillVector(const TKorDoubleVector& V, Double Value);
void FillVector(const TKorSingleVector& V, Single Value);
void FillVector(const TKorInt64Vector& V, Int64 Value);
void FillVector(const TKorLWordVector& V, Cardinal Value);
void FillVector(const TKorLIntVector& V, Integer Value);
void FillVector(const TKorWordVector& V, Word Value);
void FillVector(const TKorSmallIntVector& V, SmallInt Value);
void FillVector(const TKorByteVector& V, Byte Value);
void FillVector(const TKorSIntVector& V, ShortInt Value);

void ClearVector(const TKorFloatVector& V);
void ClearVector(const TKorDoubleVector& V);
void ClearVector(const TKorSingleVector& V);
void ClearVector(const TKorInt64Vector& V);
void ClearVector(const TKorLWordVector& V);
void ClearVector(const TKorLIntVector& V);
void ClearVector(const TKorWordVector& V);
void ClearVector(const TKorSmallIntVector& V);
void ClearVector(const TKorByteVector& V);
void ClearVector(const TKorSIntVector& V);

// ---- Copies and conversions: each returns a new vector ------------------------------

TKorFloatVector CopyVector(const TKorFloatVector& V);
TKorDoubleVector CopyVector(const TKorDoubleVector& V);
TKorSingleVector CopyVector(const TKorSingleVector& V);
TKorInt64Vector CopyVector(const TKorInt64Vector& V);
TKorLWordVector CopyVector(const TKorLWordVector& V);
TKorLIntVector CopyVector(const TKorLIntVector& V);
TKorWordVector CopyVector(const TKorWordVector& V);
TKorSmallIntVector CopyVector(const TKorSmallIntVector& V);
TKorByteVector CopyVector(const TKorByteVector& V);
TKorSIntVector CopyVector(const TKorSIntVector& V);

// A raw array is given as its first element A and the index of its last element
// AHigh (count - 1); the result has AHigh + 1 elements (none when AHigh < 0).
TKorFloatVector Array2FloatVector(const Float* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Double* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Single* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Int64* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Cardinal* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Integer* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Word* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const SmallInt* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const Byte* A, Integer AHigh);
TKorFloatVector Array2FloatVector(const ShortInt* A, Integer AHigh);

TKorInt64Vector Array2Int64Vector(const Int64* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Cardinal* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Integer* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Word* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const SmallInt* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Byte* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const ShortInt* A, Integer AHigh);

TKorLIntVector Array2LIntVector(const Integer* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const Word* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const SmallInt* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const Byte* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const ShortInt* A, Integer AHigh);

TKorFloatVector Vector2FloatVector(const TKorFloatVector& V);
TKorFloatVector Vector2FloatVector(const TKorDoubleVector& V);
TKorFloatVector Vector2FloatVector(const TKorSingleVector& V);
TKorFloatVector Vector2FloatVector(const TKorInt64Vector& V);
TKorFloatVector Vector2FloatVector(const TKorLWordVector& V);
TKorFloatVector Vector2FloatVector(const TKorLIntVector& V);
TKorFloatVector Vector2FloatVector(const TKorWordVector& V);
TKorFloatVector Vector2FloatVector(const TKorSmallIntVector& V);
TKorFloatVector Vector2FloatVector(const TKorByteVector& V);
TKorFloatVector Vector2FloatVector(const TKorSIntVector& V);

TKorInt64Vector Vector2Int64Vector(const TKorInt64Vector& V);
TKorInt64Vector Vector2Int64Vector(const TKorLWordVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorLIntVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorWordVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorSmallIntVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorByteVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorSIntVector& V);

TKorLIntVector Vector2LIntVector(const TKorLIntVector& V);
TKorLIntVector Vector2LIntVector(const TKorWordVector& V);
TKorLIntVector Vector2LIntVector(const TKorSmallIntVector& V);
TKorLIntVector Vector2LIntVector(const TKorByteVector& V);
TKorLIntVector Vector2LIntVector(const TKorSIntVector& V);

// ---- Aggregates ---------------------------------------------------------------------
// All raise rsVectorIsEmpty on an empty vector. Floating members add in Float. Integer
// members widen to Int64 and add with 64-bit wrap-around; their squares are first
// formed in a narrow width (16 bits for Byte, ShortInt, Word, SmallInt; 32 bits for
// Cardinal, Integer and for the low half of an Int64 element) and only then widened.

Float SumVector(const TKorFloatVector& V);
Float SumVector(const TKorDoubleVector& V);
Float SumVector(const TKorSingleVector& V);
Int64 SumVector(const TKorInt64Vector& V);
Int64 SumVector(const TKorLWordVector& V);
Int64 SumVector(const TKorLIntVector& V);
Int64 SumVector(const TKorWordVector& V);
Int64 SumVector(const TKorSmallIntVector& V);
Int64 SumVector(const TKorByteVector& V);
Int64 SumVector(const TKorSIntVector& V);

Float SumSqVector(const TKorFloatVector& V);
Float SumSqVector(const TKorDoubleVector& V);
Float SumSqVector(const TKorSingleVector& V);
Int64 SumSqVector(const TKorInt64Vector& V);
Int64 SumSqVector(const TKorLWordVector& V);
Int64 SumSqVector(const TKorLIntVector& V);
Int64 SumSqVector(const TKorWordVector& V);
Int64 SumSqVector(const TKorSmallIntVector& V);
Int64 SumSqVector(const TKorByteVector& V);
Int64 SumSqVector(const TKorSIntVector& V);

// Sum of (V[i] - Value)^2. With a value of the element type the difference wraps in
// the element's width and is squared as in SumSqVector; the integer vectors with a
// Float value work entirely in Float.
Float SumSqDiffVector(const TKorFloatVector& V, Float Value);
Float SumSqDiffVector(const TKorDoubleVector& V, Double Value);
Float SumSqDiffVector(const TKorSingleVector& V, Single Value);
Int64 SumSqDiffVector(const TKorInt64Vector& V, Int64 Value);
Int64 SumSqDiffVector(const TKorLWordVector& V, Cardinal Value);
Int64 SumSqDiffVector(const TKorLIntVector& V, Integer Value);
Float SumSqDiffVector(const TKorInt64Vector& V, Float Value);
Float SumSqDiffVector(const TKorLWordVector& V, Float Value);
Float SumSqDiffVector(const TKorLIntVector& V, Float Value);

Float MaxVector(const TKorFloatVector& V);
Double MaxVector(const TKorDoubleVector& V);
Single MaxVector(const TKorSingleVector& V);
Int64 MaxVector(const TKorInt64Vector& V);
Cardinal MaxVector(const TKorLWordVector& V);
Integer MaxVector(const TKorLIntVector& V);
Word MaxVector(const TKorWordVector& V);
SmallInt MaxVector(const TKorSmallIntVector& V);
Byte MaxVector(const TKorByteVector& V);
ShortInt MaxVector(const TKorSIntVector& V);

Float MinVector(const TKorFloatVector& V);
Double MinVector(const TKorDoubleVector& V);
Single MinVector(const TKorSingleVector& V);
Int64 MinVector(const TKorInt64Vector& V);
Cardinal MinVector(const TKorLWordVector& V);
Integer MinVector(const TKorLIntVector& V);
Word MinVector(const TKorWordVector& V);
SmallInt MinVector(const TKorSmallIntVector& V);
Byte MinVector(const TKorByteVector& V);
ShortInt MinVector(const TKorSIntVector& V);

// One pass: both extremes, the index of the first occurrence of each, and whether
// each occurs once. Comparisons are exact.
void MinMaxVector(const TKorFloatVector& V, Float& MinValue, Float& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorDoubleVector& V, Double& MinValue, Double& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorSingleVector& V, Single& MinValue, Single& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorInt64Vector& V, Int64& MinValue, Int64& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorLWordVector& V, Cardinal& MinValue, Cardinal& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorLIntVector& V, Integer& MinValue, Integer& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorWordVector& V, Word& MinValue, Word& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorSmallIntVector& V, SmallInt& MinValue, SmallInt& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorByteVector& V, Byte& MinValue, Byte& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorSIntVector& V, ShortInt& MinValue, ShortInt& MaxValue, Cardinal& MinIndex,
                  Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique);

// Sign tests. The floating members use the tolerant FloatIsZero, FloatIsPositive and
// FloatIsNegative; the Int64 member compares exactly, except VectorNonZero, which
// applies FloatIsZero to each element as a Float.
Boolean VectorZero(const TKorFloatVector& V);
Boolean VectorZero(const TKorDoubleVector& V);
Boolean VectorZero(const TKorSingleVector& V);
Boolean VectorZero(const TKorInt64Vector& V);

Boolean VectorNonZero(const TKorFloatVector& V);
Boolean VectorNonZero(const TKorDoubleVector& V);
Boolean VectorNonZero(const TKorSingleVector& V);
Boolean VectorNonZero(const TKorInt64Vector& V);

Boolean VectorPositive(const TKorFloatVector& V);
Boolean VectorPositive(const TKorDoubleVector& V);
Boolean VectorPositive(const TKorSingleVector& V);
Boolean VectorPositive(const TKorInt64Vector& V);

Boolean VectorNonNegative(const TKorFloatVector& V);
Boolean VectorNonNegative(const TKorDoubleVector& V);
Boolean VectorNonNegative(const TKorSingleVector& V);
Boolean VectorNonNegative(const TKorInt64Vector& V);

// ---- Sorting and ranking ------------------------------------------------------------
// QSortVector sorts in place with exact comparisons (not stable). A rank is a 0-based
// position in V sorted in the requested direction; equal values share the lowest
// position of their value, equality being SameFloat of the element's width for the
// floating members and exact for the integer ones. -1 means no rank.

void QSortVector(TKorFloatVector& V, Boolean Ascending);
void QSortVector(TKorDoubleVector& V, Boolean Ascending);
void QSortVector(TKorSingleVector& V, Boolean Ascending);
void QSortVector(TKorInt64Vector& V, Boolean Ascending);
void QSortVector(TKorLWordVector& V, Boolean Ascending);
void QSortVector(TKorLIntVector& V, Boolean Ascending);
void QSortVector(TKorWordVector& V, Boolean Ascending);
void QSortVector(TKorSmallIntVector& V, Boolean Ascending);
void QSortVector(TKorByteVector& V, Boolean Ascending);
void QSortVector(TKorSIntVector& V, Boolean Ascending);

TKorFloatVector ReverseVector(const TKorFloatVector& V);
TKorDoubleVector ReverseVector(const TKorDoubleVector& V);
TKorSingleVector ReverseVector(const TKorSingleVector& V);
TKorInt64Vector ReverseVector(const TKorInt64Vector& V);
TKorLWordVector ReverseVector(const TKorLWordVector& V);
TKorLIntVector ReverseVector(const TKorLIntVector& V);
TKorWordVector ReverseVector(const TKorWordVector& V);
TKorSmallIntVector ReverseVector(const TKorSmallIntVector& V);
TKorByteVector ReverseVector(const TKorByteVector& V);
TKorSIntVector ReverseVector(const TKorSIntVector& V);

Integer Vector2Rank(const TKorFloatVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorDoubleVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorSingleVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorInt64Vector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorLWordVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorLIntVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorWordVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorSmallIntVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorByteVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorSIntVector& V, Cardinal Index, Boolean Ascending);

Integer Vector2RankValue(const TKorFloatVector& V, Float Value, Boolean Ascending);
Integer Vector2RankValue(const TKorDoubleVector& V, Double Value, Boolean Ascending);
Integer Vector2RankValue(const TKorSingleVector& V, Single Value, Boolean Ascending);
Integer Vector2RankValue(const TKorInt64Vector& V, Int64 Value, Boolean Ascending);
Integer Vector2RankValue(const TKorLWordVector& V, Cardinal Value, Boolean Ascending);
Integer Vector2RankValue(const TKorLIntVector& V, Integer Value, Boolean Ascending);
Integer Vector2RankValue(const TKorWordVector& V, Word Value, Boolean Ascending);
Integer Vector2RankValue(const TKorSmallIntVector& V, SmallInt Value, Boolean Ascending);
Integer Vector2RankValue(const TKorByteVector& V, Byte Value, Boolean Ascending);
Integer Vector2RankValue(const TKorSIntVector& V, ShortInt Value, Boolean Ascending);

TKorLIntVector Vector2RankVector(const TKorFloatVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorDoubleVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorSingleVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorInt64Vector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorLWordVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorLIntVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorWordVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorSmallIntVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorByteVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorSIntVector& V, Boolean Ascending);

// ---- Element-wise pairs -------------------------------------------------------------
// The lengths must agree (rsSameDimensions); two empty vectors are accepted. Integer
// members wrap on overflow.

TKorFloatVector AddVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
TKorDoubleVector AddVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
TKorSingleVector AddVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
TKorInt64Vector AddVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
TKorLIntVector AddVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);

TKorFloatVector SubtractVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
TKorDoubleVector SubtractVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
TKorSingleVector SubtractVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
TKorInt64Vector SubtractVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
TKorLIntVector SubtractVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);

void AddToVector(TKorFloatVector& V1, const TKorFloatVector& V2);
void AddToVector(TKorDoubleVector& V1, const TKorDoubleVector& V2);
void AddToVector(TKorSingleVector& V1, const TKorSingleVector& V2);
void AddToVector(TKorInt64Vector& V1, const TKorInt64Vector& V2);
void AddToVector(TKorLIntVector& V1, const TKorLIntVector& V2);

void SubtractFromVector(TKorFloatVector& V1, const TKorFloatVector& V2);
void SubtractFromVector(TKorDoubleVector& V1, const TKorDoubleVector& V2);
void SubtractFromVector(TKorSingleVector& V1, const TKorSingleVector& V2);
void SubtractFromVector(TKorInt64Vector& V1, const TKorInt64Vector& V2);
void SubtractFromVector(TKorLIntVector& V1, const TKorLIntVector& V2);

// ---- Products, distances, magnitude and angle ---------------------------------------
// DotProdVectors and SumSqDiffVectors check the lengths (rsSameDimensions) before
// emptiness (rsVectorIsEmpty). The Cardinal and Integer dot products multiply the
// elements as signed 32-bit values into a full 64-bit product; the integer distances
// square the low 32 bits of the 64-bit difference and widen that square as signed.

Float DotProdVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float DotProdVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float DotProdVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Int64 DotProdVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Int64 DotProdVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Int64 DotProdVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);

Float SumSqDiffVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float SumSqDiffVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float SumSqDiffVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Int64 SumSqDiffVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Int64 SumSqDiffVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Int64 SumSqDiffVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);

// The square root of the sum of the squares, every element taken as a Float; 0 for an
// empty vector.
Float VectorMagnitude(const TKorFloatVector& V);
Float VectorMagnitude(const TKorDoubleVector& V);
Float VectorMagnitude(const TKorSingleVector& V);
Float VectorMagnitude(const TKorInt64Vector& V);
Float VectorMagnitude(const TKorLWordVector& V);
Float VectorMagnitude(const TKorLIntVector& V);
Float VectorMagnitude(const TKorWordVector& V);
Float VectorMagnitude(const TKorSmallIntVector& V);
Float VectorMagnitude(const TKorByteVector& V);
Float VectorMagnitude(const TKorSIntVector& V);

// The angle in radians; rsMagZero unless both magnitudes are positive.
Float AngleBetweenVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float AngleBetweenVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float AngleBetweenVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Float AngleBetweenVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Float AngleBetweenVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Float AngleBetweenVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);

// ---- In-place transforms: the whole vector is validated before the first write -----

void SquareVector(TKorFloatVector& V);
void SquareVector(TKorDoubleVector& V);
void SquareVector(TKorSingleVector& V);
void SquareVector(TKorInt64Vector& V);
void SquareVector(TKorLWordVector& V);
void SquareVector(TKorLIntVector& V);

void SqrtVector(TKorFloatVector& V);
void SqrtVector(TKorDoubleVector& V);
void SqrtVector(TKorSingleVector& V);

void InvVector(TKorFloatVector& V);
void InvVector(TKorDoubleVector& V);
void InvVector(TKorSingleVector& V);

void LnVector(TKorFloatVector& V);
void LnVector(TKorDoubleVector& V);
void LnVector(TKorSingleVector& V);

void Log10Vector(TKorFloatVector& V);
void Log10Vector(TKorDoubleVector& V);
void Log10Vector(TKorSingleVector& V);

void Log2Vector(TKorFloatVector& V);
void Log2Vector(TKorDoubleVector& V);
void Log2Vector(TKorSingleVector& V);

// V[i] becomes A * V[i] + B in the element type (Int64 wraps).
void LinearTransformVector(TKorFloatVector& V, Float A, Float B);
void LinearTransformVector(TKorDoubleVector& V, Double A, Double B);
void LinearTransformVector(TKorSingleVector& V, Single A, Single B);
void LinearTransformVector(TKorInt64Vector& V, Int64 A, Int64 B);

// V[i] becomes F(V[i]). If F raises, the elements already rewritten stay rewritten.
using TKorFloatElementFunc = Float (*)(Float);
using TKorDoubleElementFunc = Double (*)(Double);
using TKorSingleElementFunc = Single (*)(Single);
void TransformVector(TKorFloatVector& V, TKorFloatElementFunc F);
void TransformVector(TKorDoubleVector& V, TKorDoubleElementFunc F);
void TransformVector(TKorSingleVector& V, TKorSingleElementFunc F);

// ---- Moving average and polynomial --------------------------------------------------

// Averages of the K-element windows, each stored at position P of its window (P is
// clamped to K - 1); positions no window reaches stay 0. K must not exceed the length.
TKorFloatVector MovingAverage(const TKorFloatVector& V, Cardinal K, Cardinal P);
TKorDoubleVector MovingAverage(const TKorDoubleVector& V, Cardinal K, Cardinal P);
TKorSingleVector MovingAverage(const TKorSingleVector& V, Cardinal K, Cardinal P);

// Sum of C[i] * X^i by running powers in increasing order; 0 for an empty C.
Float KorPolynomial(const TKorFloatVector& C, Float X);

}  // namespace KornumVector
