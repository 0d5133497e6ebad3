/// @file
/// Typed vector routines of the numeric element types: construction and resizing, copies
/// and conversions, aggregates and sign tests, sorting and ranking, element-wise
/// arithmetic, geometry, in-place transforms, the moving average and polynomial
/// evaluation. Every family is a set of plain overloads, one per element type it
/// supports; a combination that is not declared here does not exist. Floating results
/// are `Float`, integer sums `Int64`. Failures raise Platform::EMathError with the text
/// of a Kornum_RS_Math identifier, before anything is written unless a routine says
/// otherwise. The currency element types have their own overloads in KornumFinVector.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

/// The vector module: the routines over the ten numeric vector types, from
/// `TKorFloatVector` to `TKorSIntVector` (see @ref page_vectors).
KORNUM_EXPORT_BEGIN
namespace KornumVector {

using namespace Kornumglobals;

// ---- Construction and resizing ------------------------------------------------------

/// @name AppendValue2Vector
/// @{

/// Grows `V` by one element and stores `Value` last. A `V` that shares its storage gets
/// a private copy first, so the other holders do not see the new element. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
void AppendValue2Vector(TKorFloatVector& V, Float Value);
void AppendValue2Vector(TKorDoubleVector& V, Double Value);
void AppendValue2Vector(TKorSingleVector& V, Single Value);
void AppendValue2Vector(TKorInt64Vector& V, Int64 Value);
void AppendValue2Vector(TKorLWordVector& V, Cardinal Value);
void AppendValue2Vector(TKorLIntVector& V, Integer Value);
/// @}

/// @name AddValue2Vector
/// @{

/// Inserts `Value` at position `Index`, moving the elements from `Index` on up by one.
/// An `Index` below 0 or above `V.High()` appends instead (so an empty `V` receives
/// `Value` as its only element). A `V` that shares its storage gets a private copy first.
/// Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
void AddValue2Vector(TKorFloatVector& V, Float Value, Integer Index);
void AddValue2Vector(TKorDoubleVector& V, Double Value, Integer Index);
void AddValue2Vector(TKorSingleVector& V, Single Value, Integer Index);
void AddValue2Vector(TKorInt64Vector& V, Int64 Value, Integer Index);
void AddValue2Vector(TKorLWordVector& V, Cardinal Value, Integer Index);
void AddValue2Vector(TKorLIntVector& V, Integer Value, Integer Index);
/// @}

/// @name DeleteValueFromVector
/// @{

/// Removes element `Index`, moving the later elements down by one; an `Index` below 0
/// or above `V.High()` is ignored. Never raises. The elements are moved down in the storage
/// `V` refers to before `V` is shortened: other holders of a shared storage see the
/// moved elements at their old length (the last one repeated), and only `V` becomes
/// shorter. Removing the only element empties `V` and leaves the other holders alone.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
void DeleteValueFromVector(TKorFloatVector& V, Integer Index);
void DeleteValueFromVector(TKorDoubleVector& V, Integer Index);
void DeleteValueFromVector(TKorSingleVector& V, Integer Index);
void DeleteValueFromVector(TKorInt64Vector& V, Integer Index);
void DeleteValueFromVector(TKorLWordVector& V, Integer Index);
void DeleteValueFromVector(TKorLIntVector& V, Integer Index);
/// @}

// ---- Filling: the elements are rewritten where they lie, seen by every sharer -------

/// @name FillVector
/// @{

/// Stores `Value` in every element. The elements are rewritten where they lie (the
/// handle is `const`, the storage is not), so every holder of the storage sees the
/// change. An empty `V` is left alone. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
/// | TKorWordVector | Word |
/// | TKorSmallIntVector | SmallInt |
/// | TKorByteVector | Byte |
/// | TKorSIntVector | ShortInt |
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
/// @}

/// @name ClearVector
/// @{

/// Sets every element to zero where it lies, as `FillVector` with 0: every holder of
/// the storage sees the change. Never raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

// ---- Copies and conversions: each returns a new vector ------------------------------

/// @name CopyVector
/// @{

/// A new vector with storage of its own holding `V`'s elements (empty for an empty
/// `V`); unlike a copied handle, writes to it are not seen through `V`. Never raises.
///
/// | Vector and result |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name Array2FloatVector
/// @{

/// A new `TKorFloatVector` from a raw array. `A` points to the first element and `AHigh`
/// is the index of the last one (count - 1); the result has `AHigh + 1` elements, none
/// (and `A` is not read) when `AHigh < 0`. Every element converts to Float exactly.
/// Never raises.
///
/// | Array element |
/// |---|
/// | Float, Double, Single |
/// | Int64, Cardinal, Integer, Word, SmallInt, Byte, ShortInt |
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
/// @}

/// @name Array2Int64Vector
/// @{

/// A new `TKorInt64Vector` from a raw array given as in `Array2FloatVector` (`AHigh + 1`
/// elements, none when `AHigh < 0`). Unsigned elements are zero-extended, signed ones
/// sign-extended, so every value is kept. Never raises.
///
/// | Array element |
/// |---|
/// | Int64, Cardinal, Integer, Word, SmallInt, Byte, ShortInt |
TKorInt64Vector Array2Int64Vector(const Int64* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Cardinal* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Integer* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Word* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const SmallInt* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const Byte* A, Integer AHigh);
TKorInt64Vector Array2Int64Vector(const ShortInt* A, Integer AHigh);
/// @}

/// @name Array2LIntVector
/// @{

/// A new `TKorLIntVector` from a raw array given as in `Array2FloatVector` (`AHigh + 1`
/// elements, none when `AHigh < 0`). Only the types whose every value fits 32 signed
/// bits are accepted, so every value is kept. Never raises.
///
/// | Array element |
/// |---|
/// | Integer, Word, SmallInt, Byte, ShortInt |
TKorLIntVector Array2LIntVector(const Integer* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const Word* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const SmallInt* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const Byte* A, Integer AHigh);
TKorLIntVector Array2LIntVector(const ShortInt* A, Integer AHigh);
/// @}

/// @name Vector2FloatVector
/// @{

/// A new `TKorFloatVector` holding every element of `V` converted exactly to Float (a
/// `TKorFloatVector` is copied into storage of its own). Never raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name Vector2Int64Vector
/// @{

/// A new `TKorInt64Vector` holding every element of `V`, unsigned ones zero-extended and
/// signed ones sign-extended (a `TKorInt64Vector` is copied into storage of its own).
/// Never raises.
///
/// | Vector |
/// |---|
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
TKorInt64Vector Vector2Int64Vector(const TKorInt64Vector& V);
TKorInt64Vector Vector2Int64Vector(const TKorLWordVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorLIntVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorWordVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorSmallIntVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorByteVector& V);
TKorInt64Vector Vector2Int64Vector(const TKorSIntVector& V);
/// @}

/// @name Vector2LIntVector
/// @{

/// A new `TKorLIntVector` holding every element of `V` by value (a `TKorLIntVector` is
/// copied into storage of its own). Never raises.
///
/// | Vector |
/// |---|
/// | TKorLIntVector, TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
TKorLIntVector Vector2LIntVector(const TKorLIntVector& V);
TKorLIntVector Vector2LIntVector(const TKorWordVector& V);
TKorLIntVector Vector2LIntVector(const TKorSmallIntVector& V);
TKorLIntVector Vector2LIntVector(const TKorByteVector& V);
TKorLIntVector Vector2LIntVector(const TKorSIntVector& V);
/// @}

// ---- Aggregates ---------------------------------------------------------------------

/// @name SumVector
/// @{

/// The sum of the elements, added in index order. The floating members add in Float.
/// The integer members widen each element to Int64 (zero extension for the unsigned
/// types, sign extension for the signed ones) and add with 64-bit wrap-around.
/// Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector | Int64 |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector | Int64 |
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
/// @}

/// @name SumSqVector
/// @{

/// The sum of the squares of the elements, added in index order. The floating members
/// square and add in Float. The integer members form each square in a narrow width,
/// keeping only its low bits, widen that to Int64 with the width's signedness and add
/// with 64-bit wrap-around: so a Byte of 182 or more contributes a negative square, and
/// a Word above 255 loses the square's high bits. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result | Each square kept in |
/// |---|---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float | Float |
/// | TKorByteVector, TKorSIntVector, TKorSmallIntVector | Int64 | 16 bits, signed |
/// | TKorWordVector | Int64 | 16 bits, unsigned |
/// | TKorLWordVector | Int64 | 32 bits, unsigned |
/// | TKorLIntVector | Int64 | 32 bits, signed |
/// | TKorInt64Vector | Int64 | 32 bits, signed, squaring the element's low 32 bits |
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
/// @}

/// @name SumSqDiffVector
/// @{

/// The sum of `(V[i] - Value)^2`, added in index order. With a `Value` of the element
/// type the difference is formed in the element type (the integer members wrap in the
/// element's width) and squared as in `SumSqVector`; the integer vectors with a Float
/// `Value` work entirely in Float. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Value | Result |
/// |---|---|---|
/// | TKorFloatVector | Float | Float |
/// | TKorDoubleVector | Double | Float |
/// | TKorSingleVector | Single | Float |
/// | TKorInt64Vector | Int64 | Int64 |
/// | TKorLWordVector | Cardinal | Int64 |
/// | TKorLIntVector | Integer | Int64 |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector | Float | Float |
Float SumSqDiffVector(const TKorFloatVector& V, Float Value);
Float SumSqDiffVector(const TKorDoubleVector& V, Double Value);
Float SumSqDiffVector(const TKorSingleVector& V, Single Value);
Int64 SumSqDiffVector(const TKorInt64Vector& V, Int64 Value);
Int64 SumSqDiffVector(const TKorLWordVector& V, Cardinal Value);
Int64 SumSqDiffVector(const TKorLIntVector& V, Integer Value);
Float SumSqDiffVector(const TKorInt64Vector& V, Float Value);
Float SumSqDiffVector(const TKorLWordVector& V, Float Value);
Float SumSqDiffVector(const TKorLIntVector& V, Float Value);
/// @}

/// @name MaxVector
/// @{

/// The largest element by exact comparison, in the element type. Failures: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
/// | TKorWordVector | Word |
/// | TKorSmallIntVector | SmallInt |
/// | TKorByteVector | Byte |
/// | TKorSIntVector | ShortInt |
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
/// @}

/// @name MinVector
/// @{

/// The smallest element by exact comparison, in the element type. Failures: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
/// | TKorWordVector | Word |
/// | TKorSmallIntVector | SmallInt |
/// | TKorByteVector | Byte |
/// | TKorSIntVector | ShortInt |
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
/// @}

/// @name MinMaxVector
/// @{

/// Both extremes in one pass: `MinValue` and `MaxValue`, the index of the first
/// occurrence of each (`MinIndex`, `MaxIndex`), and whether each occurs only once
/// (`MinUnique`, `MaxUnique`). Comparisons are exact. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty), and the outputs are then left
/// as they were.
///
/// | Vector | MinValue, MaxValue |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
/// | TKorWordVector | Word |
/// | TKorSmallIntVector | SmallInt |
/// | TKorByteVector | Byte |
/// | TKorSIntVector | ShortInt |
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
/// @}

// Sign tests. The floating members use the tolerant tests of Kornummath on each element
// taken as a Float; the Int64 member compares exactly, except in VectorNonZero.

/// @name VectorZero
/// @{

/// Whether every element is zero: within `KorTolerance` of it (Kornummath::FloatIsZero)
/// for the floating members, exactly 0 for the Int64 member. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is zero when |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | `FloatIsZero(x)` |
/// | TKorInt64Vector | `x == 0` |
Boolean VectorZero(const TKorFloatVector& V);
Boolean VectorZero(const TKorDoubleVector& V);
Boolean VectorZero(const TKorSingleVector& V);
Boolean VectorZero(const TKorInt64Vector& V);
/// @}

/// @name VectorNonZero
/// @{

/// Whether no element is zero within `KorTolerance` (Kornummath::FloatIsZero). The
/// Int64 member applies the same tolerant test to each element taken as a Float, so a
/// tolerance of 1 or more counts 1 as zero. Failures: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector |
Boolean VectorNonZero(const TKorFloatVector& V);
Boolean VectorNonZero(const TKorDoubleVector& V);
Boolean VectorNonZero(const TKorSingleVector& V);
Boolean VectorNonZero(const TKorInt64Vector& V);
/// @}

/// @name VectorPositive
/// @{

/// Whether every element is positive: Kornummath::FloatIsPositive (greater than 0 and
/// not zero within `KorTolerance`) for the floating members, exactly greater than 0 for
/// the Int64 member. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is positive when |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | `FloatIsPositive(x)` |
/// | TKorInt64Vector | `x > 0` |
Boolean VectorPositive(const TKorFloatVector& V);
Boolean VectorPositive(const TKorDoubleVector& V);
Boolean VectorPositive(const TKorSingleVector& V);
Boolean VectorPositive(const TKorInt64Vector& V);
/// @}

/// @name VectorNonNegative
/// @{

/// Whether no element is negative: none is Kornummath::FloatIsNegative for the floating
/// members (so a value below 0 but within `KorTolerance` of it passes), none is below 0
/// for the Int64 member. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is negative when |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | `FloatIsNegative(x)` |
/// | TKorInt64Vector | `x < 0` |
Boolean VectorNonNegative(const TKorFloatVector& V);
Boolean VectorNonNegative(const TKorDoubleVector& V);
Boolean VectorNonNegative(const TKorSingleVector& V);
Boolean VectorNonNegative(const TKorInt64Vector& V);
/// @}

// ---- Sorting and ranking ------------------------------------------------------------
// A rank is a 0-based position in V sorted in the requested direction; equal values
// share the lowest position of their value, equality being SameFloat of the element's
// width for the floating members and exact for the integer ones. -1 means no rank.

/// @name QSortVector
/// @{

/// Sorts `V` in place, ascending when `Ascending` is true, else descending, with exact
/// comparisons. The sort is an iterative quicksort and not stable. It rearranges the
/// storage itself, so every holder of it sees the new order. Never raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name ReverseVector
/// @{

/// A new vector holding `V`'s elements in reverse order (empty for an empty `V`).
/// Never raises.
///
/// | Vector and result |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name Vector2Rank
/// @{

/// The rank of element `Index`: the 0-based position of its value in `V` sorted
/// ascending (`Ascending` true) or descending, equal values sharing the lowest position
/// of their value. Equality is Kornummath::SameFloat of the element's width for the
/// floating members and exact for the integer ones. -1 when `Index` is not an index of
/// `V` (always for an empty `V`) and for a NaN element. `V` is not changed. Never
/// raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name Vector2RankValue
/// @{

/// The rank `Value` has in `V`: the first position of `V` sorted ascending (`Ascending`
/// true) or descending whose element equals `Value`, with the equality of
/// `Vector2Rank`. -1 when no element equals it (always for an empty `V`). `V` is not
/// changed. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
/// | TKorLWordVector | Cardinal |
/// | TKorLIntVector | Integer |
/// | TKorWordVector | Word |
/// | TKorSmallIntVector | SmallInt |
/// | TKorByteVector | Byte |
/// | TKorSIntVector | ShortInt |
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
/// @}

/// @name Vector2RankVector
/// @{

/// The rank of every element, as a new `TKorLIntVector` of `V`'s length (empty for an
/// empty `V`): element `i` is what `Vector2Rank(V, i, Ascending)` returns, computed from
/// one sort. `V` is not changed. Never raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

// ---- Element-wise pairs -------------------------------------------------------------
// The lengths must agree (rsSameDimensions); two empty vectors are accepted. Integer
// members wrap on overflow.

/// @name AddVectors
/// @{

/// A new vector of the sums `V1[i] + V2[i]`, formed in the element type (the integer
/// members wrap on overflow). Two empty vectors give an empty one. Failures: vectors of
/// different lengths raise Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors and result |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector |
TKorFloatVector AddVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
TKorDoubleVector AddVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
TKorSingleVector AddVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
TKorInt64Vector AddVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
TKorLIntVector AddVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

/// @name SubtractVectors
/// @{

/// A new vector of the differences `V1[i] - V2[i]`, formed in the element type (the
/// integer members wrap on overflow). Two empty vectors give an empty one. Failures:
/// vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors and result |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector |
TKorFloatVector SubtractVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
TKorDoubleVector SubtractVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
TKorSingleVector SubtractVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
TKorInt64Vector SubtractVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
TKorLIntVector SubtractVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

/// @name AddToVector
/// @{

/// Adds `V2` to `V1` element by element in place (`V1[i] += V2[i]` in the element type,
/// the integer members wrapping), in `V1`'s storage: every holder of it sees the change.
/// Failures: vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector |
void AddToVector(TKorFloatVector& V1, const TKorFloatVector& V2);
void AddToVector(TKorDoubleVector& V1, const TKorDoubleVector& V2);
void AddToVector(TKorSingleVector& V1, const TKorSingleVector& V2);
void AddToVector(TKorInt64Vector& V1, const TKorInt64Vector& V2);
void AddToVector(TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

/// @name SubtractFromVector
/// @{

/// Subtracts `V2` from `V1` element by element in place (`V1[i] -= V2[i]` in the
/// element type, the integer members wrapping), in `V1`'s storage: every holder of it
/// sees the change. Failures: vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector, TKorInt64Vector, TKorLIntVector |
void SubtractFromVector(TKorFloatVector& V1, const TKorFloatVector& V2);
void SubtractFromVector(TKorDoubleVector& V1, const TKorDoubleVector& V2);
void SubtractFromVector(TKorSingleVector& V1, const TKorSingleVector& V2);
void SubtractFromVector(TKorInt64Vector& V1, const TKorInt64Vector& V2);
void SubtractFromVector(TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

// ---- Products, distances, magnitude and angle ---------------------------------------

/// @name DotProdVectors
/// @{

/// The dot product, the sum of `V1[i] * V2[i]` in index order. The floating members
/// multiply and add in Float. The Int64 member multiplies and adds with 64-bit
/// wrap-around. The Cardinal and Integer members read each element as a signed 32-bit
/// value (a Cardinal of 2^31 or more reads negative), form the full 64-bit product and
/// add with 64-bit wrap-around. Failures, in this order: vectors of different lengths
/// raise Platform::EMathError (Kornum_RS_Math::rsSameDimensions); empty vectors raise
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vectors | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector | Int64 |
Float DotProdVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float DotProdVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float DotProdVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Int64 DotProdVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Int64 DotProdVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Int64 DotProdVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

/// @name SumSqDiffVectors
/// @{

/// The squared distance, the sum of `(V1[i] - V2[i])^2` in index order. The floating
/// members work in Float. The integer members widen both elements to Int64, take the
/// difference with 64-bit wrap-around, square its low 32 bits modulo 2^32, read that
/// square as a signed 32-bit value (the Cardinal member included) and add with 64-bit
/// wrap-around. Failures, in this order: vectors of different lengths raise
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions); empty vectors raise
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vectors | Result |
/// |---|---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector | Float |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector | Int64 |
Float SumSqDiffVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float SumSqDiffVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float SumSqDiffVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Int64 SumSqDiffVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Int64 SumSqDiffVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Int64 SumSqDiffVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

/// @name VectorMagnitude
/// @{

/// The Euclidean length: the square root of the sum of the squares, every element
/// taken as a Float and the sum formed in Float. 0 for an empty vector. Never raises.
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
/// | TKorWordVector, TKorSmallIntVector, TKorByteVector, TKorSIntVector |
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
/// @}

/// @name AngleBetweenVectors
/// @{

/// The angle between the vectors in radians: the arc cosine of `DotProdVectors(V1, V2)`
/// divided by the product of the two `VectorMagnitude`s. The quotient is not clamped to
/// [-1, 1], so for parallel or opposite vectors rounding can carry it just past 1 in
/// magnitude and the result is then NaN. Failures, in this order: unless both
/// magnitudes are positive (an empty or all-zero vector) Platform::EMathError
/// (Kornum_RS_Math::rsMagZero); vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
Float AngleBetweenVectors(const TKorFloatVector& V1, const TKorFloatVector& V2);
Float AngleBetweenVectors(const TKorDoubleVector& V1, const TKorDoubleVector& V2);
Float AngleBetweenVectors(const TKorSingleVector& V1, const TKorSingleVector& V2);
Float AngleBetweenVectors(const TKorInt64Vector& V1, const TKorInt64Vector& V2);
Float AngleBetweenVectors(const TKorLWordVector& V1, const TKorLWordVector& V2);
Float AngleBetweenVectors(const TKorLIntVector& V1, const TKorLIntVector& V2);
/// @}

// ---- In-place transforms: the whole vector is validated before the first write -----
// Each rewrites the elements where they lie, so every holder of the storage sees them.

/// @name SquareVector
/// @{

/// Replaces every element by its square, in place. The floating members multiply in
/// the element type. The integer members store the narrow square of `SumSqVector` back
/// in the element type: Cardinal and Integer keep the low 32 bits of the square, Int64
/// holds the signed 32-bit square of its own low 32 bits. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
/// | TKorInt64Vector, TKorLWordVector, TKorLIntVector |
void SquareVector(TKorFloatVector& V);
void SquareVector(TKorDoubleVector& V);
void SquareVector(TKorSingleVector& V);
void SquareVector(TKorInt64Vector& V);
void SquareVector(TKorLWordVector& V);
void SquareVector(TKorLIntVector& V);
/// @}

/// @name SqrtVector
/// @{

/// Replaces every element by its square root, in place. The check is that of
/// `VectorNonNegative`, so an element below 0 but within `KorTolerance` of it passes
/// and becomes NaN. Failures, in this order, before any element is written: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); an element
/// that is Kornummath::FloatIsNegative raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorNeg).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
void SqrtVector(TKorFloatVector& V);
void SqrtVector(TKorDoubleVector& V);
void SqrtVector(TKorSingleVector& V);
/// @}

/// @name InvVector
/// @{

/// Replaces every element `x` by its reciprocal `1 / x`, in place, in the element type.
/// Failures, in this order, before any element is written: an empty vector raises
/// Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); an element that is zero
/// within `KorTolerance` (Kornummath::FloatIsZero) raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorZero).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
void InvVector(TKorFloatVector& V);
void InvVector(TKorDoubleVector& V);
void InvVector(TKorSingleVector& V);
/// @}

/// @name LnVector
/// @{

/// Replaces every element by its natural logarithm, in place, computed in Float and
/// stored in the element type. Failures, in this order, before any element is written:
/// an empty vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); an
/// element that is not Kornummath::FloatIsPositive raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorNotPos).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
void LnVector(TKorFloatVector& V);
void LnVector(TKorDoubleVector& V);
void LnVector(TKorSingleVector& V);
/// @}

/// @name Log10Vector
/// @{

/// Replaces every element by its base-10 logarithm (Kornummath::KorLog10), in place,
/// computed in Float and stored in the element type. Failures, in this order, before
/// any element is written: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); an element that is not
/// Kornummath::FloatIsPositive raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorNotPos).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
void Log10Vector(TKorFloatVector& V);
void Log10Vector(TKorDoubleVector& V);
void Log10Vector(TKorSingleVector& V);
/// @}

/// @name Log2Vector
/// @{

/// Replaces every element by its base-2 logarithm (Kornummath::KorLog2), in place,
/// computed in Float and stored in the element type. Failures, in this order, before
/// any element is written: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); an element that is not
/// Kornummath::FloatIsPositive raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorNotPos).
///
/// | Vector |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
void Log2Vector(TKorFloatVector& V);
void Log2Vector(TKorDoubleVector& V);
void Log2Vector(TKorSingleVector& V);
/// @}

/// @name LinearTransformVector
/// @{

/// Replaces every element `x` by `A * x + B`, in place, in the element type (the Int64
/// member wraps on overflow). Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | A, B |
/// |---|---|
/// | TKorFloatVector | Float |
/// | TKorDoubleVector | Double |
/// | TKorSingleVector | Single |
/// | TKorInt64Vector | Int64 |
void LinearTransformVector(TKorFloatVector& V, Float A, Float B);
void LinearTransformVector(TKorDoubleVector& V, Double A, Double B);
void LinearTransformVector(TKorSingleVector& V, Single A, Single B);
void LinearTransformVector(TKorInt64Vector& V, Int64 A, Int64 B);
/// @}

/// A function of one Float, as `TransformVector` applies it to a `TKorFloatVector`.
using TKorFloatElementFunc = Float (*)(Float);
/// A function of one Double, as `TransformVector` applies it to a `TKorDoubleVector`.
using TKorDoubleElementFunc = Double (*)(Double);
/// A function of one Single, as `TransformVector` applies it to a `TKorSingleVector`.
using TKorSingleElementFunc = Single (*)(Single);

/// @name TransformVector
/// @{

/// Replaces every element `x` by `F(x)`, in place, from index 0 upwards. If `F` raises,
/// the exception passes to the caller and the elements already rewritten keep their
/// new values. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | F |
/// |---|---|
/// | TKorFloatVector | TKorFloatElementFunc |
/// | TKorDoubleVector | TKorDoubleElementFunc |
/// | TKorSingleVector | TKorSingleElementFunc |
void TransformVector(TKorFloatVector& V, TKorFloatElementFunc F);
void TransformVector(TKorDoubleVector& V, TKorDoubleElementFunc F);
void TransformVector(TKorSingleVector& V, TKorSingleElementFunc F);
/// @}

// ---- Moving average and polynomial --------------------------------------------------

/// @name MovingAverage
/// @{

/// The moving average over windows of `K` consecutive elements, as a new vector of
/// `V`'s length. The mean of the window that starts at position `c` (summed in Float)
/// is stored at position `c + P`, for every `c` from 0 to `V.Length() - K`; a `P`
/// beyond `K - 1` is taken as `K - 1`. Positions no window reaches stay 0, and a `K`
/// greater than `V`'s length gives all zeros. Failures, in this order: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty); a `K` of 0 raises
/// Platform::EMathError (Kornum_RS_Math::rsValueNotZero).
///
/// | Vector and result |
/// |---|
/// | TKorFloatVector, TKorDoubleVector, TKorSingleVector |
TKorFloatVector MovingAverage(const TKorFloatVector& V, Cardinal K, Cardinal P);
TKorDoubleVector MovingAverage(const TKorDoubleVector& V, Cardinal K, Cardinal P);
TKorSingleVector MovingAverage(const TKorSingleVector& V, Cardinal K, Cardinal P);
/// @}

/// The polynomial with coefficients `C` at `X`: `C[0] + C[1] X + C[2] X^2 + ...`, the
/// powers of `X` formed by running multiplication and the terms added in increasing
/// order. 0 for an empty `C`. Never raises.
Float KorPolynomial(const TKorFloatVector& C, Float X);

}  // namespace KornumVector
KORNUM_EXPORT_END
