// Typed matrix routines: creation, shape probes, copies, row and column moves,
// transposition and sorting; element-wise and algebraic arithmetic; row reduction,
// determinant and inverse.
//
// A matrix is a vector of row vectors, indexed [row][col]. Rows is the number of rows,
// Cols the length of row 0; rows may differ in length in memory, and MatrixDimensions
// decides whether a matrix counts as rectangular. Every family is a set of plain
// overloads, one per element type it supports; a combination that is not declared here
// does not exist. Failures raise Platform::EMathError with the text of a Kornum_RS_Math
// identifier; checks come before the first write except where a routine says it fails
// part-way.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

namespace KORNUM_API KornumMatrix {

using namespace Kornumglobals;

// Switches the raggedness test of MatrixDimensions, and with it every rsMatrixRect
// check that rests on it. True at load. The row reductions switch it off while they
// run and restore it afterwards, an exception passing included.
extern Boolean KorMatrixRectangularCheck;

// ---- Creation: all elements zero; the identity has 1 on its diagonal ----------------
// A Rows of 0 gives the empty matrix; a Cols of 0 gives Rows empty rows.

TKorFloatMatrix CreateFloatMatrix(LongWord Rows, LongWord Cols);
TKorDoubleMatrix CreateDoubleMatrix(LongWord Rows, LongWord Cols);
TKorSingleMatrix CreateSingleMatrix(LongWord Rows, LongWord Cols);
TKorInt64Matrix CreateInt64Matrix(LongWord Rows, LongWord Cols);
TKorLWordMatrix CreateLWordMatrix(LongWord Rows, LongWord Cols);
TKorLIntMatrix CreateLIntMatrix(LongWord Rows, LongWord Cols);
TKorWordMatrix CreateWordMatrix(LongWord Rows, LongWord Cols);
TKorSmallIntMatrix CreateSmallIntMatrix(LongWord Rows, LongWord Cols);
TKorByteMatrix CreateByteMatrix(LongWord Rows, LongWord Cols);
TKorSIntMatrix CreateSIntMatrix(LongWord Rows, LongWord Cols);

TKorFloatMatrix CreateFloatIdentityMatrix(LongWord N);
TKorDoubleMatrix CreateDoubleIdentityMatrix(LongWord N);
TKorSingleMatrix CreateSingleIdentityMatrix(LongWord N);
TKorInt64Matrix CreateInt64IdentityMatrix(LongWord N);
TKorLWordMatrix CreateLWordIdentityMatrix(LongWord N);
TKorLIntMatrix CreateLIntIdentityMatrix(LongWord N);
TKorWordMatrix CreateWordIdentityMatrix(LongWord N);
TKorSmallIntMatrix CreateSmallIntIdentityMatrix(LongWord N);
TKorByteMatrix CreateByteIdentityMatrix(LongWord N);
TKorSIntMatrix CreateSIntIdentityMatrix(LongWord N);
// ---- Shape -----------------------------------------------------------------------------
// MatrixIsRectangular: false without rows, else whether every row has row 0's length;
// it ignores KorMatrixRectangularCheck.
// MatrixDimensions: Rows, and Cols = the length of row 0. With the check off, Rectangular
// is true. With it on, an empty matrix or an empty row 0 gives false, and a ragged matrix
// gives false with Cols = 0 - so a routine that tests emptiness first reports a ragged
// matrix as empty, and one guarded by Rows > 1 and Cols > 1 leaves it alone.

Boolean MatrixIsRectangular(const TKorFloatMatrix& M);
Boolean MatrixIsRectangular(const TKorDoubleMatrix& M);
Boolean MatrixIsRectangular(const TKorSingleMatrix& M);
Boolean MatrixIsRectangular(const TKorInt64Matrix& M);
Boolean MatrixIsRectangular(const TKorLWordMatrix& M);
Boolean MatrixIsRectangular(const TKorLIntMatrix& M);
Boolean MatrixIsRectangular(const TKorWordMatrix& M);
Boolean MatrixIsRectangular(const TKorSmallIntMatrix& M);
Boolean MatrixIsRectangular(const TKorByteMatrix& M);
Boolean MatrixIsRectangular(const TKorSIntMatrix& M);

void MatrixDimensions(const TKorFloatMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorDoubleMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorSingleMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorInt64Matrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorLWordMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorLIntMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorWordMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorSmallIntMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorByteMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorSIntMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);

Boolean MatrixIsSquare(const TKorFloatMatrix& M);
Boolean MatrixIsSquare(const TKorDoubleMatrix& M);
Boolean MatrixIsSquare(const TKorSingleMatrix& M);
Boolean MatrixIsSquare(const TKorInt64Matrix& M);
Boolean MatrixIsSquare(const TKorLWordMatrix& M);
Boolean MatrixIsSquare(const TKorLIntMatrix& M);
Boolean MatrixIsSquare(const TKorWordMatrix& M);
Boolean MatrixIsSquare(const TKorSmallIntMatrix& M);
Boolean MatrixIsSquare(const TKorByteMatrix& M);
Boolean MatrixIsSquare(const TKorSIntMatrix& M);

Boolean MatricesSameDimensions(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
Boolean MatricesSameDimensions(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
Boolean MatricesSameDimensions(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
Boolean MatricesSameDimensions(const TKorInt64Matrix& X, const TKorInt64Matrix& Y);
Boolean MatricesSameDimensions(const TKorLWordMatrix& X, const TKorLWordMatrix& Y);
Boolean MatricesSameDimensions(const TKorLIntMatrix& X, const TKorLIntMatrix& Y);
Boolean MatricesSameDimensions(const TKorWordMatrix& X, const TKorWordMatrix& Y);
Boolean MatricesSameDimensions(const TKorSmallIntMatrix& X, const TKorSmallIntMatrix& Y);
Boolean MatricesSameDimensions(const TKorByteMatrix& X, const TKorByteMatrix& Y);
Boolean MatricesSameDimensions(const TKorSIntMatrix& X, const TKorSIntMatrix& Y);
// ---- Copies: every row keeps its own length; they never raise ------------------------

TKorFloatMatrix CopyMatrix(const TKorFloatMatrix& M);
TKorDoubleMatrix CopyMatrix(const TKorDoubleMatrix& M);
TKorSingleMatrix CopyMatrix(const TKorSingleMatrix& M);
TKorInt64Matrix CopyMatrix(const TKorInt64Matrix& M);
TKorLWordMatrix CopyMatrix(const TKorLWordMatrix& M);
TKorLIntMatrix CopyMatrix(const TKorLIntMatrix& M);
TKorWordMatrix CopyMatrix(const TKorWordMatrix& M);
TKorSmallIntMatrix CopyMatrix(const TKorSmallIntMatrix& M);
TKorByteMatrix CopyMatrix(const TKorByteMatrix& M);
TKorSIntMatrix CopyMatrix(const TKorSIntMatrix& M);

TKorFloatMatrix Matrix2FloatMatrix(const TKorFloatMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorDoubleMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorSingleMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorInt64Matrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorLWordMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorLIntMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorWordMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorSmallIntMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorByteMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorSIntMatrix& M);
// ---- Rows and columns as vectors ------------------------------------------------------
// They act only when Rows > 1 and Cols > 1: otherwise the result is empty (Extract) or
// nothing changes (Overwrite), without a check. Overwrite pads a short V with Default
// and cuts a long one at the matrix's size.

TKorFloatVector ExtractMatrixRow(const TKorFloatMatrix& M, LongWord Row);
TKorDoubleVector ExtractMatrixRow(const TKorDoubleMatrix& M, LongWord Row);
TKorSingleVector ExtractMatrixRow(const TKorSingleMatrix& M, LongWord Row);
TKorInt64Vector ExtractMatrixRow(const TKorInt64Matrix& M, LongWord Row);
TKorLWordVector ExtractMatrixRow(const TKorLWordMatrix& M, LongWord Row);
TKorLIntVector ExtractMatrixRow(const TKorLIntMatrix& M, LongWord Row);
TKorWordVector ExtractMatrixRow(const TKorWordMatrix& M, LongWord Row);
TKorSmallIntVector ExtractMatrixRow(const TKorSmallIntMatrix& M, LongWord Row);
TKorByteVector ExtractMatrixRow(const TKorByteMatrix& M, LongWord Row);
TKorSIntVector ExtractMatrixRow(const TKorSIntMatrix& M, LongWord Row);

TKorFloatVector ExtractMatrixCol(const TKorFloatMatrix& M, LongWord Col);
TKorDoubleVector ExtractMatrixCol(const TKorDoubleMatrix& M, LongWord Col);
TKorSingleVector ExtractMatrixCol(const TKorSingleMatrix& M, LongWord Col);
TKorInt64Vector ExtractMatrixCol(const TKorInt64Matrix& M, LongWord Col);
TKorLWordVector ExtractMatrixCol(const TKorLWordMatrix& M, LongWord Col);
TKorLIntVector ExtractMatrixCol(const TKorLIntMatrix& M, LongWord Col);
TKorWordVector ExtractMatrixCol(const TKorWordMatrix& M, LongWord Col);
TKorSmallIntVector ExtractMatrixCol(const TKorSmallIntMatrix& M, LongWord Col);
TKorByteVector ExtractMatrixCol(const TKorByteMatrix& M, LongWord Col);
TKorSIntVector ExtractMatrixCol(const TKorSIntMatrix& M, LongWord Col);

void OverwriteMatrixRow(TKorFloatMatrix& M, LongWord Row, const TKorFloatVector& V, Float Default);
void OverwriteMatrixRow(TKorDoubleMatrix& M, LongWord Row, const TKorDoubleVector& V, Double Default);
void OverwriteMatrixRow(TKorSingleMatrix& M, LongWord Row, const TKorSingleVector& V, Single Default);
void OverwriteMatrixRow(TKorInt64Matrix& M, LongWord Row, const TKorInt64Vector& V, Int64 Default);
void OverwriteMatrixRow(TKorLWordMatrix& M, LongWord Row, const TKorLWordVector& V, LongWord Default);
void OverwriteMatrixRow(TKorLIntMatrix& M, LongWord Row, const TKorLIntVector& V, LongInt Default);
void OverwriteMatrixRow(TKorWordMatrix& M, LongWord Row, const TKorWordVector& V, Word Default);
void OverwriteMatrixRow(TKorSmallIntMatrix& M, LongWord Row, const TKorSmallIntVector& V, SmallInt Default);
void OverwriteMatrixRow(TKorByteMatrix& M, LongWord Row, const TKorByteVector& V, Byte Default);
void OverwriteMatrixRow(TKorSIntMatrix& M, LongWord Row, const TKorSIntVector& V, ShortInt Default);

void OverwriteMatrixCol(TKorFloatMatrix& M, LongWord Col, const TKorFloatVector& V, Float Default);
void OverwriteMatrixCol(TKorDoubleMatrix& M, LongWord Col, const TKorDoubleVector& V, Double Default);
void OverwriteMatrixCol(TKorSingleMatrix& M, LongWord Col, const TKorSingleVector& V, Single Default);
void OverwriteMatrixCol(TKorInt64Matrix& M, LongWord Col, const TKorInt64Vector& V, Int64 Default);
void OverwriteMatrixCol(TKorLWordMatrix& M, LongWord Col, const TKorLWordVector& V, LongWord Default);
void OverwriteMatrixCol(TKorLIntMatrix& M, LongWord Col, const TKorLIntVector& V, LongInt Default);
void OverwriteMatrixCol(TKorWordMatrix& M, LongWord Col, const TKorWordVector& V, Word Default);
void OverwriteMatrixCol(TKorSmallIntMatrix& M, LongWord Col, const TKorSmallIntVector& V, SmallInt Default);
void OverwriteMatrixCol(TKorByteMatrix& M, LongWord Col, const TKorByteVector& V, Byte Default);
void OverwriteMatrixCol(TKorSIntMatrix& M, LongWord Col, const TKorSIntVector& V, ShortInt Default);
// ---- Moves in place ----------------------------------------------------------------------
// The swaps return at once for equal indices, whatever the matrix; otherwise they check
// emptiness, then shape, then the indices, and exchange elements (not row handles), so
// every holder of a row sees the change. TransposeMatrix tests rectangularity first: an
// empty matrix raises rsMatrixRect while the check is on.
// The sorts are an iterative quicksort (not stable) of whole rows on their key in column
// Col, or of whole columns on their key in row Row. They do nothing, unchecked, when
// Rows <= 1 or Cols <= 1.

void SwapMatrixRows(TKorFloatMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorDoubleMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorSingleMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorInt64Matrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorLWordMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorLIntMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorWordMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorSmallIntMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorByteMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorSIntMatrix& M, LongWord Row1, LongWord Row2);

void SwapMatrixCols(TKorFloatMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorDoubleMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorSingleMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorInt64Matrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorLWordMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorLIntMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorWordMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorSmallIntMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorByteMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorSIntMatrix& M, LongWord Col1, LongWord Col2);

TKorFloatMatrix TransposeMatrix(const TKorFloatMatrix& M);
TKorDoubleMatrix TransposeMatrix(const TKorDoubleMatrix& M);
TKorSingleMatrix TransposeMatrix(const TKorSingleMatrix& M);
TKorInt64Matrix TransposeMatrix(const TKorInt64Matrix& M);
TKorLWordMatrix TransposeMatrix(const TKorLWordMatrix& M);
TKorLIntMatrix TransposeMatrix(const TKorLIntMatrix& M);
TKorWordMatrix TransposeMatrix(const TKorWordMatrix& M);
TKorSmallIntMatrix TransposeMatrix(const TKorSmallIntMatrix& M);
TKorByteMatrix TransposeMatrix(const TKorByteMatrix& M);
TKorSIntMatrix TransposeMatrix(const TKorSIntMatrix& M);

void QSortMatrixRowsOnCol(TKorFloatMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorDoubleMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorSingleMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorInt64Matrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorLWordMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorLIntMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorWordMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorSmallIntMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorByteMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorSIntMatrix& M, LongWord Col, Boolean Ascending);

void QSortMatrixColsOnRow(TKorFloatMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorDoubleMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorSingleMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorInt64Matrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorLWordMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorLIntMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorWordMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorSmallIntMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorByteMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorSIntMatrix& M, LongWord Row, Boolean Ascending);
// ---- Tests of the floating members --------------------------------------------------------
// MatrixZeroRows counts the rows whose elements are all zero within KorTolerance.
// MatrixIsIdentity tests every element within KorTolerance of the identity's.

LongWord MatrixZeroRows(const TKorFloatMatrix& M);
LongWord MatrixZeroRows(const TKorDoubleMatrix& M);
LongWord MatrixZeroRows(const TKorSingleMatrix& M);

Boolean MatrixIsIdentity(const TKorFloatMatrix& M);
Boolean MatrixIsIdentity(const TKorDoubleMatrix& M);
Boolean MatrixIsIdentity(const TKorSingleMatrix& M);
// ---- Arithmetic -----------------------------------------------------------------------------
// Floating members compute in Float and store in the element type; the Int64 and LongInt
// members compute in their own width and wrap silently. The sums and differences need X
// not empty and both matrices of one rectangular shape (rsSameDimensions). The constant
// multiples and the linear transform walk each row by its own length, so ragged shapes
// are kept. GrandMean adds every element of every row in Float and returns N as well.

TKorFloatMatrix AddMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix AddMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix AddMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
TKorInt64Matrix AddMatrices(const TKorInt64Matrix& X, const TKorInt64Matrix& Y);
TKorLIntMatrix AddMatrices(const TKorLIntMatrix& X, const TKorLIntMatrix& Y);

TKorFloatMatrix SubtractMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix SubtractMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix SubtractMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
TKorInt64Matrix SubtractMatrices(const TKorInt64Matrix& X, const TKorInt64Matrix& Y);
TKorLIntMatrix SubtractMatrices(const TKorLIntMatrix& X, const TKorLIntMatrix& Y);

void AddToMatrix(TKorFloatMatrix& X, const TKorFloatMatrix& Y);
void AddToMatrix(TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
void AddToMatrix(TKorSingleMatrix& X, const TKorSingleMatrix& Y);
void AddToMatrix(TKorInt64Matrix& X, const TKorInt64Matrix& Y);
void AddToMatrix(TKorLIntMatrix& X, const TKorLIntMatrix& Y);

void SubtractFromMatrix(TKorFloatMatrix& X, const TKorFloatMatrix& Y);
void SubtractFromMatrix(TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
void SubtractFromMatrix(TKorSingleMatrix& X, const TKorSingleMatrix& Y);
void SubtractFromMatrix(TKorInt64Matrix& X, const TKorInt64Matrix& Y);
void SubtractFromMatrix(TKorLIntMatrix& X, const TKorLIntMatrix& Y);

TKorFloatMatrix MultiplyMatrixByConst(const TKorFloatMatrix& X, Float C);
TKorDoubleMatrix MultiplyMatrixByConst(const TKorDoubleMatrix& X, Float C);
TKorSingleMatrix MultiplyMatrixByConst(const TKorSingleMatrix& X, Float C);
TKorInt64Matrix MultiplyMatrixByConst(const TKorInt64Matrix& X, Int64 C);
TKorLIntMatrix MultiplyMatrixByConst(const TKorLIntMatrix& X, LongInt C);

void MultiplyMatrixByConst2(TKorFloatMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorDoubleMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorSingleMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorInt64Matrix& X, Int64 C);
void MultiplyMatrixByConst2(TKorLIntMatrix& X, LongInt C);

void LinearTransformMatrix(TKorFloatMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorDoubleMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorSingleMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorInt64Matrix& X, Int64 A, Int64 B);
void LinearTransformMatrix(TKorLIntMatrix& X, LongInt A, LongInt B);

Float GrandMean(const TKorFloatMatrix& X, LongWord& N);
Float GrandMean(const TKorDoubleMatrix& X, LongWord& N);
Float GrandMean(const TKorSingleMatrix& X, LongWord& N);
Float GrandMean(const TKorInt64Matrix& X, LongWord& N);
Float GrandMean(const TKorLIntMatrix& X, LongWord& N);
// ---- Row and column operations in place ---------------------------------------------------
// ScaleMatrix... return at once when Factor is exactly 1, whatever the matrix. Then,
// like AddMatrix..., they check emptiness, shape and the indices. AddMatrixRows adds
// Factor times row Row2 to row Row1 (Row1 = Row2 scales the row by 1 + Factor).

void ScaleMatrixRow(TKorFloatMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorDoubleMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorSingleMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorInt64Matrix& X, LongWord Row, Int64 Factor);
void ScaleMatrixRow(TKorLIntMatrix& X, LongWord Row, LongInt Factor);

void ScaleMatrixCol(TKorFloatMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorDoubleMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorSingleMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorInt64Matrix& X, LongWord Col, Int64 Factor);
void ScaleMatrixCol(TKorLIntMatrix& X, LongWord Col, LongInt Factor);

void AddMatrixRows(TKorFloatMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorDoubleMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorSingleMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorInt64Matrix& X, LongWord Row1, LongWord Row2, Int64 Factor);
void AddMatrixRows(TKorLIntMatrix& X, LongWord Row1, LongWord Row2, LongInt Factor);

void AddMatrixCols(TKorFloatMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorDoubleMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorSingleMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorInt64Matrix& X, LongWord Col1, LongWord Col2, Int64 Factor);
void AddMatrixCols(TKorLIntMatrix& X, LongWord Col1, LongWord Col2, LongInt Factor);
// ---- Floating members only -------------------------------------------------------------------
// MultiplyMatrices tests rectangularity first, then emptiness, then the inner dimensions;
// each element of the product is summed k-ascending in the result element itself (so a
// Double or Single product rounds its partial sums to the element type at every step).
// The element-wise functions walk rows by their own length and fail part-way: elements
// visited before a bad one keep their new values. InvMatrix is the element-wise
// reciprocal; only an element exactly 0 fails.

TKorFloatMatrix MultiplyMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix MultiplyMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix MultiplyMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);

void SquareMatrix(TKorFloatMatrix& X);
void SquareMatrix(TKorDoubleMatrix& X);
void SquareMatrix(TKorSingleMatrix& X);

void SqrtMatrix(TKorFloatMatrix& X);
void SqrtMatrix(TKorDoubleMatrix& X);
void SqrtMatrix(TKorSingleMatrix& X);

void LnMatrix(TKorFloatMatrix& X);
void LnMatrix(TKorDoubleMatrix& X);
void LnMatrix(TKorSingleMatrix& X);

void Log10Matrix(TKorFloatMatrix& X);
void Log10Matrix(TKorDoubleMatrix& X);
void Log10Matrix(TKorSingleMatrix& X);

void InvMatrix(TKorFloatMatrix& X);
void InvMatrix(TKorDoubleMatrix& X);
void InvMatrix(TKorSingleMatrix& X);
// ---- Row reduction ---------------------------------------------------------------------------
// Gaussian elimination with partial pivoting by the largest magnitude, zero tests by
// FloatIsZero. Each leaves its argument reduced (a caller that needs it keeps a
// CopyMatrix). RowEchelonFormRank counts the rows that are not zero afterwards.
// MatrixDeterminant never raises for a singular matrix: the result is then zero or within
// rounding of it. MatrixInverse returns false for a singular matrix, with Inv not an
// inverse.

void RowEchelonForm(TKorFloatMatrix& M);
void RowEchelonForm(TKorDoubleMatrix& M);
void RowEchelonForm(TKorSingleMatrix& M);

void RowEchelonFormRank(TKorFloatMatrix& M, LongWord& Rank);
void RowEchelonFormRank(TKorDoubleMatrix& M, LongWord& Rank);
void RowEchelonFormRank(TKorSingleMatrix& M, LongWord& Rank);

Float MatrixDeterminant(TKorFloatMatrix& M);
Float MatrixDeterminant(TKorDoubleMatrix& M);
Float MatrixDeterminant(TKorSingleMatrix& M);

Boolean MatrixInverse(TKorFloatMatrix& M, TKorFloatMatrix& Inv);
Boolean MatrixInverse(TKorDoubleMatrix& M, TKorDoubleMatrix& Inv);
Boolean MatrixInverse(TKorSingleMatrix& M, TKorSingleMatrix& Inv);
}  // namespace KornumMatrix
