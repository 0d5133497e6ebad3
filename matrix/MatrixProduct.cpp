// The matrix product of the floating members.
//
// Each element of the product is the sum over k = 0, 1, ... of X[i][k] * Y[k][j], in
// that order, accumulated in the result element itself: in Float for a Float matrix
// (whose elements hold a Float exactly), rounded to the element type after every step
// for Double and Single. Any loop order that keeps each element's k order gives the same
// bits, so the product is computed by the blocked kernel, two rows by two columns at a
// time, with Y's columns copied once into contiguous panels.
#include "matrix/detail/MatrixKernels.hpp"

#include <algorithm>
#include <vector>

namespace KornumMatrix {
namespace detail {
namespace {

using Kornum_RS_Math::rsMatrixMult;

// M itself when every row holds cols elements; otherwise (a ragged matrix taken with
// the check off) a copy whose rows are cut or padded with zeros to cols.
template <class E>
Matrix<E> WithRowsOf(const Matrix<E>& M, Integer cols) {
    if (std::all_of(M.begin(), M.end(), [cols](const TKorVector<E>& row) { return row.Length() >= cols; })) return M;
    Matrix<E> padded = Create<E>(LongWord(M.Length()), LongWord(cols));
    for (Integer i = 0; i < M.Length(); ++i)
        for (Integer j = 0; j < Span(M[i], LongWord(cols)); ++j) padded[i][j] = M[i][j];
    return padded;
}

template <class Module, class E>
Matrix<E> Product(const Matrix<E>& X0, const Matrix<E>& Y0) {
    const Shape xs = Dimensions<Module>(X0), ys = Dimensions<Module>(Y0);
    Require(xs.Rectangular && ys.Rectangular, rsMatrixRect);
    Require(xs.Rows > 0 && ys.Rows > 0, rsMatrixIsEmpty);
    Require(xs.Cols == ys.Rows, rsMatrixMult);
    const Integer rows = Integer(xs.Rows), depth = Integer(xs.Cols), cols = Integer(ys.Cols);
    const Matrix<E> X = WithRowsOf(X0, depth), Y = WithRowsOf(Y0, cols);
    Matrix<E> R = Create<E>(LongWord(rows), LongWord(cols));

    std::vector<Float> panels;
    PackPanels(panels, depth, cols, [&Y](Integer k, Integer j) { return Float(ValueOf<E>(Y[k][j])); });
    AccumulateAll<E, E, true>(
        rows, panels, depth, cols, [&R](Integer i) { return R[i].data(); }, [&X](Integer i) { return X[i].data(); });
    return R;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_PRODUCT(MT, VT, T, Name) \
    MT MultiplyMatrices(const MT& X, const MT& Y) { return detail::Product<detail::NumericModule>(X, Y); }
KORNUM_MATRIX_FLOATING(KORNUM_DEFINE_PRODUCT)
#undef KORNUM_DEFINE_PRODUCT

}  // namespace KornumMatrix
