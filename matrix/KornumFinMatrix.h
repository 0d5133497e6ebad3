/// @file
/// The matrix routines of the three currency element types: `KorCurrency` (hundredths,
/// 32 bits), `KorLongCurrency` (millionths, 64 bits) and `Currency` (ten-thousandths,
/// 64 bits). `TKorCurrMatrix` and `TKorLongCurrMatrix` are the same types as the 32- and
/// 64-bit integer matrices; these overloads, in their own namespace, read the elements
/// as amounts. Each family behaves as its namesake in KornumMatrix (checks, messages,
/// loop order and guards) except where its documentation here says otherwise, and the
/// shape checks rest on this module's own `KorMatrixRectangularCheck`. There is no
/// product and no reduction.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>

/// The currency matrix module: the matrix routines of `TKorCurrMatrix`,
/// `TKorLongCurrMatrix` and `TKorCurrencyMatrix` (see @ref page_matrices).
KORNUM_EXPORT_BEGIN
namespace KornumFinMatrix {

using namespace Kornumglobals;

/// Switches the raggedness test of this module's `MatrixDimensions`, as
/// KornumMatrix::KorMatrixRectangularCheck does for the numeric matrices, and
/// independently of it: every shape check of this module rests on this switch alone.
/// True at load.
extern Boolean KorMatrixRectangularCheck;

// ---- Creation -------------------------------------------------------------------------------

/// @name Create...Matrix
/// @{

/// A new `Rows` x `Cols` matrix of zero amounts, every row with storage of its own. A
/// `Rows` of 0 gives the empty matrix; a `Cols` of 0 gives `Rows` empty rows. Never
/// raises.
///
/// | Routine | Result |
/// |---|---|
/// | CreateCurrMatrix | TKorCurrMatrix |
/// | CreateLongCurrMatrix | TKorLongCurrMatrix |
/// | CreateCurrencyMatrix | TKorCurrencyMatrix |
TKorCurrMatrix CreateCurrMatrix(LongWord Rows, LongWord Cols);
TKorLongCurrMatrix CreateLongCurrMatrix(LongWord Rows, LongWord Cols);
TKorCurrencyMatrix CreateCurrencyMatrix(LongWord Rows, LongWord Cols);
/// @}

/// @name Create...IdentityMatrix
/// @{

/// A new `N` x `N` matrix with the amount 1 on the diagonal and 0 elsewhere: the stored
/// diagonal is 100, 1,000,000 or 10,000. An `N` of 0 gives the empty matrix. Never
/// raises.
///
/// | Routine | Result | Stored diagonal |
/// |---|---|---|
/// | CreateCurrIdentityMatrix | TKorCurrMatrix | 100 |
/// | CreateLongCurrIdentityMatrix | TKorLongCurrMatrix | 1,000,000 |
/// | CreateCurrencyIdentityMatrix | TKorCurrencyMatrix | 10,000 |
TKorCurrMatrix CreateCurrIdentityMatrix(LongWord N);
TKorLongCurrMatrix CreateLongCurrIdentityMatrix(LongWord N);
TKorCurrencyMatrix CreateCurrencyIdentityMatrix(LongWord N);
/// @}

// ---- Shape, copies, moves and sorts -----------------------------------------------------------

/// @name MatrixIsRectangular
/// @{

/// Whether `M` has rows and every row has row 0's length, as
/// KornumMatrix::MatrixIsRectangular; it ignores `KorMatrixRectangularCheck`. Never
/// raises.
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
Boolean MatrixIsRectangular(const TKorCurrMatrix& M);
Boolean MatrixIsRectangular(const TKorLongCurrMatrix& M);
Boolean MatrixIsRectangular(const TKorCurrencyMatrix& M);
/// @}

/// @name MatrixDimensions
/// @{

/// `Rows`, `Cols` (the length of row 0) and whether `M` counts as rectangular, as
/// KornumMatrix::MatrixDimensions but under this module's `KorMatrixRectangularCheck`:
/// with it on, an empty or ragged matrix is not rectangular and a ragged one reports
/// `Cols` = 0; with it off, every matrix is rectangular. Never raises.
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void MatrixDimensions(const TKorCurrMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorLongCurrMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
void MatrixDimensions(const TKorCurrencyMatrix& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular);
/// @}

/// @name MatrixIsSquare
/// @{

/// Whether `MatrixDimensions` reports `M` rectangular with `Rows` = `Cols`. Never
/// raises.
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
Boolean MatrixIsSquare(const TKorCurrMatrix& M);
Boolean MatrixIsSquare(const TKorLongCurrMatrix& M);
Boolean MatrixIsSquare(const TKorCurrencyMatrix& M);
/// @}

/// @name MatricesSameDimensions
/// @{

/// Whether `MatrixDimensions` reports both matrices rectangular with the same `Rows`
/// and `Cols`. Never raises.
///
/// | Matrices |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
Boolean MatricesSameDimensions(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
Boolean MatricesSameDimensions(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
Boolean MatricesSameDimensions(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);
/// @}

/// @name CopyMatrix
/// @{

/// A new matrix with storage of its own, every row copied at its own length. Never
/// raises.
///
/// | Matrix and result |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
TKorCurrMatrix CopyMatrix(const TKorCurrMatrix& M);
TKorLongCurrMatrix CopyMatrix(const TKorLongCurrMatrix& M);
TKorCurrencyMatrix CopyMatrix(const TKorCurrencyMatrix& M);
/// @}

/// @name Matrix2FloatMatrix
/// @{

/// A new `TKorFloatMatrix`, every row at its own length. The members deliberately
/// disagree: `KorCurrency` and `KorLongCurrency` copy the stored integer (the amount
/// 1.00 becomes 100 and 1,000,000), while `Currency` gives the amount (1.00 becomes 1).
/// Never raises.
///
/// | Matrix | Each element becomes |
/// |---|---|
/// | TKorCurrMatrix | the stored integer (hundredths) |
/// | TKorLongCurrMatrix | the stored integer (millionths) |
/// | TKorCurrencyMatrix | the amount, stored value / 10,000 |
TKorFloatMatrix Matrix2FloatMatrix(const TKorCurrMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorLongCurrMatrix& M);
TKorFloatMatrix Matrix2FloatMatrix(const TKorCurrencyMatrix& M);
/// @}

/// @name ExtractMatrixRow
/// @{

/// A new vector holding row `Row`, as KornumMatrix::ExtractMatrixRow: it acts only when
/// `MatrixDimensions` gives `Rows` > 1 and `Cols` > 1, and returns an empty vector
/// without any check otherwise. Failures: a `Row` not below `Rows` raises
/// Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | Result |
/// |---|---|
/// | TKorCurrMatrix | TKorCurrVector |
/// | TKorLongCurrMatrix | TKorLongCurrVector |
/// | TKorCurrencyMatrix | TKorCurrencyVector |
TKorCurrVector ExtractMatrixRow(const TKorCurrMatrix& M, LongWord Row);
TKorLongCurrVector ExtractMatrixRow(const TKorLongCurrMatrix& M, LongWord Row);
TKorCurrencyVector ExtractMatrixRow(const TKorCurrencyMatrix& M, LongWord Row);
/// @}

/// @name ExtractMatrixCol
/// @{

/// A new vector holding column `Col`, as KornumMatrix::ExtractMatrixCol: it acts only
/// when `MatrixDimensions` gives `Rows` > 1 and `Cols` > 1, and returns an empty vector
/// without any check otherwise. Failures: a `Col` not below `Cols` raises
/// Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | Result |
/// |---|---|
/// | TKorCurrMatrix | TKorCurrVector |
/// | TKorLongCurrMatrix | TKorLongCurrVector |
/// | TKorCurrencyMatrix | TKorCurrencyVector |
TKorCurrVector ExtractMatrixCol(const TKorCurrMatrix& M, LongWord Col);
TKorLongCurrVector ExtractMatrixCol(const TKorLongCurrMatrix& M, LongWord Col);
TKorCurrencyVector ExtractMatrixCol(const TKorCurrencyMatrix& M, LongWord Col);
/// @}

/// @name OverwriteMatrixRow
/// @{

/// Writes `V` into row `Row` in place, padding with `Default` past the end of `V`, as
/// KornumMatrix::OverwriteMatrixRow: it acts only when `MatrixDimensions` gives
/// `Rows` > 1 and `Cols` > 1, and does nothing, unchecked, otherwise. Failures: a `Row`
/// not below `Rows` raises Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix | V | Default |
/// |---|---|---|
/// | TKorCurrMatrix | TKorCurrVector | KorCurrency |
/// | TKorLongCurrMatrix | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyMatrix | TKorCurrencyVector | Currency |
void OverwriteMatrixRow(TKorCurrMatrix& M, LongWord Row, const TKorCurrVector& V, KorCurrency Default);
void OverwriteMatrixRow(TKorLongCurrMatrix& M, LongWord Row, const TKorLongCurrVector& V, KorLongCurrency Default);
void OverwriteMatrixRow(TKorCurrencyMatrix& M, LongWord Row, const TKorCurrencyVector& V, Currency Default);
/// @}

/// @name OverwriteMatrixCol
/// @{

/// Writes `V` into column `Col` in place, padding with `Default` past the end of `V`, as
/// KornumMatrix::OverwriteMatrixCol: it acts only when `MatrixDimensions` gives
/// `Rows` > 1 and `Cols` > 1, and does nothing, unchecked, otherwise. Failures: a `Col`
/// not below `Cols` raises Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix | V | Default |
/// |---|---|---|
/// | TKorCurrMatrix | TKorCurrVector | KorCurrency |
/// | TKorLongCurrMatrix | TKorLongCurrVector | KorLongCurrency |
/// | TKorCurrencyMatrix | TKorCurrencyVector | Currency |
void OverwriteMatrixCol(TKorCurrMatrix& M, LongWord Col, const TKorCurrVector& V, KorCurrency Default);
void OverwriteMatrixCol(TKorLongCurrMatrix& M, LongWord Col, const TKorLongCurrVector& V, KorLongCurrency Default);
void OverwriteMatrixCol(TKorCurrencyMatrix& M, LongWord Col, const TKorCurrencyVector& V, Currency Default);
/// @}

/// @name SwapMatrixRows
/// @{

/// Exchanges rows `Row1` and `Row2` in place, element by element, as
/// KornumMatrix::SwapMatrixRows; equal indices return at once, whatever the matrix.
/// Failures, in this order: an empty matrix (with the check on, a ragged one too)
/// raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not
/// rectangular, Platform::EMathError (Kornum_RS_Math::rsMatrixRect); an index not below
/// `Rows`, Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void SwapMatrixRows(TKorCurrMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorLongCurrMatrix& M, LongWord Row1, LongWord Row2);
void SwapMatrixRows(TKorCurrencyMatrix& M, LongWord Row1, LongWord Row2);
/// @}

/// @name SwapMatrixCols
/// @{

/// Exchanges columns `Col1` and `Col2` in place, as KornumMatrix::SwapMatrixCols; equal
/// indices return at once, whatever the matrix. Failures, in this order: an empty
/// matrix (with the check on, a ragged one too) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); a matrix that is not rectangular,
/// Platform::EMathError (Kornum_RS_Math::rsMatrixRect); an index not below `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void SwapMatrixCols(TKorCurrMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorLongCurrMatrix& M, LongWord Col1, LongWord Col2);
void SwapMatrixCols(TKorCurrencyMatrix& M, LongWord Col1, LongWord Col2);
/// @}

/// @name TransposeMatrix
/// @{

/// A new `Cols` x `Rows` matrix with element `[j][i]` = `M[i][j]`, as
/// KornumMatrix::TransposeMatrix. Failures: a matrix `MatrixDimensions` does not report
/// rectangular (with the check on, an empty one included) raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixRect).
///
/// | Matrix and result |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
TKorCurrMatrix TransposeMatrix(const TKorCurrMatrix& M);
TKorLongCurrMatrix TransposeMatrix(const TKorLongCurrMatrix& M);
TKorCurrencyMatrix TransposeMatrix(const TKorCurrencyMatrix& M);
/// @}

/// @name QSortMatrixRowsOnCol
/// @{

/// Sorts the rows in place on their element in column `Col`, by exact comparison of the
/// stored values, as KornumMatrix::QSortMatrixRowsOnCol (not stable; nothing happens,
/// unchecked, unless `Rows` > 1 and `Cols` > 1). Failures: a `Col` not below `Cols`
/// raises Platform::EMathError (Kornum_RS_Math::rsInvalidCol).
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void QSortMatrixRowsOnCol(TKorCurrMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorLongCurrMatrix& M, LongWord Col, Boolean Ascending);
void QSortMatrixRowsOnCol(TKorCurrencyMatrix& M, LongWord Col, Boolean Ascending);
/// @}

/// @name QSortMatrixColsOnRow
/// @{

/// Sorts the columns in place on their element in row `Row`, by exact comparison of the
/// stored values, as KornumMatrix::QSortMatrixColsOnRow (not stable; nothing happens,
/// unchecked, unless `Rows` > 1 and `Cols` > 1). Failures: a `Row` not below `Rows`
/// raises Platform::EMathError (Kornum_RS_Math::rsInvalidRow).
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void QSortMatrixColsOnRow(TKorCurrMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorLongCurrMatrix& M, LongWord Row, Boolean Ascending);
void QSortMatrixColsOnRow(TKorCurrencyMatrix& M, LongWord Row, Boolean Ascending);
/// @}

// ---- Arithmetic ----------------------------------------------------------------------------------

/// @name AddMatrices
/// @{

/// A new matrix of the sums `X[i][j] + Y[i][j]`, of `X`'s shape: exact integer sums of
/// the stored values, wrapping in 32 bits for `KorCurrency` and in 64 bits for the
/// others. Failures, in this order: an `X` without rows or with an empty row 0 raises
/// Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); unless `MatrixDimensions`
/// reports both rectangular with the same `Rows` and `Cols`, Platform::EMathError
/// (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices and result |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
TKorCurrMatrix AddMatrices(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
TKorLongCurrMatrix AddMatrices(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
TKorCurrencyMatrix AddMatrices(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);
/// @}

/// @name SubtractMatrices
/// @{

/// A new matrix of the differences `X[i][j] - Y[i][j]`, of `X`'s shape: exact integer
/// differences of the stored values, wrapping in 32 bits for `KorCurrency` and in 64
/// bits for the others. Failures, in this order: an `X` without rows or with an empty
/// row 0 raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); unless
/// `MatrixDimensions` reports both rectangular with the same `Rows` and `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices and result |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
TKorCurrMatrix SubtractMatrices(const TKorCurrMatrix& X, const TKorCurrMatrix& Y);
TKorLongCurrMatrix SubtractMatrices(const TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
TKorCurrencyMatrix SubtractMatrices(const TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);
/// @}

/// @name AddToMatrix
/// @{

/// Adds `Y` to `X` element by element in place, with the exact wrapping sums of
/// `AddMatrices`. Failures, in this order: an `X` without rows or with an empty row 0
/// raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty); unless
/// `MatrixDimensions` reports both rectangular with the same `Rows` and `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void AddToMatrix(TKorCurrMatrix& X, const TKorCurrMatrix& Y);
void AddToMatrix(TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
void AddToMatrix(TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);
/// @}

/// @name SubtractFromMatrix
/// @{

/// Subtracts `Y` from `X` element by element in place, with the exact wrapping
/// differences of `SubtractMatrices`. Failures, in this order: an `X` without rows or
/// with an empty row 0 raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty);
/// unless `MatrixDimensions` reports both rectangular with the same `Rows` and `Cols`,
/// Platform::EMathError (Kornum_RS_Math::rsSameDimensions).
///
/// | Matrices |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void SubtractFromMatrix(TKorCurrMatrix& X, const TKorCurrMatrix& Y);
void SubtractFromMatrix(TKorLongCurrMatrix& X, const TKorLongCurrMatrix& Y);
void SubtractFromMatrix(TKorCurrencyMatrix& X, const TKorCurrencyMatrix& Y);
/// @}

/// @name MultiplyMatrixByConst
/// @{

/// A new matrix whose stored values are `X`'s stored values times `C`, formed in Float
/// and rounded to the nearest integer (ties to even), every row at its own length. A
/// result beyond the stored type's range is not detected (a `KorCurrency` keeps the
/// low 32 bits). Failures: a matrix without rows raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix and result |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
TKorCurrMatrix MultiplyMatrixByConst(const TKorCurrMatrix& X, Float C);
TKorLongCurrMatrix MultiplyMatrixByConst(const TKorLongCurrMatrix& X, Float C);
TKorCurrencyMatrix MultiplyMatrixByConst(const TKorCurrencyMatrix& X, Float C);
/// @}

/// @name MultiplyMatrixByConst2
/// @{

/// Multiplies every stored value of `X` by `C` in place, rounded as
/// `MultiplyMatrixByConst` rounds it, every row at its own length. Failures: a matrix
/// without rows raises Platform::EMathError (Kornum_RS_Math::rsMatrixIsEmpty).
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void MultiplyMatrixByConst2(TKorCurrMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorLongCurrMatrix& X, Float C);
void MultiplyMatrixByConst2(TKorCurrencyMatrix& X, Float C);
/// @}

/// @name LinearTransformMatrix
/// @{

/// Replaces every amount `x` of `X` by `x * A + B` in place, every row at its own
/// length, as KornumFinVector::LinearTransformVector computes it: through
/// Kornumfinancials::Currency2Float and Kornumfinancials::Float2KorCurrency or
/// Kornumfinancials::Float2KorLongCurrency for the two integer members; as
/// `stored * A + B * 10,000` in Float, rounded, without a range check, for `Currency`.
/// Every element is computed before any is stored, so on failure `X` is left as it was.
/// Failures, in this order: a matrix without rows raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty); for the two integer members, a result out of the
/// element's range raises Platform::ERangeError naming the value and the type.
///
/// | Matrix |
/// |---|
/// | TKorCurrMatrix, TKorLongCurrMatrix, TKorCurrencyMatrix |
void LinearTransformMatrix(TKorCurrMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorLongCurrMatrix& X, Float A, Float B);
void LinearTransformMatrix(TKorCurrencyMatrix& X, Float A, Float B);
/// @}

/// @name GrandMean
/// @{

/// The mean of all amounts of `X`, every row at its own length, in the element type:
/// the stored values summed in their own width (a `KorCurrency` sum in 32 bits wraps
/// silently, deliberately; the others in 64), divided by `N` in Float and rounded to the
/// nearest stored unit. `N` receives the number of elements. Failures: a matrix without
/// rows, or without any element, raises Platform::EMathError
/// (Kornum_RS_Math::rsMatrixIsEmpty), and `N` is then left as it was.
///
/// | Matrix | Result |
/// |---|---|
/// | TKorCurrMatrix | KorCurrency |
/// | TKorLongCurrMatrix | KorLongCurrency |
/// | TKorCurrencyMatrix | Currency |
KorCurrency GrandMean(const TKorCurrMatrix& X, LongWord& N);
KorLongCurrency GrandMean(const TKorLongCurrMatrix& X, LongWord& N);
Currency GrandMean(const TKorCurrencyMatrix& X, LongWord& N);
/// @}

}  // namespace KornumFinMatrix
KORNUM_EXPORT_END
