// Row echelon form, rank, determinant and inverse: one forward elimination with partial
// pivoting, shared by the four, applied to the inverse alongside where there is one, and
// the determinant's bookkeeping hooked onto its steps.
#include "matrix/detail/MatrixKernels.hpp"

#include <cmath>
#include <initializer_list>
#include <utility>
#include <vector>

namespace KornumMatrix {
namespace detail {
namespace {

using Kornummath::FloatIsZero;

// Row operations applied late. A reduction is a sequence of steps; each step settles one
// pivot row for good and then adds multiples of it to other rows. Here a step records
// the pivot row and, for every row it changes, the factor; the additions are made once a
// block of steps is complete. Every element still receives its additions in step order,
// each computed and rounded exactly as AddMatrixRows computes it, so the result is the
// same to the bit; but the block is applied by the blocked kernel, each element loaded
// and stored once per block instead of once per step. A value the reduction must decide
// on is read with its pending additions applied (Peek), and a row is settled before it
// becomes a pivot row.
//
// The operations act on one or two matrices (M, and the inverse being built from the
// same steps); rows are exchanged in both, with their pending additions.
template <class E>
class DelayedRowOperations {
public:
    static constexpr Integer Block = 16;

    DelayedRowOperations(std::initializer_list<const Matrix<E>*> matrices, Integer rows, Integer cols)
        : cols_(cols), pending_(std::size_t(rows)) {
        for (const Matrix<E>* M : matrices) targets_.push_back(Target{M, std::vector<Float>(std::size_t(Block * cols))});
    }

    // M[row][col] of the first matrix, as the reduction would see it now.
    Float Peek(Integer row, Integer col) const noexcept {
        const Pending& p = pending_[std::size_t(row)];
        Float x = ValueOf<E>((*targets_[0].M)[row][col]);
        for (Integer q = 0; q < p.count; ++q) x = Held<E>(x + p.factors[q] * PivotAt(targets_[0], p.steps[q], col));
        return x;
    }

    // Makes row's pending additions in every matrix.
    void Settle(Integer row) noexcept {
        Pending& p = pending_[std::size_t(row)];
        if (p.count == 0) return;
        for (const Target& target : targets_) {
            E* to = (*target.M)[row].data();
            for (Integer j = 0; j < cols_; ++j) {
                Float x = ValueOf<E>(to[j]);
                for (Integer q = 0; q < p.count; ++q) x = Held<E>(x + p.factors[q] * PivotAt(target, p.steps[q], j));
                to[j] = ValueOf<E>(x);
            }
        }
        p.count = 0;
    }

    void Exchange(Integer a, Integer b) noexcept {
        for (const Target& target : targets_) ExchangeRows<NumericModule>(*target.M, a, b, LongWord(cols_));
        std::swap(pending_[std::size_t(a)], pending_[std::size_t(b)]);
    }

    // Multiplies the settled row by factor in every matrix and every column.
    void Scale(Integer row, Float factor) noexcept {
        for (const Target& target : targets_) {
            E* to = (*target.M)[row].data();
            for (Integer j = 0; j < cols_; ++j) to[j] = MatrixArithmetic<E>::Scale(factor, to[j]);
        }
    }

    // Starts a step whose pivot row is the settled row.
    void BeginStep(Integer row) {
        if (steps_ == Block) SettleAll();
        for (Target& target : targets_) {
            Float* pivot = target.pivots.data() + std::size_t(steps_) * std::size_t(cols_);
            const E* from = (*target.M)[row].data();
            for (Integer j = 0; j < cols_; ++j) pivot[j] = ValueOf<E>(from[j]);
        }
        ++steps_;
    }

    // Row gets factor times the current step's pivot row.
    void Record(Integer row, Float factor) noexcept {
        Pending& p = pending_[std::size_t(row)];
        p.steps[p.count] = steps_ - 1;
        p.factors[p.count++] = factor;
    }

    // Makes every pending addition. Rows that every step of the block changes go through
    // the blocked kernel, two at a time; the others one by one.
    void SettleAll() {
        std::vector<Integer> full;
        for (Integer row = 0; row < Integer(pending_.size()); ++row) {
            if (pending_[std::size_t(row)].count == steps_ && steps_ > 0)
                full.push_back(row);
            else
                Settle(row);
        }
        std::vector<Float> panels;
        for (Target& target : targets_) {
            PackPanels(panels, steps_, cols_, [&target, this](Integer k, Integer j) { return PivotAt(target, k, j); });
            AccumulateAll<E, Float, false>(
                Integer(full.size()), panels, steps_, cols_,
                [&](Integer i) { return (*target.M)[full[std::size_t(i)]].data(); },
                [&](Integer i) { return static_cast<const Float*>(pending_[std::size_t(full[std::size_t(i)])].factors); });
        }
        for (Integer row : full) pending_[std::size_t(row)].count = 0;
        steps_ = 0;
    }

private:
    struct Target {
        const Matrix<E>* M;
        std::vector<Float> pivots;  // the pivot row of step t from t * cols on
    };
    struct Pending {
        Integer count = 0;
        Integer steps[Block];
        Float factors[Block];
    };

