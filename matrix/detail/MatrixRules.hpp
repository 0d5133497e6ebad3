// What every matrix routine shares: the shape probe with its deliberate rules, the
// checks that raise, the arithmetic of each element type and the member lists. A matrix
// family is one template over the element type; the element rules are the vector
// module's. Internal to the library (not installed).
#pragma once

#include <kornum/KornumMatrix.h>

#include "vector/detail/VectorElementRules.hpp"

#include <kornum/KornumVector.h>
#include <kornum/Kornumsystem.h>

namespace KornumMatrix::detail {

using namespace KornumVector::detail;
using Kornum_RS_Math::rsInvalidCol;
using Kornum_RS_Math::rsInvalidRow;
using Kornum_RS_Math::rsMatrixIsEmpty;
using Kornum_RS_Math::rsMatrixRect;
using Kornum_RS_Math::rsMatrixSqr;

template <class E>
using Matrix = TKorVector<TKorVector<E>>;

// What a matrix module brings to the templates: its global that switches the raggedness
// test (each module has its own) and the swap its moves use.
struct NumericModule {
    static Boolean& RectangularCheck() noexcept { return KorMatrixRectangularCheck; }
    template <class E>
    static void Swap(E& a, E& b) noexcept { Kornumsystem::SwapXY(a, b); }
};

// ---- The shape probe -----------------------------------------------------------------

struct Shape {
    LongWord Rows = 0;
    LongWord Cols = 0;
    Boolean Rectangular = false;

