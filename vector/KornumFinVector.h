/// @file
/// The vector routines of the three currency element types: `KorCurrency` (an amount in
/// hundredths, 32 bits), `KorLongCurrency` (millionths, 64 bits) and `Currency`
/// (ten-thousandths, 64 bits). `TKorCurrVector` and `TKorLongCurrVector` are the same
/// types as the 32- and 64-bit integer vectors; these overloads, in their own namespace,
/// read the elements as amounts. Each family behaves as its numeric namesake in
/// KornumVector (checks, messages, sharing) except where its documentation here says
/// otherwise: the sums keep the element type, the ranking compares amounts, the linear
/// transform works on amounts, and the conversions raise Platform::ERangeError for a
/// value that does not fit.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

/// The currency vector module: the vector routines of `TKorCurrVector`,
/// `TKorLongCurrVector` and `TKorCurrencyVector`, and the conversions between them
/// (see @ref page_vectors).
KORNUM_EXPORT_BEGIN
namespace KornumFinVector {

using namespace Kornumglobals;

// ---- Construction and resizing --------------------------------------------------------

/// @name AppendValue2Vector
/// @{

/// Grows `V` by one element and stores `Value` last, as KornumVector::AppendValue2Vector
/// (a shared `V` gets a private copy first). Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
void AppendValue2Vector(TKorCurrVector& V, KorCurrency Value);
void AppendValue2Vector(TKorLongCurrVector& V, KorLongCurrency Value);
void AppendValue2Vector(TKorCurrencyVector& V, Currency Value);
/// @}

/// @name AddValue2Vector
/// @{

/// Inserts `Value` at position `Index`, as KornumVector::AddValue2Vector: an `Index`
/// below 0 or above `V.High()` appends instead. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
void AddValue2Vector(TKorCurrVector& V, KorCurrency Value, Integer Index);
void AddValue2Vector(TKorLongCurrVector& V, KorLongCurrency Value, Integer Index);
void AddValue2Vector(TKorCurrencyVector& V, Currency Value, Integer Index);
/// @}

/// @name DeleteValueFromVector
/// @{

/// Removes element `Index`, as KornumVector::DeleteValueFromVector: an `Index` below 0
/// or above `V.High()` is ignored, and other holders of a shared storage see the later
/// elements moved down while only `V` becomes shorter. Never raises.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void DeleteValueFromVector(TKorCurrVector& V, Integer Index);
void DeleteValueFromVector(TKorLongCurrVector& V, Integer Index);
void DeleteValueFromVector(TKorCurrencyVector& V, Integer Index);
/// @}

/// @name FillVector
/// @{

/// Stores `Value` in every element where it lies, so every holder of the storage sees
/// the change. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
void FillVector(const TKorCurrVector& V, KorCurrency Value);
void FillVector(const TKorLongCurrVector& V, KorLongCurrency Value);
void FillVector(const TKorCurrencyVector& V, Currency Value);
/// @}

/// @name ClearVector
/// @{

/// Sets every element to the amount 0 where it lies, so every holder of the storage
/// sees the change. Never raises.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void ClearVector(const TKorCurrVector& V);
void ClearVector(const TKorLongCurrVector& V);
void ClearVector(const TKorCurrencyVector& V);
/// @}

/// @name CopyVector
/// @{

/// A new vector with storage of its own holding `V`'s elements. Never raises.
///
/// | Vector and result |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
TKorCurrVector CopyVector(const TKorCurrVector& V);
TKorLongCurrVector CopyVector(const TKorLongCurrVector& V);
TKorCurrencyVector CopyVector(const TKorCurrencyVector& V);
/// @}

/// @name ReverseVector
/// @{

/// A new vector holding `V`'s elements in reverse order. Never raises.
///
/// | Vector and result |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
TKorCurrVector ReverseVector(const TKorCurrVector& V);
TKorLongCurrVector ReverseVector(const TKorLongCurrVector& V);
TKorCurrencyVector ReverseVector(const TKorCurrencyVector& V);
/// @}

// ---- Aggregates and sign tests (rsVectorIsEmpty on an empty vector) ---------------------

/// @name SumVector
/// @{

/// The sum of the amounts, added in index order, in the element type. The
/// `KorCurrency` sum wraps in 32 bits (unlike the numeric Integer member, which widens
/// to Int64) and the `KorLongCurrency` sum in 64. The `Currency` sum adds the running
/// sum and each element in Float and rounds back to a whole number of ten-thousandths
/// after every step. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
KorCurrency SumVector(const TKorCurrVector& V);
KorLongCurrency SumVector(const TKorLongCurrVector& V);
Currency SumVector(const TKorCurrencyVector& V);
/// @}

/// @name MaxVector
/// @{

/// The largest amount, by exact comparison of the stored values. Failures: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
KorCurrency MaxVector(const TKorCurrVector& V);
KorLongCurrency MaxVector(const TKorLongCurrVector& V);
Currency MaxVector(const TKorCurrencyVector& V);
/// @}

/// @name MinVector
/// @{

/// The smallest amount, by exact comparison of the stored values. Failures: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | Result |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
KorCurrency MinVector(const TKorCurrVector& V);
KorLongCurrency MinVector(const TKorLongCurrVector& V);
Currency MinVector(const TKorCurrencyVector& V);
/// @}

/// @name MinMaxVector
/// @{

/// Both extremes in one pass, as KornumVector::MinMaxVector: the smallest and largest
/// amounts, the index of the first occurrence of each, and whether each occurs only
/// once, by exact comparison. Failures: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty), and the outputs are then left as they were.
///
/// | Vector | MinValue, MaxValue |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
void MinMaxVector(const TKorCurrVector& V, KorCurrency& MinValue, KorCurrency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorLongCurrVector& V, KorLongCurrency& MinValue, KorLongCurrency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorCurrencyVector& V, Currency& MinValue, Currency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);
/// @}

// Sign tests: KorCurrency and KorLongCurrency compare exactly with zero; Currency
// applies the tolerant Float tests of Kornummath to the amount.

/// @name VectorZero
/// @{

/// Whether every amount is zero: exactly for `KorCurrency` and `KorLongCurrency`, by
/// Kornummath::FloatIsZero of the amount for `Currency`. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is zero when |
/// |---|---|
/// | TKorCurrVector, TKorLongCurrVector | `x == 0` |
/// | TKorCurrencyVector | `FloatIsZero(Currency2Float(x))` |
Boolean VectorZero(const TKorCurrVector& V);
Boolean VectorZero(const TKorLongCurrVector& V);
Boolean VectorZero(const TKorCurrencyVector& V);
/// @}

/// @name VectorNonZero
/// @{

/// Whether no amount is zero: exactly for `KorCurrency` and `KorLongCurrency`, by
/// Kornummath::FloatIsZero of the amount for `Currency`. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is zero when |
/// |---|---|
/// | TKorCurrVector, TKorLongCurrVector | `x == 0` |
/// | TKorCurrencyVector | `FloatIsZero(Currency2Float(x))` |
Boolean VectorNonZero(const TKorCurrVector& V);
Boolean VectorNonZero(const TKorLongCurrVector& V);
Boolean VectorNonZero(const TKorCurrencyVector& V);
/// @}

/// @name VectorPositive
/// @{

/// Whether every amount is positive: exactly for `KorCurrency` and `KorLongCurrency`,
/// by Kornummath::FloatIsPositive of the amount for `Currency`. Failures: an empty
/// vector raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is positive when |
/// |---|---|
/// | TKorCurrVector, TKorLongCurrVector | `x > 0` |
/// | TKorCurrencyVector | `FloatIsPositive(Currency2Float(x))` |
Boolean VectorPositive(const TKorCurrVector& V);
Boolean VectorPositive(const TKorLongCurrVector& V);
Boolean VectorPositive(const TKorCurrencyVector& V);
/// @}

/// @name VectorNonNegative
/// @{

/// Whether no amount is negative: exactly for `KorCurrency` and `KorLongCurrency`, by
/// Kornummath::FloatIsNegative of the amount for `Currency`. Failures: an empty vector
/// raises Platform::EMathError (Kornum_RS_Math::rsVectorIsEmpty).
///
/// | Vector | An element is negative when |
/// |---|---|
/// | TKorCurrVector, TKorLongCurrVector | `x < 0` |
/// | TKorCurrencyVector | `FloatIsNegative(Currency2Float(x))` |
Boolean VectorNonNegative(const TKorCurrVector& V);
Boolean VectorNonNegative(const TKorLongCurrVector& V);
Boolean VectorNonNegative(const TKorCurrencyVector& V);
/// @}

// ---- Sorting and ranking ------------------------------------------------------------------
// Ranking compares with SameCurrency; the two integer members first take the stored
// integer as a whole amount (times 10,000).

/// @name QSortVector
/// @{

/// Sorts `V` in place, ascending when `Ascending` is true, else descending, by exact
/// comparison of the stored values, with the quicksort of KornumVector::QSortVector
/// (not stable; every holder of the storage sees the new order). Never raises.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void QSortVector(TKorCurrVector& V, Boolean Ascending);
void QSortVector(TKorLongCurrVector& V, Boolean Ascending);
void QSortVector(TKorCurrencyVector& V, Boolean Ascending);
/// @}

/// @name Vector2Rank
/// @{

/// The rank of element `Index`, as KornumVector::Vector2Rank: its 0-based position in
/// `V` sorted in the requested direction, equal values sharing the lowest position of
/// their value; -1 when `Index` is not an index of `V`. Equality is
/// Kornumfinancials::SameCurrency: for `Currency` the stored values agree; the integer
/// members first take each stored integer as a whole amount (times 10,000, wrapping in
/// 64 bits), so `KorLongCurrency` values that differ by a multiple of 2^60 also count
/// as equal. `V` is not changed. Never raises.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
Integer Vector2Rank(const TKorCurrVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorLongCurrVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorCurrencyVector& V, Cardinal Index, Boolean Ascending);
/// @}

/// @name Vector2RankValue
/// @{

/// The rank `Value` has in `V`, as KornumVector::Vector2RankValue, with the equality of
/// `Vector2Rank`; -1 when no element equals it. `V` is not changed. Never raises.
///
/// | Vector | Value |
/// |---|---|
/// | TKorCurrVector | KorCurrency |
/// | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyVector | Currency |
Integer Vector2RankValue(const TKorCurrVector& V, KorCurrency Value, Boolean Ascending);
Integer Vector2RankValue(const TKorLongCurrVector& V, KorLongCurrency Value, Boolean Ascending);
Integer Vector2RankValue(const TKorCurrencyVector& V, Currency Value, Boolean Ascending);
/// @}

/// @name Vector2RankVector
/// @{

/// The rank of every element, as a new `TKorLIntVector` of `V`'s length: element `i` is
/// what `Vector2Rank(V, i, Ascending)` returns. `V` is not changed. Never raises.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
TKorLIntVector Vector2RankVector(const TKorCurrVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorLongCurrVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorCurrencyVector& V, Boolean Ascending);
/// @}

// ---- Arithmetic (rsSameDimensions for vectors of different lengths) --------------------------

/// @name AddVectors
/// @{

/// A new vector of the sums `V1[i] + V2[i]`: exact integer sums of the stored values,
/// wrapping in 32 bits for `KorCurrency` and in 64 bits for the others. Two empty
/// vectors give an empty one. Failures: vectors of different lengths raise
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors and result |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
TKorCurrVector AddVectors(const TKorCurrVector& V1, const TKorCurrVector& V2);
TKorLongCurrVector AddVectors(const TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
TKorCurrencyVector AddVectors(const TKorCurrencyVector& V1, const TKorCurrencyVector& V2);
/// @}

/// @name SubtractVectors
/// @{

/// A new vector of the differences `V1[i] - V2[i]`: exact integer differences of the
/// stored values, wrapping in 32 bits for `KorCurrency` and in 64 bits for the others.
/// Two empty vectors give an empty one. Failures: vectors of different lengths raise
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors and result |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
TKorCurrVector SubtractVectors(const TKorCurrVector& V1, const TKorCurrVector& V2);
TKorLongCurrVector SubtractVectors(const TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
TKorCurrencyVector SubtractVectors(const TKorCurrencyVector& V1, const TKorCurrencyVector& V2);
/// @}

/// @name AddToVector
/// @{

/// Adds `V2` to `V1` element by element in place, with the exact wrapping sums of
/// `AddVectors`, in `V1`'s storage: every holder of it sees the change. Failures:
/// vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void AddToVector(TKorCurrVector& V1, const TKorCurrVector& V2);
void AddToVector(TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
void AddToVector(TKorCurrencyVector& V1, const TKorCurrencyVector& V2);
/// @}

/// @name SubtractFromVector
/// @{

/// Subtracts `V2` from `V1` element by element in place, with the exact wrapping
/// differences of `SubtractVectors`, in `V1`'s storage: every holder of it sees the
/// change. Failures: vectors of different lengths raise Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Vectors |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void SubtractFromVector(TKorCurrVector& V1, const TKorCurrVector& V2);
void SubtractFromVector(TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
void SubtractFromVector(TKorCurrencyVector& V1, const TKorCurrencyVector& V2);
/// @}

/// @name LinearTransformVector
/// @{

/// Replaces every amount `x` by `x * A + B`, with Float factors. The `KorCurrency` and
/// `KorLongCurrency` members take the amount through Kornumfinancials::Currency2Float,
/// compute in Float and store through Kornumfinancials::Float2KorCurrency or
/// Kornumfinancials::Float2KorLongCurrency (rounded to the nearest unit, ties to even).
/// The `Currency` member computes `stored * A + B * 10,000` in Float and rounds it to
/// the nearest integer; it does not check the range, so a result beyond 64 bits is not
/// detected. Every element is computed before any is stored, so on failure `V` is left
/// as it was. Failures, in this order: an empty vector raises Platform::EMathError
/// (Kornum_RS_Math::rsVectorIsEmpty); for the two integer members, a result out of the
/// element's range (or NaN) raises Platform::ERangeError naming the value and the type.
///
/// | Vector |
/// |---|
/// | TKorCurrVector, TKorLongCurrVector, TKorCurrencyVector |
void LinearTransformVector(TKorCurrVector& V, Float A, Float B);
void LinearTransformVector(TKorLongCurrVector& V, Float A, Float B);
void LinearTransformVector(TKorCurrencyVector& V, Float A, Float B);
/// @}

// ---- Conversions ------------------------------------------------------------------------------
// Each returns a new vector, converting element by element with the conversions of
// Kornumfinancials. A value that does not fit raises Platform::ERangeError; nothing is
// returned then.

/// @name Vector2KorCurrVector
/// @{

/// A new `TKorCurrVector` (hundredths) holding every amount of `V`, converted by the
/// function in the table: amounts with more decimals are rounded to the nearest
/// hundredth, ties to even. A `TKorCurrVector` is copied. Failures: a value that does
/// not fit 32 bits (or a NaN) raises Platform::ERangeError naming the value and the
/// target type; nothing is returned then.
///
/// | Vector | Each element through |
/// |---|---|
/// | TKorCurrVector | (copied) |
/// | TKorLongCurrVector | Kornumfinancials::KorLongCurrency2KorCurrency |
/// | TKorCurrencyVector | Kornumfinancials::Currency2KorCurrency |
/// | TKorFloatVector | Kornumfinancials::Float2KorCurrency |
TKorCurrVector Vector2KorCurrVector(const TKorCurrVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorLongCurrVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorCurrencyVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorFloatVector& V);
/// @}

/// @name Vector2KorLongCurrVector
/// @{

/// A new `TKorLongCurrVector` (millionths) holding every amount of `V`, converted by the
/// function in the table (a Float is rounded to the nearest millionth, ties to even). A
/// `TKorLongCurrVector` is copied. Failures: a value that does not fit 64 bits (or a
/// NaN) raises Platform::ERangeError naming the value and the target type; nothing is
/// returned then. The `KorCurrency` member never fails.
///
/// | Vector | Each element through |
/// |---|---|
/// | TKorCurrVector | Kornumfinancials::KorCurrency2KorLongCurrency |
/// | TKorLongCurrVector | (copied) |
/// | TKorCurrencyVector | Kornumfinancials::Currency2KorLongCurrency |
/// | TKorFloatVector | Kornumfinancials::Float2KorLongCurrency |
TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorLongCurrVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrencyVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorFloatVector& V);
/// @}

/// @name Vector2KorCurrencyVector
/// @{

/// A new `TKorCurrencyVector` (ten-thousandths) holding every amount of `V`, converted
/// by the function in the table: millionths and Floats are rounded to the nearest
/// ten-thousandth, ties to even. A `TKorCurrencyVector` is copied. Failures: the
/// `TKorFloatVector` member raises Platform::ERangeError, naming the value and the
/// target type, for a value that does not fit (or a NaN); nothing is returned then.
/// The other members never fail.
///
/// | Vector | Each element through |
/// |---|---|
/// | TKorCurrVector | Kornumfinancials::KorCurrency2Currency |
/// | TKorLongCurrVector | Kornumfinancials::KorLongCurrency2Currency |
/// | TKorCurrencyVector | (copied) |
/// | TKorFloatVector | Kornumfinancials::Float2Currency |
TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorLongCurrVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrencyVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorFloatVector& V);
/// @}

/// @name Vector2FloatVector
/// @{

/// A new `TKorFloatVector` holding every element as an amount
/// (Kornumfinancials::Currency2Float): the stored value divided by 100, 1,000,000 or
/// 10,000. Never raises.
///
/// | Vector | Stored value divided by |
/// |---|---|
/// | TKorCurrVector | 100 |
/// | TKorLongCurrVector | 1,000,000 |
/// | TKorCurrencyVector | 10,000 |
TKorFloatVector Vector2FloatVector(const TKorCurrVector& V);
TKorFloatVector Vector2FloatVector(const TKorLongCurrVector& V);
TKorFloatVector Vector2FloatVector(const TKorCurrencyVector& V);
/// @}

}  // namespace KornumFinVector
KORNUM_EXPORT_END
