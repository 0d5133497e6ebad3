// Creation, the shape probes, copies, rows and columns as vectors, swaps,
// transposition, the two sorts, and the zero-row and identity tests.
#include "MatrixRules.hpp"

#include "../vector/QuickSortScheme.hpp"

namespace KornumMatrix {

Boolean KorMatrixRectangularCheck = true;

namespace detail {
namespace {

template <class E>
bool IsRectangular(const Matrix<E>& M) noexcept {
    if (M.Length() == 0) return false;
    for (Integer i = 1; i < M.Length(); ++i)
        if (M[i].Length() != M[0].Length()) return false;
    return true;
}

template <class Module, class E>
bool IsSquare(const Matrix<E>& M) noexcept {
    const Shape s = Dimensions<Module>(M);
    return s.Rectangular && s.Rows == s.Cols;
}

template <class Module, class E>
bool SameDimensions(const Matrix<E>& X, const Matrix<E>& Y) noexcept {
    const Shape a = Dimensions<Module>(X), b = Dimensions<Module>(Y);
    return a.Rectangular && b.Rectangular && a.Rows == b.Rows && a.Cols == b.Cols;
}

// Row by row, each of its own length, every element converted to To.
template <class To, class E>
Matrix<To> MapRows(const Matrix<E>& M) {
    Matrix<To> result;
    result.SetLength(M.Length());
    for (Integer i = 0; i < M.Length(); ++i)
        result[i] = MapToNew<To>(M[i], [](const E& x) { return ValueOf<To>(ValueOf<E>(x)); });
    return result;
}

template <class Module, class E>
TKorVector<E> ExtractRow(const Matrix<E>& M, LongWord row) {
    TKorVector<E> result;
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return result;
    Require(row < s.Rows, rsInvalidRow);
    result.SetLength(Integer(s.Cols));
    for (Integer j = 0; j < Span(M[Integer(row)], s.Cols); ++j) result[j] = M[Integer(row)][j];
    return result;
}

template <class Module, class E>
TKorVector<E> ExtractCol(const Matrix<E>& M, LongWord col) {
    TKorVector<E> result;
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return result;
    Require(col < s.Cols, rsInvalidCol);
    result.SetLength(Integer(s.Rows));
    for (Integer i = 0; i < Integer(s.Rows); ++i) result[i] = ValueAt(M, i, col);
    return result;
}

// V[j] where V has it, Default past its end.
template <class E>
E PaddedAt(const TKorVector<E>& V, Integer j, ValueOf<E> fallback) noexcept {
    return j < V.Length() ? V[j] : E(fallback);
}

template <class Module, class E>
void OverwriteRow(const Matrix<E>& M, LongWord row, const TKorVector<E>& V, ValueOf<E> fallback) {
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return;
    Require(row < s.Rows, rsInvalidRow);
    for (Integer j = 0; j < Span(M[Integer(row)], s.Cols); ++j) M[Integer(row)][j] = PaddedAt(V, j, fallback);
}

template <class Module, class E>
void OverwriteCol(const Matrix<E>& M, LongWord col, const TKorVector<E>& V, ValueOf<E> fallback) {
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return;
    Require(col < s.Cols, rsInvalidCol);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        if (Holds(M, i, col)) M[i][Integer(col)] = PaddedAt(V, i, fallback);
}

template <class Module, class E>
void SwapRows(const Matrix<E>& M, LongWord row1, LongWord row2) {
    if (row1 == row2) return;  // before any check: never raises
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    Require(row1 < s.Rows && row2 < s.Rows, rsInvalidRow);
    ExchangeRows(M, Integer(row1), Integer(row2), s.Cols);
}

template <class Module, class E>
void SwapCols(const Matrix<E>& M, LongWord col1, LongWord col2) {
    if (col1 == col2) return;  // before any check: never raises
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    Require(col1 < s.Cols && col2 < s.Cols, rsInvalidCol);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        if (Holds(M, i, col1) && Holds(M, i, col2)) Kornumsystem::SwapXY(M[i][Integer(col1)], M[i][Integer(col2)]);
}

// Rectangularity is tested first, so an empty matrix raises rsMatrixRect while the check
// is on.
template <class Module, class E>
Matrix<E> Transpose(const Matrix<E>& M) {
    Matrix<E> result;
    const Shape s = Dimensions<Module>(M);
    Require(s.Rectangular, rsMatrixRect);
    if (s.Empty()) return result;
    result = Create<E>(s.Cols, s.Rows);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        for (Integer j = 0; j < Span(M[i], s.Cols); ++j) result[j][i] = M[i][j];
    return result;
}

// Whole rows keyed by their element in one column, exchanged as SwapMatrixRows does.
template <class Module, class E>
struct RowItems {
    using Key = ValueOf<E>;
    const Matrix<E>& M;
    LongWord col;
    Key KeyAt(Integer row) const noexcept { return ValueAt(M, row, col); }
    void Exchange(Integer a, Integer b) const { SwapRows<Module>(M, LongWord(a), LongWord(b)); }
};

// Whole columns keyed by their element in one row, exchanged as SwapMatrixCols does.
template <class Module, class E>
struct ColItems {
    using Key = ValueOf<E>;
    const Matrix<E>& M;
    Integer row;
    Key KeyAt(Integer col) const noexcept { return ValueAt(M, row, col); }
    void Exchange(Integer a, Integer b) const { SwapCols<Module>(M, LongWord(a), LongWord(b)); }
};

template <class Module, class E>
void SortRowsOnCol(const Matrix<E>& M, LongWord col, bool ascending) {
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return;  // a single row or column is neither sorted nor checked
    Require(s.Rectangular, rsMatrixRect);
    Require(col < s.Cols, rsInvalidCol);
    RowItems<Module, E> items{M, col};
    QuickSortItems(items, Integer(s.Rows), ascending);
}

template <class Module, class E>
void SortColsOnRow(const Matrix<E>& M, LongWord row, bool ascending) {
    const Shape s = Dimensions<Module>(M);
    if (!s.Acts()) return;  // a single row or column is neither sorted nor checked
    Require(s.Rectangular, rsMatrixRect);
    Require(row < s.Rows, rsInvalidRow);
    ColItems<Module, E> items{M, Integer(row)};
    QuickSortItems(items, Integer(s.Cols), ascending);
}

template <class Module, class E>
bool IsIdentity(const Matrix<E>& M) {
    const Shape s = Dimensions<Module>(M);
    RequireFilledSquare(s);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        for (Integer j = 0; j < Integer(s.Cols); ++j) {
            const Float x = Float(ValueAt(M, i, LongWord(j)));
            if (!Kornummath::FloatIsZero(i == j ? x - 1 : x)) return false;
        }
    return true;
}

}  // namespace
}  // namespace detail

using detail::NumericModule;

#define KORNUM_DEFINE_SHAPE(MT, VT, T, Name)                                                           \
    MT Create##Name##Matrix(LongWord Rows, LongWord Cols) { return detail::Create<VT::value_type>(Rows, Cols); } \
    MT Create##Name##IdentityMatrix(LongWord N) { return detail::CreateIdentity<VT::value_type>(N); }  \
    Boolean MatrixIsRectangular(const MT& M) { return detail::IsRectangular(M); }                      \
    void MatrixDimensions(const MT& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular) {         \
        const detail::Shape s = detail::Dimensions<NumericModule>(M);                                  \
        Rows = s.Rows;                                                                                 \
        Cols = s.Cols;                                                                                 \
        Rectangular = s.Rectangular;                                                                   \
    }                                                                                                  \
    Boolean MatrixIsSquare(const MT& M) { return detail::IsSquare<NumericModule>(M); }                 \
    Boolean MatricesSameDimensions(const MT& X, const MT& Y) {                                         \
        return detail::SameDimensions<NumericModule>(X, Y);                                            \
    }                                                                                                  \
    MT CopyMatrix(const MT& M) { return detail::MapRows<VT::value_type>(M); }                          \
    TKorFloatMatrix Matrix2FloatMatrix(const MT& M) { return detail::MapRows<PackedFloat>(M); }        \
    VT ExtractMatrixRow(const MT& M, LongWord Row) { return detail::ExtractRow<NumericModule>(M, Row); } \
    VT ExtractMatrixCol(const MT& M, LongWord Col) { return detail::ExtractCol<NumericModule>(M, Col); } \
    void OverwriteMatrixRow(MT& M, LongWord Row, const VT& V, T Default) {                             \
        detail::OverwriteRow<NumericModule>(M, Row, V, Default);                                       \
    }                                                                                                  \
    void OverwriteMatrixCol(MT& M, LongWord Col, const VT& V, T Default) {                             \
        detail::OverwriteCol<NumericModule>(M, Col, V, Default);                                       \
    }                                                                                                  \
    void SwapMatrixRows(MT& M, LongWord Row1, LongWord Row2) { detail::SwapRows<NumericModule>(M, Row1, Row2); } \
    void SwapMatrixCols(MT& M, LongWord Col1, LongWord Col2) { detail::SwapCols<NumericModule>(M, Col1, Col2); } \
    MT TransposeMatrix(const MT& M) { return detail::Transpose<NumericModule>(M); }                    \
    void QSortMatrixRowsOnCol(MT& M, LongWord Col, Boolean Ascending) {                                \
        detail::SortRowsOnCol<NumericModule>(M, Col, Ascending);                                       \
    }                                                                                                  \
    void QSortMatrixColsOnRow(MT& M, LongWord Row, Boolean Ascending) {                                \
        detail::SortColsOnRow<NumericModule>(M, Row, Ascending);                                       \
    }
KORNUM_MATRIX_ALL(KORNUM_DEFINE_SHAPE)
#undef KORNUM_DEFINE_SHAPE

#define KORNUM_DEFINE_FLOATING_TESTS(MT, VT, T, Name)                                     \
    LongWord MatrixZeroRows(const MT& M) { return detail::ZeroRows<NumericModule>(M); }    \
    Boolean MatrixIsIdentity(const MT& M) { return detail::IsIdentity<NumericModule>(M); }
KORNUM_MATRIX_FLOATING(KORNUM_DEFINE_FLOATING_TESTS)
#undef KORNUM_DEFINE_FLOATING_TESTS

}  // namespace KornumMatrix
