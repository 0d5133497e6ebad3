// The matrix routines of the three currency element types: KorCurrency (hundredths, 32
// bits), KorLongCurrency (millionths, 64 bits) and Currency (ten-thousandths, 64 bits).
// TKorCurrMatrix and TKorLongCurrMatrix are the same types as the 32- and 64-bit integer
// matrices; these overloads, in their own namespace, read the elements as amounts.
// Each family behaves as its namesake in KornumMatrix - checks, messages, loop order and
// guards - except where said here. There is no product and no reduction.
//
// - This module has its own KorMatrixRectangularCheck, independent of KornumMatrix's.
// - The identity matrices hold the amount 1 on the diagonal: stored 100, 1,000,000 and
//   10,000.
// - Matrix2FloatMatrix deliberately disagrees between members: KorCurrency and
//   KorLongCurrency copy the stored integer (the amount 1.00 becomes 100 and 1,000,000),
//   Currency gives the amount (1.00 becomes 1).
// - The sums and differences are exact integer arithmetic on the stored values
//   (KorCurrency wrapping in 32 bits).
// - MultiplyMatrixByConst and MultiplyMatrixByConst2 take a Float C and store the stored
//   value times C, rounded to the nearest integer, ties to even.
// - LinearTransformMatrix takes Float A and B and makes amount * A + B: through
//   Currency2Float and Float2KorCurrency / Float2KorLongCurrency for the integer members
//   (a value out of range raises Platform::ERangeError), as stored * A + B * 10,000
//   rounded for Currency.
// - GrandMean returns the element type: the stored values summed (KorCurrency in a
//   32-bit accumulator that wraps silently, deliberately), divided by N and rounded to
//   the nearest stored unit.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumFinMatrix {

using namespace Kornumglobals;

// Switches the raggedness test of this module's MatrixDimensions. True at load.
extern Boolean KorMatrixRectangularCheck;

// ---- Creation -------------------------------------------------------------------------------

TKorCurrMatrix CreateCurrMatrix(LongWord Rows, LongWord Cols);
TKorLongCurrMatrix CreateLongCurrMatrix(LongWord Rows, LongWord Cols);
TKorCurrencyMatrix CreateCurrencyMatrix(LongWord Rows, LongWord Cols);

TKorCurrMatrix CreateCurrIdentityMatrix(LongWord N);
TKorLongCurrMatrix CreateLongCurrIdentityMatrix(LongWord N);
TKorCurrencyMatrix CreateCurrencyIdentityMatrix(LongWord N);

// ---- Shape, copies, moves and sorts -----------------------------------------------------------

Boolean MatrixIsRectangular(const TKorCurrMatrix& M);
Boolean MatrixIsRectangular(const TKorLongCurrMatrix& M);
Boolean MatrixIsRectangular(const TKorCurrencyMatrix& M);

void MatrixDimensions(const TKorCurrMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorLongCurrMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorCurrencyMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);

Boolean MatrixIsSquare(const TKorCurrMatrix& M);
Boolean MatrixIsSquare(const TKorLongCurrMatrix& M);
Boolean MatrixIsSquare(const TKorCurrencyMatrix& M);

Boolean MatricesSameDimensions(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
Boolean MatricesSameDimensions(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
Boolean MatricesSameDimensions(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);

TKorCurrMatrix CopyMatrix(const TKorCurrMatrix& M);
TKorLongCurrMatrix CopyMatrix(const TKorLongCurrMatrix& M);
TKorCurrencyMatrix CopyMatrix(const TKorCurrencyMatrix& M);

TKorFloatMatrix Matrix2FloatMatrix(const TKorCurrMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorLongCurrMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorCurrencyMatrix& M);

TKorCurrVector ExtractMatrixRow(const TKorCurrMatrix& M, LongWord Row);
TKorLongCurrVector ExtractMatrixRow(const TKorLongCurrMatrix& M, LongWord Row);
TKorCurrencyVector ExtractMatrixRow(const TKorCurrencyMatrix& M, LongWord Row);

TKorCurrVector ExtractMatrixCol(const TKorCurrMatrix& M, LongWord Col);
TKorLongCurrVector ExtractMatrixCol(const TKorLongCurrMatrix& M, LongWord Col);
TKorCurrencyVector ExtractMatrixCol(const TKorCurrencyMatrix& M, LongWord Col);

void OverwriteMatrixRow(TKorCurrMatrix& M, LongWord Row, const TKorCurrVector& V, KorCurrency Default);
void OverwriteMatrixRow(TKorLongCurrMatrix& M, LongWord Row, const TKorLongCurrVector& V, KorLongCurrency Default);
void OverwriteMatrixRow(TKorCurrencyMatrix& M, LongWord Row, const TKorCurrencyVector& V, Currency Default);

void OverwriteMatrixCol(TKorCurrMatrix& M, LongWord Col, const TKorCurrVector& V, KorCurrency Default);
void OverwriteMatrixCol(TKorLongCurrMatrix& M, LongWord Col, const TKorLongCurrVector& V, KorLongCurrency Default);
void OverwriteMatrixCol(TKorCurrencyMatrix& M, LongWord Col, const TKorCurrencyVector& V, Currency Default);

void SwapMatrixRows(TKorCurrMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorLongCurrMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorCurrencyMatrix& M, LongWord Row1, LongWord Row2);

void SwapMatrixCols(TKorCurrMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorLongCurrMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorCurrencyMatrix& M, LongWord Col1, LongWord Col2);

TKorCurrMatrix TransposeMatrix(const TKorCurrMatrix& M);
TKorLongCurrMatrix TransposeMatrix(const TKorLongCurrMatrix& M);
TKorCurrencyMatrix TransposeMatrix(const TKorCurrencyMatrix& M);

void QSortMatrixRowsOnCol(TKorCurrMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorLongCurrMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorCurrencyMatrix& M, LongWord Col, Boolean Ascending);

void QSortMatrixColsOnRow(TKorCurrMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorLongCurrMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorCurrencyMatrix& M, LongWord Row, Boolean Ascending);

// ---- Arithmetic ----------------------------------------------------------------------------------

TKorCurrMatrix AddMatrices(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
TKorLongCurrMatrix AddMatrices(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
TKorCurrencyMatrix AddMatrices(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);

TKorCurrMatrix SubtractMatrices(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
TKorLongCurrMatrix SubtractMatrices(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
TKorCurrencyMatrix SubtractMatrices(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);

void AddToMatrix(TKorCurrMatrix& X, const TKorCurrMatrix& Y);
void AddToMatrix(TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
void AddToMatrix(TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);

void SubtractFromMatrix(TKorCurrMatrix& X, const TKorCurrMatrix& Y);
void SubtractFromMatrix(TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
void SubtractFromMatrix(TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);

TKorCurrMatrix MultiplyMatrixByConst(const TKorCurrMatrix& X, Float C);
TKorLongCurrMatrix MultiplyMatrixByConst(const TKorLongCurrMatrix& X, Float C);
TKorCurrencyMatrix MultiplyMatrixByConst(const TKorCurrencyMatrix& X, Float C);

void MultiplyMatrixByConst2(TKorCurrMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorLongCurrMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorCurrencyMatrix& X, Float C);

void LinearTransformMatrix(TKorCurrMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorLongCurrMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorCurrencyMatrix& X, Float A, Float B);

KorCurrency GrandMean(const TKorCurrMatrix& X, LongWord& N);
KorLongCurrency GrandMean(const TKorLongCurrMatrix& X, LongWord& N);
Currency GrandMean(const TKorCurrencyMatrix& X, LongWord& N);

}  // namespace KornumFinMatrix
