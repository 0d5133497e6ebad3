// Sums and differences, constant multiples, the linear transform, the grand mean, the
// row and column operations, and the element-wise functions of the floating members.
#include "matrix/detail/MatrixAlgorithms.hpp"

#include <cmath>

namespace KornumMatrix {
namespace detail {
namespace {

using Kornum_RS_Math::rsMatrixNeg;
using Kornum_RS_Math::rsMatrixNotPos;
using Kornum_RS_Math::rsMatrixZero;

template <class E>
Float GrandMeanOf(const Matrix<E>& X, LongWord& N) {
    const Float sum = SumOfAll<Float>(X, N, [](Float s, ValueOf<E> x) { return s + Float(x); });
    return sum / Float(N);
}

// The checks of the row and column operations: emptiness, shape, then the indices.
template <class Module, class E>
Shape RowOperationShape(const Matrix<E>& X, LongWord index1, LongWord index2, bool rows) {
    const Shape s = Dimensions<Module>(X);
    RequireFilledRectangle(s);
    if (rows)
        Require(index1 < s.Rows && index2 < s.Rows, rsInvalidRow);
    else
        Require(index1 < s.Cols && index2 < s.Cols, rsInvalidCol);
    return s;
}

template <class Module, class E>
void ScaleRow(const Matrix<E>& X, LongWord row, typename MatrixArithmetic<E>::Factor factor) {
    if (factor == 1) return;  // exactly 1: before any check, never raises
    const Shape s = RowOperationShape<Module>(X, row, row, true);
    E* to = X[Integer(row)].data();
    for (Integer j = 0; j < Span(X[Integer(row)], s.Cols); ++j) to[j] = MatrixArithmetic<E>::Scale(factor, to[j]);
}

template <class Module, class E>
void ScaleCol(const Matrix<E>& X, LongWord col, typename MatrixArithmetic<E>::Factor factor) {
    if (factor == 1) return;  // exactly 1: before any check, never raises
    const Shape s = RowOperationShape<Module>(X, col, col, false);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        if (Holds(X, i, col)) X[i][Integer(col)] = MatrixArithmetic<E>::Scale(factor, X[i][Integer(col)]);
}

template <class Module, class E>
void AddRows(const Matrix<E>& X, LongWord row1, LongWord row2, typename MatrixArithmetic<E>::Factor factor) {
    const Shape s = RowOperationShape<Module>(X, row1, row2, true);
    AddRowMultiple(X, Integer(row1), Integer(row2), factor, s.Cols);
}

template <class Module, class E>
void AddCols(const Matrix<E>& X, LongWord col1, LongWord col2, typename MatrixArithmetic<E>::Factor factor) {
    const Shape s = RowOperationShape<Module>(X, col1, col2, false);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        if (Holds(X, i, col1) && Holds(X, i, col2))
            X[i][Integer(col1)] = MatrixArithmetic<E>::AddScaled(X[i][Integer(col1)], factor, X[i][Integer(col2)]);
}

// The element-wise functions of the floating members: computed in Float, stored in the
// element type.
template <class E>
void Square(const Matrix<E>& X) {
    MapEachInPlace(X, [](Float x) { return x * x; });
}
template <class E>
void Sqrt(const Matrix<E>& X) {
    MapEachInPlace(X, [](Float x) {
        Require(!(x < 0), rsMatrixNeg);
        return std::sqrt(x);
    });
}
template <class E, class Log>
void Logarithm(const Matrix<E>& X, Log log) {
    MapEachInPlace(X, [log](Float x) {
        Require(!(x <= 0), rsMatrixNotPos);
        return log(x);
    });
}
// Element-wise reciprocal; only an element exactly 0 fails (not the tolerant test).
template <class E>
void Reciprocal(const Matrix<E>& X) {
    MapEachInPlace(X, [](Float x) {
        Require(x != 0, rsMatrixZero);
        return 1 / x;
    });
}

}  // namespace
}  // namespace detail

using detail::MatrixArithmetic;
using detail::NumericModule;

#define KORNUM_DEFINE_ARITHMETIC(MT, VT, T, Name)                                                        \
    using Arithmetic##Name = MatrixArithmetic<VT::value_type>;                                         \
    using Factor##Name = Arithmetic##Name::Factor;                                                     \
    MT AddMatrices(const MT& X, const MT& Y) {                                                         \
        return detail::Combined<NumericModule>(X, Y, Arithmetic##Name::Add);                           \
    }                                                                                                  \
    MT SubtractMatrices(const MT& X, const MT& Y) {                                                    \
        return detail::Combined<NumericModule>(X, Y, Arithmetic##Name::Subtract);                      \
    }                                                                                                  \
    void AddToMatrix(MT& X, const MT& Y) { detail::CombineInPlace<NumericModule>(X, Y, Arithmetic##Name::Add); } \
    void SubtractFromMatrix(MT& X, const MT& Y) {                                                      \
        detail::CombineInPlace<NumericModule>(X, Y, Arithmetic##Name::Subtract);                       \
    }                                                                                                  \
    MT MultiplyMatrixByConst(const MT& X, Factor##Name C) {                                            \
        return detail::MapEachToNew(X, [C](T x) { return Arithmetic##Name::Scale(C, x); });            \
    }                                                                                                  \
    void MultiplyMatrixByConst2(MT& X, Factor##Name C) {                                               \
        detail::MapEachInPlace(X, [C](T x) { return Arithmetic##Name::Scale(C, x); });                 \
    }                                                                                                  \
    void LinearTransformMatrix(MT& X, Factor##Name A, Factor##Name B) {                                \
        detail::MapEachInPlace(X, [A, B](T x) { return Arithmetic##Name::MultiplyAdd(x, A, B); });    \
    }                                                                                                  \
    Float GrandMean(const MT& X, LongWord& N) { return detail::GrandMeanOf(X, N); }                    \
    void ScaleMatrixRow(MT& X, LongWord Row, Factor##Name Factor) { detail::ScaleRow<NumericModule>(X, Row, Factor); } \
    void ScaleMatrixCol(MT& X, LongWord Col, Factor##Name Factor) { detail::ScaleCol<NumericModule>(X, Col, Factor); } \
    void AddMatrixRows(MT& X, LongWord Row1, LongWord Row2, Factor##Name Factor) {                     \
        detail::AddRows<NumericModule>(X, Row1, Row2, Factor);                                         \
    }                                                                                                  \
    void AddMatrixCols(MT& X, LongWord Col1, LongWord Col2, Factor##Name Factor) {                     \
        detail::AddCols<NumericModule>(X, Col1, Col2, Factor);                                         \
    }
KORNUM_MATRIX_FIVE(KORNUM_DEFINE_ARITHMETIC)
#undef KORNUM_DEFINE_ARITHMETIC

#define KORNUM_DEFINE_ELEMENTWISE(MT, VT, T, Name)                                                        \
    void SquareMatrix(MT& X) { detail::Square(X); }                                                    \
    void SqrtMatrix(MT& X) { detail::Sqrt(X); }                                                        \
    void LnMatrix(MT& X) { detail::Logarithm(X, [](Float x) { return std::log(x); }); }                 \
    void Log10Matrix(MT& X) { detail::Logarithm(X, Kornummath::KorLog10); }                            \
    void InvMatrix(MT& X) { detail::Reciprocal(X); }
KORNUM_MATRIX_FLOATING(KORNUM_DEFINE_ELEMENTWISE)
#undef KORNUM_DEFINE_ELEMENTWISE

}  // namespace KornumMatrix
