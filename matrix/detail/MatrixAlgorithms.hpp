// The matrix algorithms shared by the numeric and the currency matrix modules, each
// written once over the element type and the module (its rectangular check and its
// swap). Internal to the library (not installed).
#pragma once

#include "matrix/detail/MatrixRules.hpp"

#include "vector/detail/QuickSortScheme.hpp"

namespace KornumMatrix::detail {

using Kornum_RS_Math::rsSameDimensions;

// ---- Shape, copies and moves ------------------------------------------------------------

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

// Row by row, each of its own length, every element converted to To (by convert, or
// by value).
template <class To, class E, class Convert>
Matrix<To> MapRows(const Matrix<E>& M, Convert convert) {
    Matrix<To> result;
    result.SetLength(M.Length());
    for (Integer i = 0; i < M.Length(); ++i)
        result[i] = MapToNew<To>(M[i], [&convert](const E& x) { return ValueOf<To>(convert(ValueOf<E>(x))); });
    return result;
}
template <class To, class E>
Matrix<To> MapRows(const Matrix<E>& M) {
    return MapRows<To>(M, [](ValueOf<E> x) { return ValueOf<To>(x); });
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
    ExchangeRows<Module>(M, Integer(row1), Integer(row2), s.Cols);
}

template <class Module, class E>
void SwapCols(const Matrix<E>& M, LongWord col1, LongWord col2) {
    if (col1 == col2) return;  // before any check: never raises
    const Shape s = Dimensions<Module>(M);
    RequireFilledRectangle(s);
    Require(col1 < s.Cols && col2 < s.Cols, rsInvalidCol);
    for (Integer i = 0; i < Integer(s.Rows); ++i)
        if (Holds(M, i, col1) && Holds(M, i, col2)) Module::Swap(M[i][Integer(col1)], M[i][Integer(col2)]);
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

// ---- Element-wise arithmetic --------------------------------------------------------------

// The checks of the sums and differences: X's own size read directly (no rows, or an
// empty row 0, is empty), then one rectangular shape shared by both.
template <class Module, class E>
void RequireSameShape(const Matrix<E>& X, const Matrix<E>& Y) {
    Require(X.Length() > 0 && X[0].Length() > 0, rsMatrixIsEmpty);
    const Shape a = Dimensions<Module>(X), b = Dimensions<Module>(Y);
    Require(a.Rectangular && b.Rectangular && a.Rows == b.Rows && a.Cols == b.Cols, rsSameDimensions);
}

// Every element of Into becomes combine(X element, Y element), over X's shape.
template <class E, class Combine>
void CombineInto(const Matrix<E>& Into, const Matrix<E>& X, const Matrix<E>& Y, Combine combine) {
    const LongWord cols = LongWord(X[0].Length());
    for (Integer i = 0; i < X.Length(); ++i) {
        E* to = Into[i].data();
        const E* x = X[i].data();
        const E* y = Y[i].data();
        const Integer n = Span(Into[i], LongWord(Span(X[i], LongWord(Span(Y[i], cols)))));
        for (Integer j = 0; j < n; ++j) to[j] = combine(ValueOf<E>(x[j]), ValueOf<E>(y[j]));
    }
}

template <class Module, class E, class Combine>
Matrix<E> Combined(const Matrix<E>& X, const Matrix<E>& Y, Combine combine) {
    RequireSameShape<Module>(X, Y);
    Matrix<E> result;
    result.SetLength(X.Length());
    for (Integer i = 0; i < X.Length(); ++i) result[i].SetLength(X[0].Length());
    CombineInto(result, X, Y, combine);
    return result;
}

template <class Module, class E, class Combine>
void CombineInPlace(const Matrix<E>& X, const Matrix<E>& Y, Combine combine) {
    RequireSameShape<Module>(X, Y);
    CombineInto(X, X, Y, combine);
}

// Every element, row by row at each row's own length, replaced by map(element). A map
// that raises stops the walk there; the elements before keep their new values.
template <class E, class Map>
void MapEachInPlace(const Matrix<E>& X, Map map) {
    RequireRows(X);
    for (Integer i = 0; i < X.Length(); ++i) {
        E* row = X[i].data();
        for (Integer j = 0; j < X[i].Length(); ++j) row[j] = map(ValueOf<E>(row[j]));
    }
}

// A new matrix of map(element), row by row at each row's own length.
template <class E, class Map>
Matrix<E> MapEachToNew(const Matrix<E>& X, Map map) {
    RequireRows(X);
    Matrix<E> result;
    result.SetLength(X.Length());
    for (Integer i = 0; i < X.Length(); ++i)
        result[i] = MapToNew<E>(X[i], [&map](const E& x) { return map(ValueOf<E>(x)); });
    return result;
}

// Every element of every row (each row at its own length) added in order by add into a
// Sum that starts at zero; N is the number of elements. No rows, or no elements, is
// rsMatrixIsEmpty.
template <class Sum, class E, class Add>
Sum SumOfAll(const Matrix<E>& X, LongWord& N, Add add) {
    RequireRows(X);
    LongWord count = 0;
    Sum sum{};
    for (Integer i = 0; i < X.Length(); ++i) {
        count += LongWord(X[i].Length());
        for (const E& x : X[i]) sum = add(sum, ValueOf<E>(x));
    }
    Require(count > 0, rsMatrixIsEmpty);
    N = count;
    return sum;
}

}  // namespace KornumMatrix::detail
