// The vector routines of the three currency element types: KorCurrency (an amount in
// hundredths, 32 bits), KorLongCurrency (millionths, 64 bits) and Currency (ten-
// thousandths, 64 bits). TKorCurrVector and TKorLongCurrVector are the same types as
// the 32- and 64-bit integer vectors; these overloads, in their own namespace, read the
// elements as amounts. Each family behaves as its numeric namesake in KornumVector,
// except where said here:
//
// - SumVector returns the element type: the KorCurrency sum wraps in 32 bits (unlike
//   the numeric Integer member), the KorLongCurrency sum in 64, and the Currency sum is
//   kept in Float and rounded back to a stored amount after every step.
// - The sign tests of KorCurrency and KorLongCurrency compare exactly with zero; those
//   of Currency apply the tolerant Float tests (FloatIsZero, ...) to the amount.
// - Ranking compares with SameCurrency; the two integer members first take the stored
//   integer as a whole amount (times 10,000).
// - LinearTransformVector takes Float factors and makes amount * A + B: for Currency
//   the stored amount * A + B * 10,000 in Float, rounded; for the others through
//   Currency2Float and Float2KorCurrency / Float2KorLongCurrency. A result out of range
//   raises Platform::ERangeError and leaves V as it was.
// - The conversions raise Platform::ERangeError for a value that does not fit; nothing
//   is returned then. From Float to Currency the amount times 10,000 is rounded to the
//   nearest integer, ties to even.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumFinVector {

using namespace Kornumglobals;

// ---- Construction and resizing --------------------------------------------------------

void AppendValue2Vector(TKorCurrVector& V, KorCurrency Value);
void AppendValue2Vector(TKorLongCurrVector& V, KorLongCurrency Value);
void AppendValue2Vector(TKorCurrencyVector& V, Currency Value);

void AddValue2Vector(TKorCurrVector& V, KorCurrency Value, Integer Index);
void AddValue2Vector(TKorLongCurrVector& V, KorLongCurrency Value, Integer Index);
void AddValue2Vector(TKorCurrencyVector& V, Currency Value, Integer Index);

void DeleteValueFromVector(TKorCurrVector& V, Integer Index);
void DeleteValueFromVector(TKorLongCurrVector& V, Integer Index);
void DeleteValueFromVector(TKorCurrencyVector& V, Integer Index);

void FillVector(const TKorCurrVector& V, KorCurrency Value);
void FillVector(const TKorLongCurrVector& V, KorLongCurrency Value);
void FillVector(const TKorCurrencyVector& V, Currency Value);

void ClearVector(const TKorCurrVector& V);
void ClearVector(const TKorLongCurrVector& V);
void ClearVector(const TKorCurrencyVector& V);

TKorCurrVector CopyVector(const TKorCurrVector& V);
TKorLongCurrVector CopyVector(const TKorLongCurrVector& V);
TKorCurrencyVector CopyVector(const TKorCurrencyVector& V);

TKorCurrVector ReverseVector(const TKorCurrVector& V);
TKorLongCurrVector ReverseVector(const TKorLongCurrVector& V);
TKorCurrencyVector ReverseVector(const TKorCurrencyVector& V);

// ---- Aggregates and sign tests (rsVectorIsEmpty on an empty vector) ---------------------

KorCurrency SumVector(const TKorCurrVector& V);
KorLongCurrency SumVector(const TKorLongCurrVector& V);
Currency SumVector(const TKorCurrencyVector& V);

KorCurrency MaxVector(const TKorCurrVector& V);
KorLongCurrency MaxVector(const TKorLongCurrVector& V);
Currency MaxVector(const TKorCurrencyVector& V);

KorCurrency MinVector(const TKorCurrVector& V);
KorLongCurrency MinVector(const TKorLongCurrVector& V);
Currency MinVector(const TKorCurrencyVector& V);

void MinMaxVector(const TKorCurrVector& V, KorCurrency& MinValue, KorCurrency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorLongCurrVector& V, KorLongCurrency& MinValue, KorLongCurrency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);
void MinMaxVector(const TKorCurrencyVector& V, Currency& MinValue, Currency& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,
                  Boolean& MinUnique, Boolean& MaxUnique);

