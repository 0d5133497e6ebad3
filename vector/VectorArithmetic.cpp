// Element-wise arithmetic between vectors, products and distances, magnitude and
// angle, in-place transforms, the moving average and polynomial evaluation.
#include "vector/detail/VectorAlgorithms.hpp"

#include <cmath>

namespace KornumVector {

namespace detail {
namespace {

using Kornum_RS_Math::rsMagZero;
using Kornum_RS_Math::rsValueNotZero;
using Kornum_RS_Math::rsVectorNeg;
using Kornum_RS_Math::rsVectorNotPos;
using Kornum_RS_Math::rsVectorZero;

// ---- Arithmetic in the element type ---------------------------------------------------
// Floating members compute in their own type, integer members wrap.

template <class E>
struct ElementArithmetic {
    using V = ValueOf<E>;
    static V Add(V a, V b) noexcept {
        if constexpr (ElementRules<E>::Floating) return a + b; else return WrapAdd(a, b);
    }
    static V Subtract(V a, V b) noexcept {
        if constexpr (ElementRules<E>::Floating) return a - b; else return WrapSub(a, b);
    }
    static V MultiplyAdd(V a, V x, V b) noexcept {
        if constexpr (ElementRules<E>::Floating) return a * x + b; else return WrapAdd(WrapMul(a, x), b);
    }
    // The square an element is replaced by: the floating product in the element type,
    // or the narrow square of the sums read back into the element type (Cardinal and
    // Integer keep their low 32 bits; Int64 holds the sign-extended low-32-bit square).
    static V Square(V x) noexcept {
        if constexpr (ElementRules<E>::Floating) return x * x; else return V(ElementRules<E>::Square(x));
    }
};

// ---- Products and distances of two vectors --------------------------------------------

// One product term of the dot product: Float for the floating members; the Cardinal and
// Integer members multiply their elements read as signed 32-bit values into a full
// 64-bit product (a Cardinal of 2^31 or more reads negative); Int64 wraps.
template <class E> struct DotTerm {
    static Float Of(ValueOf<E> a, ValueOf<E> b) noexcept { return Float(a) * Float(b); }
};
template <> struct DotTerm<Int64> {
    static Int64 Of(Int64 a, Int64 b) noexcept { return WrapMul(a, b); }
};
template <> struct DotTerm<Cardinal> {
    static Int64 Of(Cardinal a, Cardinal b) noexcept { return Int64(Integer(a)) * Int64(Integer(b)); }
};
template <> struct DotTerm<Integer> {
    static Int64 Of(Integer a, Integer b) noexcept { return Int64(a) * Int64(b); }
};

// One term of the distance: for the integer members both elements are widened to 64
// bits, the difference wraps in 64 bits, and the low 32 bits of that difference are
// squared and read back as signed 32-bit, Cardinal included.
template <class E> struct DistanceTerm {
    static Float Of(ValueOf<E> a, ValueOf<E> b) noexcept {
        const Float d = Float(a) - Float(b);
        return d * d;
    }
};
template <class I> struct IntegerDistanceTerm {
    static Int64 Of(I a, I b) noexcept { return NarrowSquare<Integer>(WrapSub(Int64(a), Int64(b))); }
};
template <> struct DistanceTerm<Int64> : IntegerDistanceTerm<Int64> {};
template <> struct DistanceTerm<Cardinal> : IntegerDistanceTerm<Cardinal> {};
template <> struct DistanceTerm<Integer> : IntegerDistanceTerm<Integer> {};

template <class E, class Term>
typename ElementRules<E>::Sum SumOfPairs(const TKorVector<E>& V1, const TKorVector<E>& V2) {
    RequireSameLength(V1, V2);
    RequireNotEmpty(V1);
    using R = ElementRules<E>;
    const E* a = V1.data();
    const E* b = V2.data();
    const Integer n = V1.Length();
    typename R::Sum sum = 0;
    for (Integer i = 0; i < n; ++i) sum = R::Add(sum, Term::Of(ValueOf<E>(a[i]), ValueOf<E>(b[i])));
    return sum;
}

template <class E>
typename ElementRules<E>::Sum DotProduct(const TKorVector<E>& V1, const TKorVector<E>& V2) {
    return SumOfPairs<E, DotTerm<E>>(V1, V2);
}

template <class E>
Float Magnitude(const TKorVector<E>& V) {
    Float sum = 0;
    for (const E& x : V) {
        const Float f = Float(ValueOf<E>(x));
        sum += f * f;
    }
    return std::sqrt(sum);
}

template <class E>
Float Angle(const TKorVector<E>& V1, const TKorVector<E>& V2) {
    const Float m1 = Magnitude(V1), m2 = Magnitude(V2);
    if (!(m1 > 0 && m2 > 0)) Platform::Raise(rsMagZero);
    return Kornummath::KorArcCos(Float(DotProduct(V1, V2)) / (m1 * m2));
}

using Platform::Require;

// Ln, Log10 and Log2 share their validation; the results are formed in Float and
// stored in the element type.
template <class E, class Log>
void Logarithm(const TKorVector<E>& V, Log log) {
    Require(IsPositive(V), rsVectorNotPos);
    Rewrite(V, [log](ValueOf<E> x) { return ValueOf<E>(log(Float(x))); });
}

template <class E>
TKorVector<E> MovingAverageOf(const TKorVector<E>& V, Cardinal K, Cardinal P) {
    RequireNotEmpty(V);
    if (K == 0) Platform::Raise(rsValueNotZero);
    if (P >= K) P = K - 1;
    TKorVector<E> result;
    const Integer n = V.Length();
    result.SetLength(n);
    // Windows longer than the vector are the caller's error; none is formed then.
    if (Int64(K) > Int64(n)) return result;
    const Integer k = Integer(K), p = Integer(P);
    for (Integer c = 0; c + k <= n; ++c) {
        Float sum = 0;
        for (Integer m = c; m < c + k; ++m) sum += Float(ValueOf<E>(V[m]));
        result[c + p] = E(ValueOf<E>(sum / Float(K)));
    }
    return result;
}

}  // namespace
}  // namespace detail

#define KORNUM_DEFINE_PAIRS(VT, T)                                                          \
    VT AddVectors(const VT& V1, const VT& V2) {                                             \
        return detail::PairToNew(V1, V2, detail::ElementArithmetic<VT::value_type>::Add);   \
    }                                                                                       \
    VT SubtractVectors(const VT& V1, const VT& V2) {                                        \
        return detail::PairToNew(V1, V2, detail::ElementArithmetic<VT::value_type>::Subtract); \
    }                                                                                       \
    void AddToVector(VT& V1, const VT& V2) {                                                \
        detail::PairInPlace(V1, V2, detail::ElementArithmetic<VT::value_type>::Add);        \
    }                                                                                       \
    void SubtractFromVector(VT& V1, const VT& V2) {                                         \
        detail::PairInPlace(V1, V2, detail::ElementArithmetic<VT::value_type>::Subtract);   \
    }
KORNUM_MEMBERS_PAIRS(KORNUM_DEFINE_PAIRS)
#undef KORNUM_DEFINE_PAIRS

#define KORNUM_DEFINE_PRODUCTS(VT, T)                                                           \
    detail::ElementRules<VT::value_type>::Sum DotProdVectors(const VT& V1, const VT& V2) {      \
        return detail::DotProduct(V1, V2);                                                      \
    }                                                                                           \
    detail::ElementRules<VT::value_type>::Sum SumSqDiffVectors(const VT& V1, const VT& V2) {    \
        return detail::SumOfPairs<VT::value_type, detail::DistanceTerm<VT::value_type>>(V1, V2); \
    }                                                                                           \
    Float AngleBetweenVectors(const VT& V1, const VT& V2) { return detail::Angle(V1, V2); }     \
    void SquareVector(VT& V) {                                                                  \
        detail::RequireNotEmpty(V);                                                             \
        detail::Rewrite(V, detail::ElementArithmetic<VT::value_type>::Square);                  \
    }
KORNUM_MEMBERS_SIX(KORNUM_DEFINE_PRODUCTS)
#undef KORNUM_DEFINE_PRODUCTS

#define KORNUM_DEFINE_MAGNITUDE(VT, T) \
    Float VectorMagnitude(const VT& V) { return detail::Magnitude(V); }
KORNUM_MEMBERS_ALL(KORNUM_DEFINE_MAGNITUDE)
#undef KORNUM_DEFINE_MAGNITUDE

#define KORNUM_DEFINE_LINEAR(VT, T)                                                          \
    void LinearTransformVector(VT& V, T A, T B) {                                            \
        detail::RequireNotEmpty(V);                                                          \
        detail::Rewrite(V, [A, B](T x) {                                                     \
            return detail::ElementArithmetic<VT::value_type>::MultiplyAdd(A, x, B);          \
        });                                                                                  \
    }
KORNUM_MEMBERS_SIGN_TESTS(KORNUM_DEFINE_LINEAR)
#undef KORNUM_DEFINE_LINEAR

#define KORNUM_DEFINE_FLOATING_TRANSFORMS(VT, T)                                             \
    void SqrtVector(VT& V) {                                                                 \
        detail::Require(detail::IsNonNegative(V), detail::rsVectorNeg);                      \
        detail::Rewrite(V, [](T x) { return T(std::sqrt(x)); });                      \
    }                                                                                        \
    void InvVector(VT& V) {                                                                  \
        detail::Require(detail::IsNonZero(V), detail::rsVectorZero);                         \
        detail::Rewrite(V, [](T x) { return T(1) / x; });                                    \
    }                                                                                        \
    void LnVector(VT& V) {                                                                   \
        detail::Logarithm(V, [](Float x) { return std::log(x); });                           \
    }                                                                                        \
    void Log10Vector(VT& V) { detail::Logarithm(V, Kornummath::KorLog10); }                  \
    void Log2Vector(VT& V) { detail::Logarithm(V, Kornummath::KorLog2); }                    \
    void TransformVector(VT& V, T (*F)(T)) {                                                 \
        detail::RequireNotEmpty(V);                                                          \
        detail::Rewrite(V, F);                                                               \
    }                                                                                        \
    VT MovingAverage(const VT& V, Cardinal K, Cardinal P) { return detail::MovingAverageOf(V, K, P); }
KORNUM_MEMBERS_FLOATING(KORNUM_DEFINE_FLOATING_TRANSFORMS)
#undef KORNUM_DEFINE_FLOATING_TRANSFORMS

Float KorPolynomial(const TKorFloatVector& C, Float X) {
    const Integer n = C.Length();
    if (n == 0) return 0;
    Float result = C[0];
    Float power = 1;
    for (Integer i = 1; i < n; ++i) {
        power *= X;
        result += Float(C[i]) * power;
    }
    return result;
}

}  // namespace KornumVector
