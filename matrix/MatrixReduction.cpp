// Row echelon form, rank, determinant and inverse: one forward elimination with partial
// pivoting, shared by the four, with the determinant's and the inverse's bookkeeping
// hooked onto its steps.
#include "MatrixRules.hpp"

#include <cmath>

namespace KornumMatrix {
namespace detail {
namespace {

using Kornummath::FloatIsZero;

// What a reduction does besides reducing M: nothing (the echelon form and the rank), or
// keeping a determinant, or applying every step to the inverse being built.
struct NoBookkeeping {
    void Exchanged(Integer, Integer) noexcept {}
    void Scaled(Integer, Float, Float) noexcept {}
    void Eliminated(Integer, Integer, Float) noexcept {}
};

// Forward elimination on the rows x cols matrix M. At each step the pivot is the entry of
// largest magnitude (strictly: the topmost of equal ones) among those not zero within
// tolerance, in the leftmost column at or right of c that has one at or below row r. The
// pivot row is exchanged into row r and multiplied by 1 / p unless p is within tolerance
// of 1; then every row below with a non-zero entry in the pivot column gets -entry times
// the pivot row added.
//
// The pivot row is multiplied in every column, left of the pivot included. Those entries
// are zero in exact arithmetic, so exact results do not change; but they hold rounding
// residues of earlier eliminations, and left unscaled the residues grow by a pivot's
// inverse at every step - enough to overflow the inverse of a random 128 x 128 matrix
// and to make a rank-deficient 64 x 64 matrix look regular.
template <class E, class Bookkeeping>
void ForwardEliminate(const Matrix<E>& M, Integer rows, Integer cols, Bookkeeping& book) {
    using A = MatrixArithmetic<E>;
    Integer r = 0, c = 0;
    while (r < rows && c < cols) {
        bool found = false;
        Float largest = 0;
        Integer pr = r, pc = c;
        for (Integer col = c; col < cols && !found; ++col) {
            for (Integer row = r; row < rows; ++row) {
                const Float v = ValueOf<E>(M[row][col]);
                if (!FloatIsZero(v) && std::fabs(v) > largest) {
                    largest = std::fabs(v);
                    pr = row;
                    pc = col;
                    found = true;
                }
            }
        }
        if (!found) return;
        if (pr != r) {
            ExchangeRows(M, r, pr, LongWord(cols));
            book.Exchanged(r, pr);
        }
        c = pc;
        const Float p = ValueOf<E>(M[r][c]);
        if (!FloatIsZero(p - 1)) {
            const Float inverse = 1 / p;
            E* pivotRow = M[r].data();
            for (Integer j = 0; j < cols; ++j) pivotRow[j] = A::Scale(inverse, pivotRow[j]);
            book.Scaled(r, p, inverse);
        }
        for (Integer k = r + 1; k < rows; ++k) {
            const Float v = ValueOf<E>(M[k][c]);
            if (FloatIsZero(v)) continue;
            AddRowMultiple(M, k, r, -v, LongWord(cols));
            book.Eliminated(k, r, -v);
        }
        ++r;
        ++c;
    }
}

template <class E>
struct Determinant : NoBookkeeping {
    Float det = 1;
    void Exchanged(Integer, Integer) noexcept { det = -det; }
    void Scaled(Integer, Float p, Float) noexcept { det *= p; }
};

// Every step of the elimination of M, applied to Inv (started as the identity) with the
// same rows and the same factors, over all of Inv's columns.
template <class E>
struct InverseSteps : NoBookkeeping {
    const Matrix<E>& Inv;
    Integer n;
    void Exchanged(Integer r, Integer pr) noexcept { ExchangeRows(Inv, r, pr, LongWord(n)); }
    void Scaled(Integer r, Float, Float inverse) noexcept {
        E* row = Inv[r].data();
        for (Integer j = 0; j < n; ++j) row[j] = MatrixArithmetic<E>::Scale(inverse, row[j]);
    }
    void Eliminated(Integer k, Integer r, Float f) noexcept { AddRowMultiple(Inv, k, r, f, LongWord(n)); }
};

template <class Module, class E>
Shape EchelonForm(const Matrix<E>& M) {
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    RectangularCheckOff<Module> off;
    NoBookkeeping none;
    ForwardEliminate(M, Integer(s.Rows), Integer(s.Cols), none);
    return s;
}

template <class Module, class E>
void EchelonFormRank(const Matrix<E>& M, LongWord& rank) {
    rank = 0;
    const Shape s = EchelonForm<Module>(M);
    rank = s.Rows - ZeroRows<Module>(M);
}

template <class Module, class E>
Float DeterminantOf(const Matrix<E>& M) {
    const Shape s = Dimensions<Module>(M);
    RequireFilledSquare(s);
    RectangularCheckOff<Module> off;
    Determinant<E> book;
    ForwardEliminate(M, Integer(s.Rows), Integer(s.Cols), book);
    for (Integer i = 0; i < Integer(s.Rows); ++i) book.det *= Float(ValueOf<E>(M[i][i]));
    return book.det;
}

// Gauss-Jordan: the forward elimination mirrored on Inv, a singularity test on the
// reduced M, then back substitution from the last column up, again mirrored.
template <class Module, class E>
bool Inverse(const Matrix<E>& A, Matrix<E>& Inv) {
    const Matrix<E> M = A;  // a handle of its own: Inv may be the caller's A
    const Shape s = Dimensions<Module>(M);
    RequireFilledSquare(s);
    RectangularCheckOff<Module> off;
    const Integer n = Integer(s.Rows);
    Inv = CreateIdentity<E>(LongWord(n));
    InverseSteps<E> mirror{{}, Inv, n};
    ForwardEliminate(M, n, n, mirror);
    if (ZeroRows<Module>(M) > 0) return false;
    for (Integer i = n - 1; i >= 1; --i) {
        for (Integer k = i - 1; k >= 0; --k) {
            const Float v = ValueOf<E>(M[k][i]);
            if (FloatIsZero(v)) continue;
            AddRowMultiple(M, k, i, -v, LongWord(n));
            AddRowMultiple(Inv, k, i, -v, LongWord(n));
        }
    }
    return true;
}

}  // namespace
}  // namespace detail

using detail::NumericModule;

#define KORNUM_DEFINE_REDUCTION(MT, VT, T, Name)                                                      \
    void RowEchelonForm(MT& M) { detail::EchelonForm<NumericModule>(M); }                            \
    void RowEchelonFormRank(MT& M, LongWord& Rank) { detail::EchelonFormRank<NumericModule>(M, Rank); } \
    Float MatrixDeterminant(MT& M) { return detail::DeterminantOf<NumericModule>(M); }               \
    Boolean MatrixInverse(MT& M, MT& Inv) { return detail::Inverse<NumericModule>(M, Inv); }
KORNUM_MATRIX_FLOATING(KORNUM_DEFINE_REDUCTION)
#undef KORNUM_DEFINE_REDUCTION

}  // namespace KornumMatrix
