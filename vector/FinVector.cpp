// The currency members of the vector families: the vector algorithms with the currency
// rules tables, and the conversions between the currency types.
#include <kornum/KornumFinVector.h>

#include "vector/detail/CurrencyRules.hpp"
#include "vector/detail/VectorAlgorithms.hpp"

namespace KornumFinVector {

namespace detail {
using namespace KornumVector::detail;
using Kornumfinancials::Currency2Float;

// Every element is transformed before any is stored, so that a value out of range
// leaves V as it was.
template <class R, class E>
void LinearTransform(const TKorVector<E>& V, Float A, Float B) {
    RequireNotEmpty(V);
    const TKorVector<E> result = MapToNew<E>(V, [A, B](const E& x) { return Transformed<R>(x, A, B); });
    std::copy(result.begin(), result.end(), V.begin());
}

template <class To, class From, class Convert>
TKorVector<To> Converted(const TKorVector<From>& V, Convert convert) {
    return MapToNew<To>(V, [convert](const From& x) { return convert(x); });
}

}  // namespace detail

// Each member with its rules table.
#define KORNUM_CURRENCY_MEMBERS(M)                                                     \
    M(TKorCurrVector, KorCurrency, KorCurrencyRules)                                   \
    M(TKorLongCurrVector, KorLongCurrency, KorLongCurrencyRules)                       \
    M(TKorCurrencyVector, Currency, CurrencyRules)

#define KORNUM_DEFINE_CURRENCY_MEMBERS(VT, T, R)                                                         \
    void AppendValue2Vector(VT& V, T Value) { detail::Append(V, Value); }                               \
    void AddValue2Vector(VT& V, T Value, Integer Index) { detail::Insert(V, Value, Index); }            \
    void DeleteValueFromVector(VT& V, Integer Index) { detail::Delete(V, Index); }                      \
    void FillVector(const VT& V, T Value) { detail::Fill(V, Value); }                                   \
    void ClearVector(const VT& V) { detail::Fill(V, T{}); }                                             \
    VT CopyVector(const VT& V) { return detail::Convert<VT::value_type>(V); }                          \
    VT ReverseVector(const VT& V) { return detail::Reverse(V); }                                        \
    T SumVector(const VT& V) {                                                                          \
        return detail::Accumulate<VT::value_type, detail::R>(V, [](T x) { return detail::R::Widen(x); }); \
    }                                                                                                   \
    T MaxVector(const VT& V) { return detail::Extreme(V, [](T x, T m) { return x > m; }); }             \
    T MinVector(const VT& V) { return detail::Extreme(V, [](T x, T m) { return x < m; }); }             \
    void MinMaxVector(const VT& V, T& MinValue, T& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex,    \
                      Boolean& MinUnique, Boolean& MaxUnique) {                                         \
        detail::MinMax(V, MinValue, MaxValue, MinIndex, MaxIndex, MinUnique, MaxUnique);                \
    }                                                                                                   \
    Boolean VectorZero(const VT& V) { return detail::AllPass(V, detail::R::FailsZero); }                \
    Boolean VectorNonZero(const VT& V) { return detail::AllPass(V, detail::R::FailsNonZero); }          \
    Boolean VectorPositive(const VT& V) { return detail::AllPass(V, detail::R::FailsPositive); }        \
    Boolean VectorNonNegative(const VT& V) { return detail::AllPass(V, detail::R::FailsNonNegative); }  \
    void QSortVector(VT& V, Boolean Ascending) { detail::QuickSort<VT::value_type, detail::R>(V, Ascending); } \
    Integer Vector2Rank(const VT& V, Cardinal Index, Boolean Ascending) {                               \
        return detail::Rank<VT::value_type, detail::R>(V, Index, Ascending);                           \
    }                                                                                                   \
    Integer Vector2RankValue(const VT& V, T Value, Boolean Ascending) {                                 \
        return detail::RankOfValue<VT::value_type, detail::R>(V, Value, Ascending);                    \
    }                                                                                                   \
    TKorLIntVector Vector2RankVector(const VT& V, Boolean Ascending) {                                  \
        return detail::RankVector<VT::value_type, detail::R>(V, Ascending);                            \
    }                                                                                                   \
    VT AddVectors(const VT& V1, const VT& V2) { return detail::PairToNew(V1, V2, detail::StoredAdd<T>); } \
    VT SubtractVectors(const VT& V1, const VT& V2) {                                                    \
        return detail::PairToNew(V1, V2, detail::StoredSubtract<T>);                                    \
    }                                                                                                   \
    void AddToVector(VT& V1, const VT& V2) { detail::PairInPlace(V1, V2, detail::StoredAdd<T>); }       \
    void SubtractFromVector(VT& V1, const VT& V2) { detail::PairInPlace(V1, V2, detail::StoredSubtract<T>); } \
    void LinearTransformVector(VT& V, Float A, Float B) { detail::LinearTransform<detail::R>(V, A, B); } \
    TKorFloatVector Vector2FloatVector(const VT& V) {                                                   \
        return detail::Converted<PackedFloat>(V, [](T x) { return detail::Currency2Float(x); });        \
    }
KORNUM_CURRENCY_MEMBERS(KORNUM_DEFINE_CURRENCY_MEMBERS)
#undef KORNUM_DEFINE_CURRENCY_MEMBERS

// ---- Conversions between the currency types ----------------------------------------------
// A vector of the target type itself is copied.

using namespace Kornumfinancials;

TKorCurrVector Vector2KorCurrVector(const TKorCurrVector& V) { return CopyVector(V); }
TKorCurrVector Vector2KorCurrVector(const TKorLongCurrVector& V) {
    return detail::Converted<KorCurrency>(V, KorLongCurrency2KorCurrency);
}
TKorCurrVector Vector2KorCurrVector(const TKorCurrencyVector& V) {
    return detail::Converted<KorCurrency>(V, Currency2KorCurrency);
}
TKorCurrVector Vector2KorCurrVector(const TKorFloatVector& V) {
    return detail::Converted<KorCurrency>(V, [](Float x) { return Float2KorCurrency(x); });
}

TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrVector& V) {
    return detail::Converted<KorLongCurrency>(V, KorCurrency2KorLongCurrency);
}
TKorLongCurrVector Vector2KorLongCurrVector(const TKorLongCurrVector& V) { return CopyVector(V); }
TKorLongCurrVector Vector2KorLongCurrVector(const TKorCurrencyVector& V) {
    return detail::Converted<KorLongCurrency>(V, Currency2KorLongCurrency);
}
TKorLongCurrVector Vector2KorLongCurrVector(const TKorFloatVector& V) {
    return detail::Converted<KorLongCurrency>(V, [](Float x) { return Float2KorLongCurrency(x); });
}

TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrVector& V) {
    return detail::Converted<Currency>(V, KorCurrency2Currency);
}
TKorCurrencyVector Vector2KorCurrencyVector(const TKorLongCurrVector& V) {
    return detail::Converted<Currency>(V, KorLongCurrency2Currency);
}
TKorCurrencyVector Vector2KorCurrencyVector(const TKorCurrencyVector& V) { return CopyVector(V); }
TKorCurrencyVector Vector2KorCurrencyVector(const TKorFloatVector& V) {
    return detail::Converted<Currency>(V, [](Float x) { return Float2Currency(x); });
}

}  // namespace KornumFinVector