Boolean VectorZero(const TKorCurrVector& V);
Boolean VectorZero(const TKorLongCurrVector& V);
Boolean VectorZero(const TKorCurrencyVector& V);

Boolean VectorNonZero(const TKorCurrVector& V);
Boolean VectorNonZero(const TKorLongCurrVector& V);
Boolean VectorNonZero(const TKorCurrencyVector& V);

Boolean VectorPositive(const TKorCurrVector& V);
Boolean VectorPositive(const TKorLongCurrVector& V);
Boolean VectorPositive(const TKorCurrencyVector& V);

Boolean VectorNonNegative(const TKorCurrVector& V);
Boolean VectorNonNegative(const TKorLongCurrVector& V);
Boolean VectorNonNegative(const TKorCurrencyVector& V);

// ---- Sorting and ranking ------------------------------------------------------------------

void QSortVector(TKorCurrVector& V, Boolean Ascending);
void QSortVector(TKorLongCurrVector& V, Boolean Ascending);
void QSortVector(TKorCurrencyVector& V, Boolean Ascending);

Integer Vector2Rank(const TKorCurrVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorLongCurrVector& V, Cardinal Index, Boolean Ascending);
Integer Vector2Rank(const TKorCurrencyVector& V, Cardinal Index, Boolean Ascending);

Integer Vector2RankValue(const TKorCurrVector& V, KorCurrency Value, Boolean Ascending);
Integer Vector2RankValue(const TKorLongCurrVector& V, KorLongCurrency Value, Boolean Ascending);
Integer Vector2RankValue(const TKorCurrencyVector& V, Currency Value, Boolean Ascending);

TKorLIntVector Vector2RankVector(const TKorCurrVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorLongCurrVector& V, Boolean Ascending);
TKorLIntVector Vector2RankVector(const TKorCurrencyVector& V, Boolean Ascending);

// ---- Arithmetic (rsSameDimensions for vectors of different lengths) --------------------------

TKorCurrVector AddVectors(const TKorCurrVector& V1, const TKorCurrVector& V2);
TKorLongCurrVector AddVectors(const TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
TKorCurrencyVector AddVectors(const TKorCurrencyVector& V1, const TKorCurrencyVector& V2);

TKorCurrVector SubtractVectors(const TKorCurrVector& V1, const TKorCurrVector& V2);
TKorLongCurrVector SubtractVectors(const TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
TKorCurrencyVector SubtractVectors(const TKorCurrencyVector& V1, const TKorCurrencyVector& V2);

void AddToVector(TKorCurrVector& V1, const TKorCurrVector& V2);
void AddToVector(TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
void AddToVector(TKorCurrencyVector& V1, const TKorCurrencyVector& V2);

void SubtractFromVector(TKorCurrVector& V1, const TKorCurrVector& V2);
void SubtractFromVector(TKorLongCurrVector& V1, const TKorLongCurrVector& V2);
void SubtractFromVector(TKorCurrencyVector& V1, const TKorCurrencyVector& V2);

void LinearTransformVector(TKorCurrVector& V, Float A, Float B);
void LinearTransformVector(TKorLongCurrVector& V, Float A, Float B);
void LinearTransformVector(TKorCurrencyVector& V, Float A, Float B);

// ---- Conversions ------------------------------------------------------------------------------

TKorCurrVector Vector2KorCurrVector(const TKorCurrVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorLongCurrVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorCurrencyVector& V);
TKorCurrVector Vector2KorCurrVector(const TKorFloatVector& V);

TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorLongCurrVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrencyVector& V);
TKorLongCurrVector Vector2KorLongCurrVector(const TKorFloatVector& V);

TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorLongCurrVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrencyVector& V);
TKorCurrencyVector Vector2KorCurrencyVector(const TKorFloatVector& V);

TKorFloatVector Vector2FloatVector(const TKorCurrVector& V);
TKorFloatVector Vector2FloatVector(const TKorLongCurrVector& V);
TKorFloatVector Vector2FloatVector(const TKorCurrencyVector& V);

}  // namespace KornumFinVector