    Float PivotAt(const Target& target, Integer step, Integer col) const noexcept {
        return target.pivots[std::size_t(step) * std::size_t(cols_) + std::size_t(col)];
    }

    Integer cols_;
    Integer steps_ = 0;
    std::vector<Target> targets_;
    std::vector<Pending> pending_;
};

// What the determinant keeps besides the reduction: the sign of every exchange and the
// pivot of every scaled row.
struct NoBookkeeping {
    void Exchanged() noexcept {}
    void Scaled(Float) noexcept {}
};
struct Determinant {
    Float det = 1;
    void Exchanged() noexcept { det = -det; }
    void Scaled(Float p) noexcept { det *= p; }
};

// Forward elimination on the rows x cols matrix M (and on the inverse being built, when
// ops holds it). At each step the pivot is the entry of largest magnitude (strictly: the
// topmost of equal ones) among those not zero within tolerance, in the leftmost column at
// or right of c that has one at or below row r. The pivot row is exchanged into row r and
// multiplied by 1 / p unless p is within tolerance of 1; then every row below with a
// non-zero entry in the pivot column gets -entry times the pivot row added.
//
// The pivot row is multiplied in every column, left of the pivot included. Those entries
// are zero in exact arithmetic, so exact results do not change; but they hold rounding
// residues of earlier eliminations, and left unscaled the residues grow by a pivot's
// inverse at every step - enough to overflow the inverse of a random 128 x 128 matrix
// and to make a rank-deficient 64 x 64 matrix look regular.
template <class E, class Bookkeeping>
void ForwardEliminate(DelayedRowOperations<E>& ops, const Matrix<E>& M, Integer rows, Integer cols,
                      Bookkeeping& book) {
    std::vector<Float> column(static_cast<std::size_t>(rows));  // the pivot column as the search read it
    Integer r = 0, c = 0;
    while (r < rows && c < cols) {
        bool found = false;
        Float largest = 0;
        Integer pr = r, pc = c;
        for (Integer col = c; col < cols && !found; ++col) {
            for (Integer row = r; row < rows; ++row) {
                const Float v = column[std::size_t(row)] = ops.Peek(row, col);
                if (!FloatIsZero(v) && std::fabs(v) > largest) {
                    largest = std::fabs(v);
                    pr = row;
                    pc = col;
                    found = true;
                }
            }
        }
        if (!found) break;
        if (pr != r) {
            ops.Exchange(r, pr);
            std::swap(column[std::size_t(r)], column[std::size_t(pr)]);
            book.Exchanged();
        }
        c = pc;
        ops.Settle(r);
        const Float p = ValueOf<E>(M[r][c]);
        if (!FloatIsZero(p - 1)) {
            ops.Scale(r, 1 / p);
            book.Scaled(p);
        }
        ops.BeginStep(r);
        for (Integer k = r + 1; k < rows; ++k) {
            const Float v = column[std::size_t(k)];
            if (!FloatIsZero(v)) ops.Record(k, -v);
        }
        ++r;
        ++c;
    }
    ops.SettleAll();
}

// Back substitution of Gauss-Jordan on the reduced n x n M: for each column i from the
// last down to 1, every row above with a non-zero entry there gets -entry times row i
// added, in M and in the inverse alike.
template <class E>
void BackSubstitute(DelayedRowOperations<E>& ops, Integer n) {
    for (Integer i = n - 1; i >= 1; --i) {
        ops.Settle(i);
        ops.BeginStep(i);
        for (Integer k = i - 1; k >= 0; --k) {
            const Float v = ops.Peek(k, i);
            if (!FloatIsZero(v)) ops.Record(k, -v);
        }
    }
    ops.SettleAll();
}

template <class Module, class E>
Shape EchelonForm(const Matrix<E>& M) {
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    RectangularCheckOff<Module> off;
    DelayedRowOperations<E> ops({&M}, Integer(s.Rows), Integer(s.Cols));
    NoBookkeeping none;
    ForwardEliminate(ops, M, Integer(s.Rows), Integer(s.Cols), none);
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
    const Integer n = Integer(s.Rows);
    DelayedRowOperations<E> ops({&M}, n, n);
    Determinant book;
    ForwardEliminate(ops, M, n, n, book);
    for (Integer i = 0; i < n; ++i) book.det *= Float(ValueOf<E>(M[i][i]));
    return book.det;
}

// Gauss-Jordan: the forward elimination applied to M and Inv (started as the identity)
// alike, a singularity test on the reduced M, then the back substitution.
template <class Module, class E>
bool Inverse(const Matrix<E>& A, Matrix<E>& Inv) {
    const Matrix<E> M = A;  // a handle of its own: Inv may be the caller's A
    const Shape s = Dimensions<Module>(M);
    RequireFilledSquare(s);
    RectangularCheckOff<Module> off;
    const Integer n = Integer(s.Rows);
    Inv = CreateIdentity<E>(LongWord(n));
    DelayedRowOperations<E> ops({&M, &Inv}, n, n);
    NoBookkeeping none;
    ForwardEliminate(ops, M, n, n, none);
    if (ZeroRows<Module>(M) > 0) return false;
    BackSubstitute(ops, n);
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