    bool Empty() const noexcept { return Rows == 0 || Cols == 0; }
    // The guard of the extract, overwrite and sort routines: they act only on a matrix
    // of at least two rows and two columns and are silent otherwise. With the check on, a
    // ragged matrix reports Cols = 0 and so never gets past it.
    bool Acts() const noexcept { return Rows > 1 && Cols > 1; }
};

// Rows, and Cols = the length of row 0. With the check on, an empty matrix or an empty
// row 0 is not rectangular, and the first row of another length sets Cols to 0: so a
// routine that tests emptiness before shape reports a ragged matrix as empty.
template <class Module, class E>
Shape Dimensions(const Matrix<E>& M) noexcept {
    Shape s;
    s.Rows = LongWord(M.Length());
    s.Cols = s.Rows > 0 ? LongWord(M[0].Length()) : 0;
    if (!Module::RectangularCheck()) {
        s.Rectangular = true;
        return s;
    }
    if (s.Empty()) return s;
    for (Integer i = 0; i < M.Length(); ++i) {
        if (LongWord(M[i].Length()) != s.Cols) {
            s.Cols = 0;
            return s;
        }
    }
    s.Rectangular = true;
    return s;
}

// Switches a module's check off for one scope and restores it, an exception passing
// included.
template <class Module>
class RectangularCheckOff {
public:
    RectangularCheckOff() noexcept : saved_(Module::RectangularCheck()) { Module::RectangularCheck() = false; }
    ~RectangularCheckOff() { Module::RectangularCheck() = saved_; }
    RectangularCheckOff(const RectangularCheckOff&) = delete;
    RectangularCheckOff& operator=(const RectangularCheckOff&) = delete;

private:
    Boolean saved_;
};

// ---- Reading a row that may be short ---------------------------------------------------
// With the check off a ragged matrix is taken at the length of row 0. The loops then stop
// at the end of each row (and a missing element reads as 0), so nothing is ever read or
// written outside a row.

template <class E>
inline Integer Span(const TKorVector<E>& row, LongWord cols) noexcept {
    return row.Length() < Integer(cols) ? row.Length() : Integer(cols);
}

template <class E>
inline bool Holds(const Matrix<E>& M, Integer row, LongWord col) noexcept {
    return Integer(col) < M[row].Length();
}

template <class E>
inline ValueOf<E> ValueAt(const Matrix<E>& M, Integer row, LongWord col) noexcept {
    return Holds(M, row, col) ? ValueOf<E>(M[row][Integer(col)]) : ValueOf<E>{};
}

// ---- Checks ----------------------------------------------------------------------------

using Platform::Require;

// Emptiness first, then shape: the order of the row and column operations.
inline void RequireFilledRectangle(const Shape& s) {
    Require(!s.Empty(), rsMatrixIsEmpty);
    Require(s.Rectangular, rsMatrixRect);
}

// Emptiness first, then a rectangular and square shape: the determinant, the inverse
// and the identity test.
inline void RequireFilledSquare(const Shape& s) {
    Require(!s.Empty(), rsMatrixIsEmpty);
    Require(s.Rectangular && s.Rows == s.Cols, rsMatrixSqr);
}

template <class E>
void RequireRows(const Matrix<E>& M) {
    Require(M.Length() > 0, rsMatrixIsEmpty);
}

// ---- Arithmetic --------------------------------------------------------------------------
// Floating members compute in Float and round once into the element type; the integer
// members compute in their own width, wrapping on overflow. Factor is the type of the
// constants and factors the routines take.

template <class E, bool Floating = ElementRules<E>::Floating>
struct MatrixArithmetic {
    using Value = ValueOf<E>;
    using Factor = Float;
    static Value Add(Value a, Value b) noexcept { return Value(Float(a) + Float(b)); }
    static Value Subtract(Value a, Value b) noexcept { return Value(Float(a) - Float(b)); }
    static Value Scale(Factor f, Value x) noexcept { return Value(f * Float(x)); }
    static Value MultiplyAdd(Value x, Factor a, Factor b) noexcept { return Value(Float(x) * a + b); }
    static Value AddScaled(Value x, Factor f, Value y) noexcept { return Value(Float(x) + f * Float(y)); }
};

template <class E>
struct MatrixArithmetic<E, false> {
    using Value = E;
    using Factor = E;
    static Value Add(Value a, Value b) noexcept { return WrapAdd(a, b); }
    static Value Subtract(Value a, Value b) noexcept { return WrapSub(a, b); }
    static Value Scale(Factor f, Value x) noexcept { return WrapMul(f, x); }
    static Value MultiplyAdd(Value x, Factor a, Factor b) noexcept { return WrapAdd(WrapMul(x, a), b); }
    static Value AddScaled(Value x, Factor f, Value y) noexcept { return WrapAdd(x, WrapMul(f, y)); }
};

// X[row1][j] += Factor * X[row2][j] for j < cols, with no checks: the row operation of
// AddMatrixRows and of the reductions, which have checked the shape once.
template <class E>
inline void AddRowMultiple(const Matrix<E>& X, Integer row1, Integer row2, typename MatrixArithmetic<E>::Factor factor,
                           LongWord cols) noexcept {
    using A = MatrixArithmetic<E>;
    E* to = X[row1].data();
    const E* from = X[row2].data();
    const Integer n = Span(X[row1], LongWord(Span(X[row2], cols)));
    for (Integer j = 0; j < n; ++j) to[j] = A::AddScaled(to[j], factor, from[j]);
}

// Exchanges the elements of two rows (not the row handles) over the first cols columns.
template <class Module, class E>
inline void ExchangeRows(const Matrix<E>& M, Integer row1, Integer row2, LongWord cols) noexcept {
    E* a = M[row1].data();
    E* b = M[row2].data();
    const Integer n = Span(M[row1], LongWord(Span(M[row2], cols)));
    for (Integer j = 0; j < n; ++j) Module::Swap(a[j], b[j]);
}

// ---- Shared routines --------------------------------------------------------------------

template <class E>
Matrix<E> Create(LongWord rows, LongWord cols) {
    Matrix<E> M;
    M.SetLength(Integer(rows));
    for (Integer i = 0; i < M.Length(); ++i) M[i].SetLength(Integer(cols));
    return M;
}

template <class E>
Matrix<E> CreateIdentity(LongWord n) {
    Matrix<E> M = Create<E>(n, n);
    for (Integer i = 0; i < M.Length(); ++i) M[i][i] = ValueOf<E>(1);
    return M;
}

template <class Module, class E>
LongWord ZeroRows(const Matrix<E>& M) {
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    LongWord count = 0;
    for (Integer i = 0; i < Integer(s.Rows); ++i)  // (an empty row is met only with the check off)
        count += M[i].Length() == 0 || KornumVector::VectorZero(M[i]) ? 1 : 0;
    return count;
}

// ---- Member lists --------------------------------------------------------------------------
// Each expands M(MatrixType, VectorType, ElementValue, CreateName) once per member.
#define KORNUM_MATRIX_FLOATING(M)                                                              \
    M(TKorFloatMatrix, TKorFloatVector, Float, Float) M(TKorDoubleMatrix, TKorDoubleVector, Double, Double) \
    M(TKorSingleMatrix, TKorSingleVector, Single, Single)
#define KORNUM_MATRIX_FIVE(M) \
    KORNUM_MATRIX_FLOATING(M) M(TKorInt64Matrix, TKorInt64Vector, Int64, Int64) M(TKorLIntMatrix, TKorLIntVector, LongInt, LInt)
#define KORNUM_MATRIX_ALL(M)                                                                              \
    KORNUM_MATRIX_FIVE(M) M(TKorLWordMatrix, TKorLWordVector, LongWord, LWord)                          \
    M(TKorWordMatrix, TKorWordVector, Word, Word) M(TKorSmallIntMatrix, TKorSmallIntVector, SmallInt, SmallInt) \
    M(TKorByteMatrix, TKorByteVector, Byte, Byte) M(TKorSIntMatrix, TKorSIntVector, ShortInt, SInt)

}  // namespace KornumMatrix::detail
