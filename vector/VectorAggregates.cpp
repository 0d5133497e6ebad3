// Sums, sums of squares, extreme values and sign tests of one vector.
#include "VectorElementRules.hpp"

namespace KornumVector {

namespace detail {
namespace {

// The accumulator starts at the first term and adds the rest in index order.
template <class E, class Term>
typename ElementRules<E>::Sum Accumulate(const TKorVector<E>& V, Term term) {
    using R = ElementRules<E>;
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    typename R::Sum sum = term(ValueOf<E>(data[0]));
    for (Integer i = 1; i < n; ++i) sum = R::Add(sum, term(ValueOf<E>(data[i])));
    return sum;
}

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

// Keeps the first of equal extremes: only a strictly better element replaces it.
template <class E, class Better>
ValueOf<E> Extreme(const TKorVector<E>& V, Better better) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    ValueOf<E> m = data[0];
    for (Integer i = 1; i < n; ++i) {
        const ValueOf<E> x = data[i];
        if (better(x, m)) m = x;
    }
    return m;
}

// One pass for both extremes. The results go to locals first, so the outputs are
// written only after the vector has been checked.
template <class E>
void MinMax(const TKorVector<E>& V, ValueOf<E>& MinValue, ValueOf<E>& MaxValue, Cardinal& MinIndex,
            Cardinal& MaxIndex, Boolean& MinUnique, Boolean& MaxUnique) {
    RequireNotEmpty(V);
    const E* data = V.data();
    const Integer n = V.Length();
    ValueOf<E> lo = data[0], hi = lo;
    Integer loIndex = 0, hiIndex = 0;
    bool loUnique = true, hiUnique = true;
    for (Integer i = 1; i < n; ++i) {
        const ValueOf<E> x = data[i];
        if (x < lo) {
            lo = x;
            loIndex = i;
            loUnique = true;
        } else if (x == lo) {
            loUnique = false;
        }
        if (x > hi) {
            hi = x;
            hiIndex = i;
            hiUnique = true;
        } else if (x == hi) {
            hiUnique = false;
        }
    }
    MinValue = lo;
    MaxValue = hi;
    MinIndex = Cardinal(loIndex);
    MaxIndex = Cardinal(hiIndex);
    MinUnique = loUnique;
    MaxUnique = hiUnique;
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
