// The per-element-type rules of the vector routines, kept in one table per type so
// that every loop is written once. Internal to the library (not installed).
//
// ElementRules<E>, for the stored element type E, gives:
//   Value          the type a routine reads and returns (Float for a packed Float)
//   Floating       floating member (tolerant tests) or integer member (exact tests)
//   Sum            accumulator and result of the sums: Float or Int64
//   Widen(x)       an element as a Sum term (integers: zero or sign extension)
//   Add(s, t)      one accumulation step (integers: 64-bit wrap-around)
//   Square(x)      an element's square as a Sum term; integers keep only the low bits
//                  of the product in SquareWidth and widen those
//   Difference(a, b)  a - b in the element's own width (integers wrap)
//   Same(a, b)     the equality of the ranking routines
//   SameIsAnInterval(V)  whether, for each value, the values the Same as it form one
//                  interval of the order, so that ranking may search a sorted copy
//                  (false with a NaN among floating values)
//   Swap(a, b)     the exchange of two stored elements in the sorts
#pragma once

#include <kornum/KornumVector.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummath.h>
#include <kornum/Kornumsystem.h>
#include <kornum/Platform.h>

#include <algorithm>
#include <type_traits>

namespace KornumVector::detail {

// ---- Wrapping integer arithmetic -----------------------------------------------------
// Overflow of the integer members wraps by contract. It is done in the unsigned type of
// the same width, where wrap-around is defined, and converted back (modular in C++20).
template <class I>
inline I WrapAdd(I a, I b) noexcept {
    using U = std::make_unsigned_t<I>;
    return I(U(a) + U(b));
}
template <class I>
inline I WrapSub(I a, I b) noexcept {
    using U = std::make_unsigned_t<I>;
    return I(U(a) - U(b));
}
template <class I>
inline I WrapMul(I a, I b) noexcept {
    using U = std::make_unsigned_t<I>;
    return I(U(a) * U(b));
}

// The narrow square: the low 32 bits of the term squared modulo 2^32, cut down to
// Width (16 or 32 bits) and widened to Int64 with Width's signedness. The low bits of
// a product do not depend on the signedness of the factors, so one unsigned product
// serves every type.
template <class Width, class I>
inline Int64 NarrowSquare(I x) noexcept {
    const Cardinal low = Cardinal(x);
    return Int64(Width(Cardinal(low * low)));
}

// ---- The rule tables -----------------------------------------------------------------

template <class V>
struct FloatingRules {
    using Value = V;
    using Sum = Float;
    static constexpr bool Floating = true;
    static Float Widen(Value x) noexcept { return Float(x); }
    static Float Add(Float s, Float t) noexcept { return s + t; }
    static Float Square(Value x) noexcept { return Float(x) * Float(x); }
    static Value Difference(Value a, Value b) noexcept { return a - b; }
    static bool Same(Value a, Value b) noexcept { return Kornummath::SameFloat(a, b); }
    template <class E>
    static bool SameIsAnInterval(const TKorVector<E>& values) noexcept {
        return std::none_of(values.begin(), values.end(), [](const E& x) { return Value(x) != Value(x); });
    }
    template <class E>
    static void Swap(E& a, E& b) noexcept { Kornumsystem::SwapXY(a, b); }
};

template <class I, class SquareW>
struct IntegerRules {
    using Value = I;
    using Sum = Int64;
    using SquareWidth = SquareW;
    static constexpr bool Floating = false;
    static Int64 Widen(Value x) noexcept { return Int64(x); }
    static Int64 Add(Int64 s, Int64 t) noexcept { return WrapAdd(s, t); }
    static Int64 Square(Value x) noexcept { return NarrowSquare<SquareWidth>(x); }
    static Value Difference(Value a, Value b) noexcept { return WrapSub(a, b); }
    static bool Same(Value a, Value b) noexcept { return a == b; }
    static bool SameIsAnInterval(const TKorVector<I>&) noexcept { return true; }
    static void Swap(I& a, I& b) noexcept { Kornumsystem::SwapXY(a, b); }
};

template <class E>
struct ElementRules;

template <> struct ElementRules<PackedFloat> : FloatingRules<Float> {};
template <> struct ElementRules<Double> : FloatingRules<Double> {};
template <> struct ElementRules<Single> : FloatingRules<Single> {};
// Squares kept to 16 bits: Byte squares of 182 and above read back negative, Word
// squares above 65535 lose their high bits.
template <> struct ElementRules<Byte> : IntegerRules<Byte, SmallInt> {};
template <> struct ElementRules<ShortInt> : IntegerRules<ShortInt, SmallInt> {};
template <> struct ElementRules<Word> : IntegerRules<Word, Word> {};
template <> struct ElementRules<SmallInt> : IntegerRules<SmallInt, SmallInt> {};
template <> struct ElementRules<Cardinal> : IntegerRules<Cardinal, Cardinal> {};
template <> struct ElementRules<Integer> : IntegerRules<Integer, Integer> {};
// An Int64 element is squared through its low 32 bits only, read back as signed.
template <> struct ElementRules<Int64> : IntegerRules<Int64, Integer> {};

template <class E>
using ValueOf = typename ElementRules<E>::Value;

// Reads element i as its Value (a packed Float becomes a Float).
template <class E>
inline ValueOf<E> At(const TKorVector<E>& V, Integer i) noexcept {
    return ValueOf<E>(V[i]);
}

// ---- Sign-test rules (the members that have sign tests) -------------------------------
// Each predicate says when an element makes the test answer false.

struct FloatingSignRules {
    static bool FailsZero(Float x) noexcept { return !Kornummath::FloatIsZero(x); }
    static bool FailsNonZero(Float x) noexcept { return Kornummath::FloatIsZero(x); }
    static bool FailsPositive(Float x) noexcept { return !Kornummath::FloatIsPositive(x); }
    static bool FailsNonNegative(Float x) noexcept { return Kornummath::FloatIsNegative(x); }
};

// Exact comparisons with 0, except the non-zero test, which applies the tolerant zero
// test to the element as a Float (so a tolerance of 1 or more makes 1 count as zero).
struct Int64SignRules {
    static bool FailsZero(Int64 x) noexcept { return x != 0; }
    static bool FailsNonZero(Int64 x) noexcept { return Kornummath::FloatIsZero(Float(x)); }
    static bool FailsPositive(Int64 x) noexcept { return x <= 0; }
    static bool FailsNonNegative(Int64 x) noexcept { return x < 0; }
};

template <class E>
struct SignRules : FloatingSignRules {};
template <>
struct SignRules<Int64> : Int64SignRules {};

// ---- Failures ------------------------------------------------------------------------

template <class E>
inline void RequireNotEmpty(const TKorVector<E>& V) {
    if (V.Length() == 0) Platform::Raise(Kornum_RS_Math::rsVectorIsEmpty);
}

template <class E>
inline void RequireSameLength(const TKorVector<E>& V1, const TKorVector<E>& V2) {
    if (V1.High() != V2.High()) Platform::Raise(Kornum_RS_Math::rsSameDimensions);
}

// ---- Shared loops --------------------------------------------------------------------

// A new vector of n elements, each Convert(V[i]).
template <class To, class From, class Convert>
inline TKorVector<To> MapToNew(const TKorVector<From>& V, Convert convert) {
    TKorVector<To> result;
    const Integer n = V.Length();
    result.SetLength(n);
    const From* from = V.data();
    To* to = result.data();
    for (Integer i = 0; i < n; ++i) to[i] = To(convert(from[i]));
    return result;
}

// Walks i from 0 upwards; false at the first element that fails.
template <class E, class Fails>
inline bool AllPass(const TKorVector<E>& V, Fails fails) {
    RequireNotEmpty(V);
    const Integer n = V.Length();
    for (Integer i = 0; i < n; ++i) {
        if (fails(ValueOf<E>(V[i]))) return false;
    }
    return true;
}

template <class E>
bool IsNonNegative(const TKorVector<E>& V) {
    return AllPass(V, [](ValueOf<E> x) { return SignRules<E>::FailsNonNegative(x); });
}
template <class E>
bool IsNonZero(const TKorVector<E>& V) {
    return AllPass(V, [](ValueOf<E> x) { return SignRules<E>::FailsNonZero(x); });
}
template <class E>
bool IsPositive(const TKorVector<E>& V) {
    return AllPass(V, [](ValueOf<E> x) { return SignRules<E>::FailsPositive(x); });
}

// ---- Member lists ---------------------------------------------------------------------
// Each expands M(VectorType, ValueType) once per member of a family, so that the source
// files define exactly the overloads the public header declares.
#define KORNUM_MEMBERS_ALL(M)                                                               \
    M(TKorFloatVector, Float) M(TKorDoubleVector, Double) M(TKorSingleVector, Single)       \
    M(TKorInt64Vector, Int64) M(TKorLWordVector, Cardinal) M(TKorLIntVector, Integer)       \
    M(TKorWordVector, Word) M(TKorSmallIntVector, SmallInt) M(TKorByteVector, Byte)         \
    M(TKorSIntVector, ShortInt)
#define KORNUM_MEMBERS_FLOATING(M) \
    M(TKorFloatVector, Float) M(TKorDoubleVector, Double) M(TKorSingleVector, Single)
#define KORNUM_MEMBERS_SIX(M) \
    KORNUM_MEMBERS_FLOATING(M) M(TKorInt64Vector, Int64) M(TKorLWordVector, Cardinal) M(TKorLIntVector, Integer)
#define KORNUM_MEMBERS_SIGN_TESTS(M) KORNUM_MEMBERS_FLOATING(M) M(TKorInt64Vector, Int64)
#define KORNUM_MEMBERS_PAIRS(M) \
    KORNUM_MEMBERS_FLOATING(M) M(TKorInt64Vector, Int64) M(TKorLIntVector, Integer)

}  // namespace KornumVector::detail
