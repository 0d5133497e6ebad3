// Sums, sums of squares, extreme values and sign tests of one vector.
#include "vector/detail/VectorAlgorithms.hpp"

namespace KornumVector {

namespace detail {
namespace {

template <class E>
typename ElementRules<E>::Sum Sum(const TKorVector<E>& V) {
    return Accumulate(V, [](ValueOf<E> x) { return ElementRules<E>::Widen(x); });
}

template <class E>
typename ElementRules<E>::Sum SumSq(const TKorVector<E>& V) {
    return Accumulate(V, [](ValueOf<E> x) { return ElementRules<E>::Square(x); });
}

// The difference is formed in the element's width, then squared as in SumSq.
template <class E>
typename ElementRules<E>::Sum SumSqDiff(const TKorVector<E>& V, ValueOf<E> Value) {
    using R = ElementRules<E>;
    return Accumulate(V, [Value](ValueOf<E> x) { return R::Square(R::Difference(x, Value)); });
}

// An integer vector against a Float value: everything in Float.
template <class E>
Float SumSqDiffInFloat(const TKorVector<E>& V, Float Value) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    Float d = Float(data[0]) - Value;
    Float sum = d * d;
    for (Integer i = 1; i < n; ++i) {
        d = Float(data[i]) - Value;
        sum += d * d;
    }
    return sum;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_AGGREGATES(VT, T)                                                          \
    detail::ElementRules<VT::value_type>::Sum SumVector(const VT& V) { return detail::Sum(V); }  \
    detail::ElementRules<VT::value_type>::Sum SumSqVector(const VT& V) { return detail::SumSq(V); } \
    T MaxVector(const VT& V) {                                                                   \
        return detail::Extreme(V, [](T x, T m) { return x > m; });                               \
    }                                                                                            \
    T MinVector(const VT& V) {                                                                   \
        return detail::Extreme(V, [](T x, T m) { return x < m; });                               \
    }                                                                                            \
    void MinMaxVector(const VT& V, T& MinValue, T& MaxValue, Cardinal& MinIndex, Cardinal& MaxIndex, \
                      Boolean& MinUnique, Boolean& MaxUnique) {                                  \
        detail::MinMax(V, MinValue, MaxValue, MinIndex, MaxIndex, MinUnique, MaxUnique);         \
    }
KORNUM_MEMBERS_ALL(KORNUM_DEFINE_AGGREGATES)
#undef KORNUM_DEFINE_AGGREGATES

#define KORNUM_DEFINE_SUMSQDIFF(VT, T)                                          \
    detail::ElementRules<VT::value_type>::Sum SumSqDiffVector(const VT& V, T Value) { \
        return detail::SumSqDiff(V, Value);                                      \
    }
KORNUM_MEMBERS_SIX(KORNUM_DEFINE_SUMSQDIFF)
#undef KORNUM_DEFINE_SUMSQDIFF

Float SumSqDiffVector(const TKorInt64Vector& V, Float Value) { return detail::SumSqDiffInFloat(V, Value); }
Float SumSqDiffVector(const TKorLWordVector& V, Float Value) { return detail::SumSqDiffInFloat(V, Value); }
Float SumSqDiffVector(const TKorLIntVector& V, Float Value) { return detail::SumSqDiffInFloat(V, Value); }

#define KORNUM_DEFINE_SIGN_TESTS(VT, T)                                                          \
    Boolean VectorZero(const VT& V) {                                                            \
        return detail::AllPass(V, [](T x) { return detail::SignRules<VT::value_type>::FailsZero(x); }); \
    }                                                                                            \
    Boolean VectorNonZero(const VT& V) { return detail::IsNonZero(V); }                          \
    Boolean VectorPositive(const VT& V) { return detail::IsPositive(V); }                        \
    Boolean VectorNonNegative(const VT& V) { return detail::IsNonNegative(V); }
KORNUM_MEMBERS_SIGN_TESTS(KORNUM_DEFINE_SIGN_TESTS)
#undef KORNUM_DEFINE_SIGN_TESTS

}  // namespace KornumVector
