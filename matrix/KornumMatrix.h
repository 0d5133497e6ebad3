/// @file
/// Typed matrix routines of the numeric element types: creation, shape probes, copies,
/// row and column moves, transposition and sorting; element-wise and algebraic
/// arithmetic; row reduction, rank, determinant and inverse. A matrix is a vector of
/// row vectors, indexed `[row][col]`; `Rows` is the number of rows and `Cols` the length
/// of row 0. Rows may differ in length in memory, and `MatrixDimensions` (with the
/// switch `KorMatrixRectangularCheck`) decides whether a matrix counts as rectangular.
/// Every family is a set of plain overloads, one per element type it supports; a
/// combination that is not declared here does not exist. Failures raise
/// Platform::EMathError with the text of a Kornum_RS_Math identifier; checks come
/// before the first write except where a routine says it fails part-way.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

/// The matrix module: the routines over the ten numeric matrix types, from
/// `TKorFloatMatrix` to `TKorSIntMatrix` (see @ref page_matrices).
KORNUM_EXPORT_BEGIN
namespace KornumMatrix {

using namespace Kornumglobals;

/// Switches the raggedness test of `MatrixDimensions`, and with it every shape check of
/// this module that rests on it. True at load. While it is true, a matrix whose rows
/// differ in length is not rectangular and reports `Cols` = 0, so the routines that
/// test emptiness first report it as empty. While it is false, every matrix counts as
/// rectangular with `Cols` = the length of row 0, and the routines read and write each
/// row only as far as it reaches (a missing element reads as 0). The row reductions
/// (`RowEchelonForm`, `RowEchelonFormRank`, `MatrixDeterminant`, `MatrixInverse`) switch
/// it off while they run and restore it afterwards, an exception passing included. It
/// is one plain global of the process and every reduction writes it, so it is not safe
/// to run reductions on several threads at once. KornumFinMatrix has its own switch of
/// the same name.
extern Boolean KorMatrixRectangularCheck;

// ---- Creation: all elements zero; the identity has 1 on its diagonal ----------------

/// @name Create...Matrix
/// @{

/// A new `Rows` x `Cols` matrix of zeros, every row with storage of its own. A `Rows` of
/// 0 gives the empty matrix; a `Cols` of 0 gives `Rows` empty rows. Never raises.
///
/// | Routine | Result |
/// |---|---|
/// | CreateFloatMatrix | TKorFloatMatrix |
/// | CreateDoubleMatrix | TKorDoubleMatrix |
/// | CreateSingleMatrix | TKorSingleMatrix |
/// | CreateInt64Matrix | TKorInt64Matrix |
/// | CreateLWordMatrix | TKorLWordMatrix |
/// | CreateLIntMatrix | TKorLIntMatrix |
/// | CreateWordMatrix | TKorWordMatrix |
/// | CreateSmallIntMatrix | TKorSmallIntMatrix |
/// | CreateByteMatrix | TKorByteMatrix |
/// | CreateSIntMatrix | TKorSIntMatrix |
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
/// @}

/// @name Create...IdentityMatrix
/// @{

/// A new `N` x `N` identity matrix: 1 on the diagonal, 0 elsewhere, every row with
/// storage of its own. An `N` of 0 gives the empty matrix. Never raises.
///
/// | Routine | Result |
/// |---|---|
/// | CreateFloatIdentityMatrix | TKorFloatMatrix |
/// | CreateDoubleIdentityMatrix | TKorDoubleMatrix |
/// | CreateSingleIdentityMatrix | TKorSingleMatrix |
/// | CreateInt64IdentityMatrix | TKorInt64Matrix |
/// | CreateLWordIdentityMatrix | TKorLWordMatrix |
/// | CreateLIntIdentityMatrix | TKorLIntMatrix |
/// | CreateWordIdentityMatrix | TKorWordMatrix |
/// | CreateSmallIntIdentityMatrix | TKorSmallIntMatrix |
/// | CreateByteIdentityMatrix | TKorByteMatrix |
/// | CreateSIntIdentityMatrix | TKorSIntMatrix |
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
/// @}

// ---- Shape ------------------------------------------------------------------------------

/// @name MatrixIsRectangular
/// @{

/// Whether `M` has rows and every row has row 0's length (a matrix of empty rows
/// counts). False for a matrix without rows. It ignores `KorMatrixRectangularCheck`.
/// Never raises.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name MatrixDimensions
/// @{

/// The shape as the other routines see it: `Rows` = the number of rows, `Cols` = the
/// length of row 0 (0 without rows). With `KorMatrixRectangularCheck` off,
/// `Rectangular` is always true. With it on, `Rectangular` is false for an empty matrix
/// (no rows, or an empty row 0) and for a ragged one, which also reports `Cols` = 0.
/// Never raises.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name MatrixIsSquare
/// @{

/// Whether `MatrixDimensions` reports `M` rectangular with `Rows` = `Cols`. With the
/// check on, an empty matrix is not square. Never raises.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name MatricesSameDimensions
/// @{

/// Whether `MatrixDimensions` reports both matrices rectangular, with the same `Rows`
/// and the same `Cols`. Never raises.
///
/// | Matrices |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

// ---- Copies: every row keeps its own length; they never raise ------------------------

/// @name CopyMatrix
/// @{

/// A new matrix with storage of its own: every row copied at its own length (a ragged
/// matrix stays ragged), so writes to it are not seen through `M`. Never raises.
///
/// | Matrix and result |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name Matrix2FloatMatrix
/// @{

/// A new `TKorFloatMatrix` holding every element of `M` converted exactly to Float,
/// every row at its own length. Never raises.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

// ---- Rows and columns as vectors ------------------------------------------------------
// They act only when Rows > 1 and Cols > 1: otherwise the result is empty (Extract) or
// nothing changes (Overwrite), without a check.

/// @name ExtractMatrixRow
/// @{

/// A new vector of `Cols` elements holding row `Row`. It acts only when
/// `MatrixDimensions` gives `Rows` > 1 and `Cols` > 1; otherwise it returns an empty
/// vector without any check (a single row or column, an empty matrix, and a ragged
/// matrix while `KorMatrixRectangularCheck` is on). With the check off, elements a
/// short row lacks are 0. Failures: a `Row` not below `Rows` raises
/// Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | Result |
/// |---|---|
/// | TKorFloatMatrix | TKorFloatVector |
/// | TKorDoubleMatrix | TKorDoubleVector |
/// | TKorSingleMatrix | TKorSingleVector |
/// | TKorInt64Matrix | TKorInt64Vector |
/// | TKorLWordMatrix | TKorLWordVector |
/// | TKorLIntMatrix | TKorLIntVector |
/// | TKorWordMatrix | TKorWordVector |
/// | TKorSmallIntMatrix | TKorSmallIntVector |
/// | TKorByteMatrix | TKorByteVector |
/// | TKorSIntMatrix | TKorSIntVector |
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
/// @}

/// @name ExtractMatrixCol
/// @{

/// A new vector of `Rows` elements holding column `Col`. It acts only when
/// `MatrixDimensions` gives `Rows` > 1 and `Cols` > 1; otherwise it returns an empty
/// vector without any check. With the check off, an element a short row lacks is 0.
/// Failures: a `Col` not below `Cols` raises Platform::EMathError
/// (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | Result |
/// |---|---|
/// | TKorFloatMatrix | TKorFloatVector |
/// | TKorDoubleMatrix | TKorDoubleVector |
/// | TKorSingleMatrix | TKorSingleVector |
/// | TKorInt64Matrix | TKorInt64Vector |
/// | TKorLWordMatrix | TKorLWordVector |
/// | TKorLIntMatrix | TKorLIntVector |
/// | TKorWordMatrix | TKorWordVector |
/// | TKorSmallIntMatrix | TKorSmallIntVector |
/// | TKorByteMatrix | TKorByteVector |
/// | TKorSIntMatrix | TKorSIntVector |
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
/// @}

/// @name OverwriteMatrixRow
/// @{

/// Writes `V` into row `Row` in place: element `j` becomes `V[j]`, or `Default` past the
/// end of `V`; elements of `V` beyond `Cols` are ignored. The row's storage is written,
/// so every holder of it sees the change. It acts only when `MatrixDimensions` gives
/// `Rows` > 1 and `Cols` > 1; otherwise nothing changes and nothing is checked.
/// Failures: a `Row` not below `Rows` raises Platform::EMathError
/// (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | V | Default |
/// |---|---|---|
/// | TKorFloatMatrix | TKorFloatVector | Float |
/// | TKorDoubleMatrix | TKorDoubleVector | Double |
/// | TKorSingleMatrix | TKorSingleVector | Single |
/// | TKorInt64Matrix | TKorInt64Vector | Int64 |
/// | TKorLWordMatrix | TKorLWordVector | LongWord |
/// | TKorLIntMatrix | TKorLIntVector | LongInt |
/// | TKorWordMatrix | TKorWordVector | Word |
/// | TKorSmallIntMatrix | TKorSmallIntVector | SmallInt |
/// | TKorByteMatrix | TKorByteVector | Byte |
/// | TKorSIntMatrix | TKorSIntVector | ShortInt |
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
/// @}

/// @name OverwriteMatrixCol
/// @{

/// Writes `V` into column `Col` in place: the element of row `i` becomes `V[i]`, or
/// `Default` past the end of `V`; elements of `V` beyond `Rows` are ignored. Every
/// holder of the rows sees the change. It acts only when `MatrixDimensions` gives
/// `Rows` > 1 and `Cols` > 1; otherwise nothing changes and nothing is checked.
/// Failures: a `Col` not below `Cols` raises Platform::EMathError
/// (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | V | Default |
/// |---|---|---|
/// | TKorFloatMatrix | TKorFloatVector | Float |
/// | TKorDoubleMatrix | TKorDoubleVector | Double |
/// | TKorSingleMatrix | TKorSingleVector | Single |
/// | TKorInt64Matrix | TKorInt64Vector | Int64 |
/// | TKorLWordMatrix | TKorLWordVector | LongWord |
/// | TKorLIntMatrix | TKorLIntVector | LongInt |
/// | TKorWordMatrix | TKorWordVector | Word |
/// | TKorSmallIntMatrix | TKorSmallIntVector | SmallInt |
/// | TKorByteMatrix | TKorByteVector | Byte |
/// | TKorSIntMatrix | TKorSIntVector | ShortInt |
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
/// @}

// ---- Moves in place ----------------------------------------------------------------------
// The swaps and sorts exchange elements, not row handles, so every holder of a row sees
// the change.

/// @name SwapMatrixRows
/// @{

/// Exchanges rows `Row1` and `Row2` in place, element by element (not the row handles),
/// so every holder of either row sees the change. Equal indices return at once, whatever
/// the matrix. Failures, in this order: an empty matrix (with the check on, a ragged one
/// too) raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is
/// not rectangular, Platform::EMathError (Kornum_RS_Math::rsMatrixRect); an index not
/// below `Rows`, Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name SwapMatrixCols
/// @{

/// Exchanges columns `Col1` and `Col2` in place, so every holder of a row sees the
/// change. Equal indices return at once, whatever the matrix. Failures, in this order:
/// an empty matrix (with the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not rectangular,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect); an index not below `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name TransposeMatrix
/// @{

/// A new `Cols` x `Rows` matrix with element `[j][i]` = `M[i][j]`. Rectangularity is
/// tested first: with `KorMatrixRectangularCheck` on, an empty or ragged matrix fails;
/// with it off, an empty matrix gives an empty result and elements a short row lacks
/// are 0. Failures: a matrix `MatrixDimensions` does not report rectangular raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect).
///
/// | Matrix and result |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name QSortMatrixRowsOnCol
/// @{

/// Sorts the rows in place on their element in column `Col`, ascending when `Ascending`
/// is true, else descending, by exact comparison. The sort is the quicksort of
/// KornumVector::QSortVector (not stable); rows are exchanged element by element as
/// `SwapMatrixRows` does. It acts only when `MatrixDimensions` gives `Rows` > 1 and
/// `Cols` > 1; otherwise nothing changes and nothing is checked. Failures: a `Col` not
/// below `Cols` raises Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

/// @name QSortMatrixColsOnRow
/// @{

/// Sorts the columns in place on their element in row `Row`, ascending when `Ascending`
/// is true, else descending, by exact comparison, with the quicksort of
/// KornumVector::QSortVector (not stable); columns are exchanged as `SwapMatrixCols`
/// does. It acts only when `MatrixDimensions` gives `Rows` > 1 and `Cols` > 1;
/// otherwise nothing changes and nothing is checked. Failures: a `Row` not below `Rows`
/// raises Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
/// | TKorInt64Matrix, TKorLWordMatrix, TKorLIntMatrix |
/// | TKorWordMatrix, TKorSmallIntMatrix, TKorByteMatrix, TKorSIntMatrix |
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
/// @}

// ---- Tests of the floating members --------------------------------------------------------

/// @name MatrixZeroRows
/// @{

/// The number of rows whose elements are all zero within `KorTolerance`
/// (Kornummath::FloatIsZero). Failures, in this order: an empty matrix (with the check
/// on, a ragged one too) raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty);
/// a matrix that is not rectangular, Platform::EMathError
/// (Kornum_RS_Math::rsMatrixRect).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
LongWord MatrixZeroRows(const TKorFloatMatrix& M);
LongWord MatrixZeroRows(const TKorDoubleMatrix& M);
LongWord MatrixZeroRows(const TKorSingleMatrix& M);
/// @}

/// @name MatrixIsIdentity
/// @{

/// Whether every element is within `KorTolerance` of the identity's: 1 on the diagonal,
/// 0 elsewhere (Kornummath::FloatIsZero of the difference). Failures, in this order: an
/// empty matrix (with the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not square,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixSqr).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
Boolean MatrixIsIdentity(const TKorFloatMatrix& M);
Boolean MatrixIsIdentity(const TKorDoubleMatrix& M);
Boolean MatrixIsIdentity(const TKorSingleMatrix& M);
/// @}

// ---- Arithmetic -----------------------------------------------------------------------------
// Floating members compute in Float and store in the element type; the Int64 and LongInt
// members compute in their own width and wrap silently.

/// @name AddMatrices
/// @{

/// A new matrix of the sums `X[i][j] + Y[i][j]`, of `X`'s shape. The floating members
/// add in Float and round once into the element type; the Int64 and LongInt members add
/// in their own width and wrap silently. Failures, in this order: an `X` without rows
/// or with an empty row 0 raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty);
/// unless `MatrixDimensions` reports both rectangular with the same `Rows` and `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices and result |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix, TKorInt64Matrix, TKorLIntMatrix |
TKorFloatMatrix AddMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix AddMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix AddMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
TKorInt64Matrix AddMatrices(const TKorInt64Matrix& X, const TKorInt64Matrix& Y);
TKorLIntMatrix AddMatrices(const TKorLIntMatrix& X, const TKorLIntMatrix& Y);
/// @}

/// @name SubtractMatrices
/// @{

/// A new matrix of the differences `X[i][j] - Y[i][j]`, of `X`'s shape, computed as in
/// `AddMatrices`. Failures, in this order: an `X` without rows or with an empty row 0
/// raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); unless
/// `MatrixDimensions` reports both rectangular with the same `Rows` and `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices and result |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix, TKorInt64Matrix, TKorLIntMatrix |
TKorFloatMatrix SubtractMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix SubtractMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix SubtractMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
TKorInt64Matrix SubtractMatrices(const TKorInt64Matrix& X, const TKorInt64Matrix& Y);
TKorLIntMatrix SubtractMatrices(const TKorLIntMatrix& X, const TKorLIntMatrix& Y);
/// @}

/// @name AddToMatrix
/// @{

/// Adds `Y` to `X` element by element in place, computed as in `AddMatrices`, in `X`'s
/// storage: every holder of its rows sees the change. Failures, in this order: an `X`
/// without rows or with an empty row 0 raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); unless `MatrixDimensions` reports both
/// rectangular with the same `Rows` and `Cols`, Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix, TKorInt64Matrix, TKorLIntMatrix |
void AddToMatrix(TKorFloatMatrix& X, const TKorFloatMatrix& Y);
void AddToMatrix(TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
void AddToMatrix(TKorSingleMatrix& X, const TKorSingleMatrix& Y);
void AddToMatrix(TKorInt64Matrix& X, const TKorInt64Matrix& Y);
void AddToMatrix(TKorLIntMatrix& X, const TKorLIntMatrix& Y);
/// @}

/// @name SubtractFromMatrix
/// @{

/// Subtracts `Y` from `X` element by element in place, computed as in `AddMatrices`, in
/// `X`'s storage: every holder of its rows sees the change. Failures, in this order: an
/// `X` without rows or with an empty row 0 raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); unless `MatrixDimensions` reports both
/// rectangular with the same `Rows` and `Cols`, Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix, TKorInt64Matrix, TKorLIntMatrix |
void SubtractFromMatrix(TKorFloatMatrix& X, const TKorFloatMatrix& Y);
void SubtractFromMatrix(TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
void SubtractFromMatrix(TKorSingleMatrix& X, const TKorSingleMatrix& Y);
void SubtractFromMatrix(TKorInt64Matrix& X, const TKorInt64Matrix& Y);
void SubtractFromMatrix(TKorLIntMatrix& X, const TKorLIntMatrix& Y);
/// @}

/// @name MultiplyMatrixByConst
/// @{

/// A new matrix of `C * X[i][j]`, every row at its own length (a ragged shape is kept).
/// The floating members multiply in Float and round once into the element type; the
/// Int64 and LongInt members multiply in their own width and wrap silently. Failures:
/// a matrix without rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix and result | C |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
TKorFloatMatrix MultiplyMatrixByConst(const TKorFloatMatrix& X, Float C);
TKorDoubleMatrix MultiplyMatrixByConst(const TKorDoubleMatrix& X, Float C);
TKorSingleMatrix MultiplyMatrixByConst(const TKorSingleMatrix& X, Float C);
TKorInt64Matrix MultiplyMatrixByConst(const TKorInt64Matrix& X, Int64 C);
TKorLIntMatrix MultiplyMatrixByConst(const TKorLIntMatrix& X, LongInt C);
/// @}

/// @name MultiplyMatrixByConst2
/// @{

/// Multiplies every element of `X` by `C` in place, as `MultiplyMatrixByConst` computes
/// it, every row at its own length; every holder of the rows sees the change. Failures:
/// a matrix without rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix | C |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void MultiplyMatrixByConst2(TKorFloatMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorDoubleMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorSingleMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorInt64Matrix& X, Int64 C);
void MultiplyMatrixByConst2(TKorLIntMatrix& X, LongInt C);
/// @}

/// @name LinearTransformMatrix
/// @{

/// Replaces every element `x` of `X` by `x * A + B` in place, every row at its own
/// length: in Float, rounded once into the element type, for the floating members; in
/// their own width, wrapping silently, for Int64 and LongInt. Failures: a matrix without
/// rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix | A, B |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void LinearTransformMatrix(TKorFloatMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorDoubleMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorSingleMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorInt64Matrix& X, Int64 A, Int64 B);
void LinearTransformMatrix(TKorLIntMatrix& X, LongInt A, LongInt B);
/// @}

/// @name GrandMean
/// @{

/// The mean of all elements of `X`, every row at its own length, added in Float in row
/// order; `N` receives the number of elements. Failures: a matrix without rows, or
/// without any element, raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty),
/// and `N` is then left as it was.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix, TKorInt64Matrix, TKorLIntMatrix |
Float GrandMean(const TKorFloatMatrix& X, LongWord& N);
Float GrandMean(const TKorDoubleMatrix& X, LongWord& N);
Float GrandMean(const TKorSingleMatrix& X, LongWord& N);
Float GrandMean(const TKorInt64Matrix& X, LongWord& N);
Float GrandMean(const TKorLIntMatrix& X, LongWord& N);
/// @}

// ---- Row and column operations in place ---------------------------------------------------

/// @name ScaleMatrixRow
/// @{

/// Multiplies row `Row` by `Factor` in place (in Float, rounded into the element type,
/// for the floating members; wrapping for Int64 and LongInt). A `Factor` of exactly 1
/// returns at once, whatever the matrix. Failures, in this order: an empty matrix (with
/// the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not rectangular,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect); a `Row` not below `Rows`,
/// Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | Factor |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void ScaleMatrixRow(TKorFloatMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorDoubleMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorSingleMatrix& X, LongWord Row, Float Factor);
void ScaleMatrixRow(TKorInt64Matrix& X, LongWord Row, Int64 Factor);
void ScaleMatrixRow(TKorLIntMatrix& X, LongWord Row, LongInt Factor);
/// @}

/// @name ScaleMatrixCol
/// @{

/// Multiplies column `Col` by `Factor` in place, computed as in `ScaleMatrixRow`. A
/// `Factor` of exactly 1 returns at once, whatever the matrix. Failures, in this order:
/// an empty matrix (with the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not rectangular,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect); a `Col` not below `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | Factor |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void ScaleMatrixCol(TKorFloatMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorDoubleMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorSingleMatrix& X, LongWord Col, Float Factor);
void ScaleMatrixCol(TKorInt64Matrix& X, LongWord Col, Int64 Factor);
void ScaleMatrixCol(TKorLIntMatrix& X, LongWord Col, LongInt Factor);
/// @}

/// @name AddMatrixRows
/// @{

/// Adds `Factor` times row `Row2` to row `Row1` in place, element by element (in Float,
/// rounded into the element type, for the floating members; wrapping for Int64 and
/// LongInt). With `Row1` = `Row2` the row is scaled by `1 + Factor`. Failures, in this
/// order: an empty matrix (with the check on, a ragged one too) raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not
/// rectangular, Platform::EMathError (Kornum_RS_Math::rsMatrixRect); an index not
/// below `Rows`, Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | Factor |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void AddMatrixRows(TKorFloatMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorDoubleMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorSingleMatrix& X, LongWord Row1, LongWord Row2, Float Factor);
void AddMatrixRows(TKorInt64Matrix& X, LongWord Row1, LongWord Row2, Int64 Factor);
void AddMatrixRows(TKorLIntMatrix& X, LongWord Row1, LongWord Row2, LongInt Factor);
/// @}

/// @name AddMatrixCols
/// @{

/// Adds `Factor` times column `Col2` to column `Col1` in place, computed as in
/// `AddMatrixRows`. Failures, in this order: an empty matrix (with the check on, a
/// ragged one too) raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a
/// matrix that is not rectangular, Platform::EMathError (Kornum_RS_Math::rsMatrixRect);
/// an index not below `Cols`, Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | Factor |
/// |---|---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix | Float |
/// | TKorInt64Matrix | Int64 |
/// | TKorLIntMatrix | LongInt |
void AddMatrixCols(TKorFloatMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorDoubleMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorSingleMatrix& X, LongWord Col1, LongWord Col2, Float Factor);
void AddMatrixCols(TKorInt64Matrix& X, LongWord Col1, LongWord Col2, Int64 Factor);
void AddMatrixCols(TKorLIntMatrix& X, LongWord Col1, LongWord Col2, LongInt Factor);
/// @}

// ---- Floating members only -------------------------------------------------------------------
// The element-wise functions walk rows by their own length and fail part-way: elements
// visited before a bad one keep their new values.

/// @name MultiplyMatrices
/// @{

/// The matrix product `X Y`, a new `Rows(X)` x `Cols(Y)` matrix. Each element is the sum
/// over k = 0, 1, ... of `X[i][k] * Y[k][j]`, accumulated in the result element itself:
/// in Float for a Float matrix, rounded to the element type after every step for Double
/// and Single. With `KorMatrixRectangularCheck` off, elements a short row lacks count
/// as 0. Failures, in this order: unless `MatrixDimensions` reports both rectangular
/// (with the check on, an empty matrix is not), Platform::EMathError
/// (Kornum_RS_Math::rsMatrixRect); a matrix without rows, Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); `Cols(X)` different from `Rows(Y)`,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixMult).
///
/// | Matrices and result |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
TKorFloatMatrix MultiplyMatrices(const TKorFloatMatrix& X, const TKorFloatMatrix& Y);
TKorDoubleMatrix MultiplyMatrices(const TKorDoubleMatrix& X, const TKorDoubleMatrix& Y);
TKorSingleMatrix MultiplyMatrices(const TKorSingleMatrix& X, const TKorSingleMatrix& Y);
/// @}

/// @name SquareMatrix
/// @{

/// Replaces every element by its square in place (element-wise, not the matrix
/// product), computed in Float and stored in the element type, every row at its own
/// length. Failures: a matrix without rows raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void SquareMatrix(TKorFloatMatrix& X);
void SquareMatrix(TKorDoubleMatrix& X);
void SquareMatrix(TKorSingleMatrix& X);
/// @}

/// @name SqrtMatrix
/// @{

/// Replaces every element by its square root in place, computed in Float and stored in
/// the element type, row by row at each row's own length. Failures: a matrix without
/// rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); the first
/// element below 0 (exact comparison) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixNeg) part-way: the elements before it keep their new
/// values.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void SqrtMatrix(TKorFloatMatrix& X);
void SqrtMatrix(TKorDoubleMatrix& X);
void SqrtMatrix(TKorSingleMatrix& X);
/// @}

/// @name LnMatrix
/// @{

/// Replaces every element by its natural logarithm in place, computed in Float and
/// stored in the element type, row by row at each row's own length. Failures: a matrix
/// without rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); the first
/// element not above 0 (exact comparison) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixNotPos) part-way: the elements before it keep their new
/// values.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void LnMatrix(TKorFloatMatrix& X);
void LnMatrix(TKorDoubleMatrix& X);
void LnMatrix(TKorSingleMatrix& X);
/// @}

/// @name Log10Matrix
/// @{

/// Replaces every element by its base-10 logarithm (Kornummath::KorLog10) in place,
/// computed in Float and stored in the element type, row by row at each row's own
/// length. Failures: a matrix without rows raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); the first element not above 0 (exact comparison)
/// raises Platform::EMathError (Kornum_RS_Math::rsMatrixNotPos) part-way: the elements
/// before it keep their new values.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void Log10Matrix(TKorFloatMatrix& X);
void Log10Matrix(TKorDoubleMatrix& X);
void Log10Matrix(TKorSingleMatrix& X);
/// @}

/// @name InvMatrix
/// @{

/// Replaces every element `x` by its reciprocal `1 / x` in place (element-wise; the
/// matrix inverse is `MatrixInverse`), computed in Float and stored in the element type,
/// row by row at each row's own length. Failures: a matrix without rows raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); the first element exactly 0
/// (not the tolerant test) raises Platform::EMathError (Kornum_RS_Math::rsMatrixZero)
/// part-way: the elements before it keep their new values.
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void InvMatrix(TKorFloatMatrix& X);
void InvMatrix(TKorDoubleMatrix& X);
void InvMatrix(TKorSingleMatrix& X);
/// @}

// ---- Row reduction ---------------------------------------------------------------------------
// Gaussian elimination with partial pivoting, zero tests by FloatIsZero. Each leaves its
// argument reduced: a caller that needs it keeps a CopyMatrix.

/// @name RowEchelonForm
/// @{

/// Reduces `M` in place to row echelon form by Gaussian elimination with partial
/// pivoting. At each step the pivot is the entry of largest magnitude, among those not
/// zero by Kornummath::FloatIsZero, in the leftmost column that has one at or below the
/// current row; its row is exchanged into place and multiplied by the pivot's reciprocal
/// (unless the pivot is within tolerance of 1), and the rows below with an entry not zero in the
/// pivot column get that entry's multiple of it subtracted. Arithmetic is in Float,
/// rounded to the element type. `KorMatrixRectangularCheck` is off while it runs and
/// restored afterwards. Failures, in this order: an empty matrix (with the check on, a
/// ragged one too) raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a
/// matrix that is not rectangular, Platform::EMathError (Kornum_RS_Math::rsMatrixRect).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void RowEchelonForm(TKorFloatMatrix& M);
void RowEchelonForm(TKorDoubleMatrix& M);
void RowEchelonForm(TKorSingleMatrix& M);
/// @}

/// @name RowEchelonFormRank
/// @{

/// Reduces `M` in place as `RowEchelonForm` does and sets `Rank` to the number of rows
/// that are not zero afterwards (`Rows` minus `MatrixZeroRows`). `Rank` is set to 0
/// before the checks, so it is 0 after a failure. Failures, in this order: an empty
/// matrix (with the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not rectangular,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
void RowEchelonFormRank(TKorFloatMatrix& M, LongWord& Rank);
void RowEchelonFormRank(TKorDoubleMatrix& M, LongWord& Rank);
void RowEchelonFormRank(TKorSingleMatrix& M, LongWord& Rank);
/// @}

/// @name MatrixDeterminant
/// @{

/// The determinant of the square matrix `M`, from the elimination of `RowEchelonForm`:
/// the product of the pivots whose reciprocals scaled their rows, with the sign of the row
/// exchanges, times the diagonal of the reduced matrix. `M` is left reduced. A singular
/// matrix does not raise: the result is then 0 or within rounding of it. Failures, in
/// this order: an empty matrix (with the check on, a ragged one too) raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not square,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixSqr).
///
/// | Matrix |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
Float MatrixDeterminant(TKorFloatMatrix& M);
Float MatrixDeterminant(TKorDoubleMatrix& M);
Float MatrixDeterminant(TKorSingleMatrix& M);
/// @}

/// @name MatrixInverse
/// @{

/// The inverse of the square matrix `M` by Gauss-Jordan elimination: `Inv` is replaced
/// by a new identity matrix, and the row operations that reduce `M` (those of
/// `RowEchelonForm`, then the elimination above each pivot) are applied to it alike.
/// Returns true with the inverse in `Inv`; returns false when the reduced `M` has a row
/// that is zero within tolerance (a singular matrix), `Inv` then holding a partial
/// result that is not an inverse. `M` is left reduced (to the identity, within
/// rounding, on success); `Inv` may be `M` itself. Failures, in this order, with `Inv`
/// untouched: an empty matrix (with the check on, a ragged one too) raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not square,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixSqr).
///
/// | Matrices |
/// |---|
/// | TKorFloatMatrix, TKorDoubleMatrix, TKorSingleMatrix |
Boolean MatrixInverse(TKorFloatMatrix& M, TKorFloatMatrix& Inv);
Boolean MatrixInverse(TKorDoubleMatrix& M, TKorDoubleMatrix& Inv);
Boolean MatrixInverse(TKorSingleMatrix& M, TKorSingleMatrix& Inv);
/// @}
}  // namespace KornumMatrix
KORNUM_EXPORT_END
