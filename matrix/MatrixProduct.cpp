// The matrix product of the floating members.
//
// Each element of the product is the sum over k = 0, 1, ... of X[i][k] * Y[k][j], in
// that order, accumulated in the result element itself: in Float for a Float matrix
// (whose elements hold a Float exactly), rounded to the element type after every step
// for Double and Single. Any loop order that keeps each element's k order gives the same
// bits, so the product is computed a block of MR x NR elements at a time, their partial
// sums in registers, with NR columns of Y copied once into a contiguous panel.
#include "MatrixRules.hpp"

#include <algorithm>
#include <vector>

namespace KornumMatrix {
namespace detail {
namespace {

using Kornum_RS_Math::rsMatrixMult;

// A partial sum held as the result element holds it.
template <class E>
inline Float Held(Float sum) noexcept {
    return Float(ValueOf<E>(sum));
}

// R[i0 + s][j0 + t] for s < MR, t < NR, from rows x of X and a panel of NR columns of Y
// laid out k-major.
template <class E, int MR, int NR>
inline void ProductBlock(const E* const* x, const Float* panel, Integer depth, E* const* r, Integer j0) noexcept {
    Float c[MR][NR] = {};
    for (Integer k = 0; k < depth; ++k) {
        const Float* b = panel + std::size_t(k) * NR;
        for (int s = 0; s < MR; ++s) {
            const Float a = ValueOf<E>(x[s][k]);
            for (int t = 0; t < NR; ++t) c[s][t] = Held<E>(c[s][t] + a * b[t]);
        }
    }
    for (int s = 0; s < MR; ++s)
        for (int t = 0; t < NR; ++t) r[s][j0 + t] = ValueOf<E>(c[s][t]);
}

template <class E, int MR>
void ProductRows(const E* const* x, const std::vector<Float>& panels, Integer depth, Integer cols, E* const* r) {
    constexpr int NR = 2;
    Integer j = 0;
    for (; j + NR <= cols; j += NR)
        ProductBlock<E, MR, NR>(x, panels.data() + std::size_t(j) * std::size_t(depth), depth, r, j);
    if (j < cols) ProductBlock<E, MR, 1>(x, panels.data() + std::size_t(j) * std::size_t(depth), depth, r, j);
}

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

    // Y in panels of two columns (one for an odd last column), each k-major.
    std::vector<Float> panels(std::size_t(depth) * std::size_t(cols));
    for (Integer j = 0; j < cols; j += 2) {
        const Integer width = std::min<Integer>(2, cols - j);
        Float* panel = panels.data() + std::size_t(j) * std::size_t(depth);
        for (Integer k = 0; k < depth; ++k)
            for (Integer t = 0; t < width; ++t) panel[std::size_t(k) * std::size_t(width) + std::size_t(t)] = ValueOf<E>(Y[k][j + t]);
    }

    Integer i = 0;
    for (; i + 2 <= rows; i += 2) {
        const E* x[2] = {X[i].data(), X[i + 1].data()};
        E* r[2] = {R[i].data(), R[i + 1].data()};
        ProductRows<E, 2>(x, panels, depth, cols, r);
    }
    if (i < rows) {
        const E* x[1] = {X[i].data()};
        E* r[1] = {R[i].data()};
        ProductRows<E, 1>(x, panels, depth, cols, r);
    }
    return R;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_PRODUCT(MT, VT, T, Name) \
    MT MultiplyMatrices(const MT& X, const MT& Y) { return detail::Product<detail::NumericModule>(X, Y); }
KORNUM_MATRIX_FLOATING(KORNUM_DEFINE_PRODUCT)
#undef KORNUM_DEFINE_PRODUCT

}  // namespace KornumMatrix
