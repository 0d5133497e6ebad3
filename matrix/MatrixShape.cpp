// Creation, the shape probes, copies, rows and columns as vectors, swaps,
// transposition, the two sorts, and the zero-row and identity tests.
#include "matrix/detail/MatrixAlgorithms.hpp"

namespace KornumMatrix {

Boolean KorMatrixRectangularCheck = true;

namespace detail {
namespace {

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
