// The currency members of the matrix families: the matrix algorithms with this module's
// own rectangular check and the currency swap, and the arithmetic of stored amounts.
#include <kornum/KornumFinMatrix.h>

#include "vector/detail/CurrencyRules.hpp"
#include "matrix/detail/MatrixAlgorithms.hpp"

namespace KornumFinMatrix {

Boolean KorMatrixRectangularCheck = true;

namespace detail {
using namespace KornumMatrix::detail;
using KornumVector::detail::CurrencyRules;
using KornumVector::detail::FromStored;
using KornumVector::detail::KorCurrencyRules;
using KornumVector::detail::KorLongCurrencyRules;
using KornumVector::detail::RoundToStored;
using KornumVector::detail::StoredAdd;
using KornumVector::detail::StoredOf;
using KornumVector::detail::StoredSubtract;
using KornumVector::detail::StoredWidth;
using KornumVector::detail::Transformed;

struct FinModule {
    static Boolean& RectangularCheck() noexcept { return KorMatrixRectangularCheck; }
    template <class E>
    static void Swap(E& a, E& b) noexcept { Kornumfinancials::SwapXY(a, b); }
};

// The amount 1 on the diagonal.
template <class R>
Matrix<typename R::Value> CreateIdentity(LongWord n) {
    Matrix<typename R::Value> M = Create<typename R::Value>(n, n);
    for (Integer i = 0; i < M.Length(); ++i) M[i][i] = FromStored<typename R::Value>(R::StoredOne);
    return M;
}

// KorCurrency and KorLongCurrency give their stored integer, Currency its amount: the
// members disagree on purpose.
template <class T>
Float Matrix2FloatElement(T x) {
    if constexpr (std::is_same_v<T, Currency>) return Kornumfinancials::Currency2Float(x); else return Float(x);
}

// The stored value times C, in Float, rounded to the nearest stored unit.
template <class T>
T Scaled(T x, Float c) noexcept {
    return FromStored<T>(RoundToStored(Float(StoredOf(x)) * c));
}

// Every element is transformed before any is stored, so that a value out of range
// leaves X as it was.
template <class R>
void LinearTransform(const Matrix<typename R::Value>& X, Float A, Float B) {
    using T = typename R::Value;
    const Matrix<T> result = MapEachToNew(X, [A, B](T x) { return Transformed<R>(x, A, B); });
    for (Integer i = 0; i < X.Length(); ++i) std::copy(result[i].begin(), result[i].end(), X[i].begin());
}

// The stored values summed in their own width (a KorCurrency sum wraps in 32 bits, on
// purpose), divided by N and rounded to the nearest stored unit.
template <class T>
T GrandMeanOf(const Matrix<T>& X, LongWord& N) {
    using Sum = StoredWidth<T>;
    const Sum sum = SumOfAll<Sum>(X, N, [](Sum s, T x) { return WrapAdd(s, Sum(StoredOf(x))); });
    return FromStored<T>(RoundToStored(Float(sum) / Float(N)));
}

}  // namespace detail

using detail::FinModule;

#define KORNUM_FIN_MATRIX_MEMBERS(M)                                                   \
    M(TKorCurrMatrix, TKorCurrVector, KorCurrency, Curr, KorCurrencyRules)             \
    M(TKorLongCurrMatrix, TKorLongCurrVector, KorLongCurrency, LongCurr, KorLongCurrencyRules) \
    M(TKorCurrencyMatrix, TKorCurrencyVector, Currency, Currency, CurrencyRules)

#define KORNUM_DEFINE_FIN_MATRIX(MT, VT, T, Name, R)                                                      \
    MT Create##Name##Matrix(LongWord Rows, LongWord Cols) { return detail::Create<T>(Rows, Cols); }      \
    MT Create##Name##IdentityMatrix(LongWord N) { return detail::CreateIdentity<detail::R>(N); }          \
    Boolean MatrixIsRectangular(const MT& M) { return detail::IsRectangular(M); }                        \
    void MatrixDimensions(const MT& M, LongWord& Rows, LongWord& Cols, Boolean& Rectangular) {           \
        const detail::Shape s = detail::Dimensions<FinModule>(M);                                        \
        Rows = s.Rows;                                                                                   \
        Cols = s.Cols;                                                                                   \
        Rectangular = s.Rectangular;                                                                     \
    }                                                                                                    \
    Boolean MatrixIsSquare(const MT& M) { return detail::IsSquare<FinModule>(M); }                       \
    Boolean MatricesSameDimensions(const MT& X, const MT& Y) { return detail::SameDimensions<FinModule>(X, Y); } \
    MT CopyMatrix(const MT& M) { return detail::MapRows<T>(M); }                                         \
    TKorFloatMatrix Matrix2FloatMatrix(const MT& M) {                                                    \
        return detail::MapRows<PackedFloat>(M, detail::Matrix2FloatElement<T>);                          \
    }                                                                                                    \
    VT ExtractMatrixRow(const MT& M, LongWord Row) { return detail::ExtractRow<FinModule>(M, Row); }     \
    VT ExtractMatrixCol(const MT& M, LongWord Col) { return detail::ExtractCol<FinModule>(M, Col); }     \
    void OverwriteMatrixRow(MT& M, LongWord Row, const VT& V, T Default) {                               \
        detail::OverwriteRow<FinModule>(M, Row, V, Default);                                             \
    }                                                                                                    \
    void OverwriteMatrixCol(MT& M, LongWord Col, const VT& V, T Default) {                               \
        detail::OverwriteCol<FinModule>(M, Col, V, Default);                                             \
    }                                                                                                    \
    void SwapMatrixRows(MT& M, LongWord Row1, LongWord Row2) { detail::SwapRows<FinModule>(M, Row1, Row2); } \
    void SwapMatrixCols(MT& M, LongWord Col1, LongWord Col2) { detail::SwapCols<FinModule>(M, Col1, Col2); } \
    MT TransposeMatrix(const MT& M) { return detail::Transpose<FinModule>(M); }                          \
    void QSortMatrixRowsOnCol(MT& M, LongWord Col, Boolean Ascending) {                                  \
        detail::SortRowsOnCol<FinModule>(M, Col, Ascending);                                             \
    }                                                                                                    \
    void QSortMatrixColsOnRow(MT& M, LongWord Row, Boolean Ascending) {                                  \
        detail::SortColsOnRow<FinModule>(M, Row, Ascending);                                             \
    }                                                                                                    \
    MT AddMatrices(const MT& X, const MT& Y) { return detail::Combined<FinModule>(X, Y, detail::StoredAdd<T>); } \
    MT SubtractMatrices(const MT& X, const MT& Y) {                                                      \
        return detail::Combined<FinModule>(X, Y, detail::StoredSubtract<T>);                             \
    }                                                                                                    \
    void AddToMatrix(MT& X, const MT& Y) { detail::CombineInPlace<FinModule>(X, Y, detail::StoredAdd<T>); } \
    void SubtractFromMatrix(MT& X, const MT& Y) {                                                        \
        detail::CombineInPlace<FinModule>(X, Y, detail::StoredSubtract<T>);                              \
    }                                                                                                    \
    MT MultiplyMatrixByConst(const MT& X, Float C) {                                                     \
        return detail::MapEachToNew(X, [C](T x) { return detail::Scaled(x, C); });                       \
    }                                                                                                    \
    void MultiplyMatrixByConst2(MT& X, Float C) {                                                        \
        detail::MapEachInPlace(X, [C](T x) { return detail::Scaled(x, C); });                            \
    }                                                                                                    \
    void LinearTransformMatrix(MT& X, Float A, Float B) { detail::LinearTransform<detail::R>(X, A, B); } \
    T GrandMean(const MT& X, LongWord& N) { return detail::GrandMeanOf(X, N); }
KORNUM_FIN_MATRIX_MEMBERS(KORNUM_DEFINE_FIN_MATRIX)
#undef KORNUM_DEFINE_FIN_MATRIX

}  // namespace KornumFinMatrix
