// The inner kernel shared by the matrix product and the row reductions:
//
//     C[s][j] = C[s][j] + A[s][k] * B[k][j]     for k = 0, 1, ..., depth - 1 in order,
//
// each step computed in Float and held as the element type holds it (exact for Float,
// rounded for Double and Single), for a block of MR rows and NR columns at a time with
// the sums in registers. Loads of 10-byte values are the x87 unit's slow path, so the
// block shape (2 x 2) is chosen for the fewest loads per multiply-add that eight
// registers allow. B is read from panels of NR columns laid out k-major.
// Internal to the library (not installed).
#pragma once

#include "matrix/detail/MatrixRules.hpp"

#include <cstddef>
#include <vector>

namespace KornumMatrix::detail {

// A partial sum held as an element of type E holds it.
template <class E>
inline Float Held(Float sum) noexcept {
    return Float(ValueOf<E>(sum));
}

// One MR x NR block of C at column j0. FromZero starts the sums at 0 (the product);
// otherwise they start from C's elements (the reductions' delayed row operations).
template <class E, class A, int MR, int NR, bool FromZero>
inline void AccumulateBlock(const A* const* a, const Float* panel, Integer depth, E* const* c, Integer j0) noexcept {
    Float sum[MR][NR];
    for (int s = 0; s < MR; ++s)
        for (int t = 0; t < NR; ++t) sum[s][t] = FromZero ? Float(0) : Float(ValueOf<E>(c[s][j0 + t]));
    for (Integer k = 0; k < depth; ++k) {
        const Float* b = panel + std::size_t(k) * NR;
        for (int s = 0; s < MR; ++s) {
            const Float x = Float(a[s][k]);
            for (int t = 0; t < NR; ++t) sum[s][t] = Held<E>(sum[s][t] + x * b[t]);
        }
    }
    for (int s = 0; s < MR; ++s)
        for (int t = 0; t < NR; ++t) c[s][j0 + t] = ValueOf<E>(sum[s][t]);
}

// B's columns in panels of two (one for an odd last column), each k-major: the panel of
// columns j and j + 1 starts at j * depth. at(k, j) gives B[k][j].
template <class At>
void PackPanels(std::vector<Float>& panels, Integer depth, Integer cols, At at) {
    panels.resize(std::size_t(depth) * std::size_t(cols));
    for (Integer j = 0; j < cols; j += 2) {
        const Integer width = cols - j < 2 ? 1 : 2;
        Float* panel = panels.data() + std::size_t(j) * std::size_t(depth);
        for (Integer k = 0; k < depth; ++k)
            for (Integer t = 0; t < width; ++t) panel[std::size_t(k) * std::size_t(width) + std::size_t(t)] = at(k, j + t);
    }
}

// C's MR rows (MR = 1 or 2) over all cols columns.
template <class E, class A, int MR, bool FromZero>
void AccumulateRows(const A* const* a, const std::vector<Float>& panels, Integer depth, Integer cols, E* const* c) {
    Integer j = 0;
    for (; j + 2 <= cols; j += 2)
        AccumulateBlock<E, A, MR, 2, FromZero>(a, panels.data() + std::size_t(j) * std::size_t(depth), depth, c, j);
    if (j < cols)
        AccumulateBlock<E, A, MR, 1, FromZero>(a, panels.data() + std::size_t(j) * std::size_t(depth), depth, c, j);
}

// All rows of C, two at a time: row(i) gives C's row i, factors(i) A's.
template <class E, class A, bool FromZero, class RowOf, class FactorsOf>
void AccumulateAll(Integer rows, const std::vector<Float>& panels, Integer depth, Integer cols, RowOf row,
                   FactorsOf factors) {
    Integer i = 0;
    for (; i + 2 <= rows; i += 2) {
        const A* a[2] = {factors(i), factors(i + 1)};
        E* c[2] = {row(i), row(i + 1)};
        AccumulateRows<E, A, 2, FromZero>(a, panels, depth, cols, c);
    }
    if (i < rows) {
        const A* a[1] = {factors(i)};
        E* c[1] = {row(i)};
        AccumulateRows<E, A, 1, FromZero>(a, panels, depth, cols, c);
    }
}

}  // namespace KornumMatrix::detail
