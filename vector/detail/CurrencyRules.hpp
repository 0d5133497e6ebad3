// The element rules of the three currency members: KorCurrency (hundredths in 32 bits),
// KorLongCurrency (millionths in 64 bits) and Currency (ten-thousandths in 64 bits). They
// are rules tables of the same vector and matrix algorithms as the numeric members; the
// differences of the currency members are all here. Internal to the library.
#pragma once

#include "vector/detail/VectorElementRules.hpp"

#include <kornum/Kornumfinancials.h>

#include <cmath>
#include <type_traits>

namespace KornumVector::detail {

// A Float rounded to the nearest integer, ties to even (the processor's rounding).
inline Int64 RoundToStored(Float x) noexcept { return std::llrint(x); }

// The stored integer of an amount, and an amount from its stored integer (a KorCurrency
// keeps the low 32 bits).
template <class T>
Int64 StoredOf(T x) noexcept {
    if constexpr (std::is_same_v<T, Currency>) return x.Raw; else return Int64(x);
}
template <class T>
T FromStored(Int64 stored) noexcept {
    if constexpr (std::is_same_v<T, Currency>) return Currency::FromRaw(stored); else return T(stored);
}

// Exact integer sums and differences of the stored values, wrapping in their width:
// 32 bits for KorCurrency, 64 for the others.
template <class T>
using StoredWidth = std::conditional_t<std::is_same_v<T, KorCurrency>, KorCurrency, Int64>;
template <class T>
T StoredAdd(T a, T b) noexcept {
    return FromStored<T>(WrapAdd(StoredWidth<T>(StoredOf(a)), StoredWidth<T>(StoredOf(b))));
}
template <class T>
T StoredSubtract(T a, T b) noexcept {
    return FromStored<T>(WrapSub(StoredWidth<T>(StoredOf(a)), StoredWidth<T>(StoredOf(b))));
}

// What the three share: exact comparisons, the currency module's swap, and the two
// integer members' ranking equality, SameCurrency of the stored integer taken as a whole
// amount (times 10,000, wrapping in 64 bits).
template <class Stored>
struct CurrencyRulesBase {
    using Value = Stored;
    static constexpr bool Floating = false;
    static void Swap(Stored& a, Stored& b) noexcept { Kornumfinancials::SwapXY(a, b); }
    static Currency AsWholeAmount(Stored x) noexcept { return Currency::FromRaw(WrapMul(Int64(x), Int64(10000))); }
    static bool Same(Stored a, Stored b) { return Kornumfinancials::SameCurrency(AsWholeAmount(a), AsWholeAmount(b)); }
    static Float Amount(Stored x) { return Kornumfinancials::Currency2Float(x); }
    // Exact sign tests.
    static bool FailsZero(Stored x) noexcept { return x != 0; }
    static bool FailsNonZero(Stored x) noexcept { return x == 0; }
    static bool FailsPositive(Stored x) noexcept { return x <= 0; }
    static bool FailsNonNegative(Stored x) noexcept { return x < 0; }
};

// The integer members: sums wrap in their own width and keep the element type (so the
// KorCurrency sum wraps in 32 bits, where the numeric Integer member widens to Int64);
// amounts convert back through the base layer's Float2KorCurrency or
// Float2KorLongCurrency.
template <class Stored, Int64 One, Stored (*FromFloatAmount)(Float)>
struct IntegerCurrencyRules : CurrencyRulesBase<Stored> {
    using Sum = Stored;
    static constexpr Int64 StoredOne = One;
    static Stored Widen(Stored x) noexcept { return x; }
    static Stored Add(Stored s, Stored t) noexcept { return WrapAdd(s, t); }
    static Stored FromAmount(Float a) { return FromFloatAmount(a); }
};

struct KorCurrencyRules : IntegerCurrencyRules<KorCurrency, 100, Kornumfinancials::Float2KorCurrency> {
    // Every 32-bit value times 10,000 fits 64 bits: the equality is exact.
    static bool SameIsAnInterval(const TKorVector<KorCurrency>&) noexcept { return true; }
};

struct KorLongCurrencyRules : IntegerCurrencyRules<KorLongCurrency, 1000000, Kornumfinancials::Float2KorLongCurrency> {
    // Times 10,000 wraps beyond 2^63 / 10,000, and then values 2^60 apart compare the
    // same: the ranking searches a sorted copy only while every value is below 2^59.
    static bool SameIsAnInterval(const TKorVector<KorLongCurrency>& values) noexcept {
        constexpr Int64 Bound = Int64(1) << 59;
        return std::all_of(values.begin(), values.end(), [](Int64 x) { return x > -Bound && x < Bound; });
    }
};

// Currency sums run in Float and are rounded back to a stored amount after every step;
// its sign tests are the tolerant Float ones on the amount.
struct CurrencyRules : CurrencyRulesBase<Currency> {
    using Sum = Currency;
    static constexpr Int64 StoredOne = Currency::Scale;
    static Currency Widen(Currency x) noexcept { return x; }
    static Currency Add(Currency s, Currency t) noexcept {
        return Currency::FromRaw(RoundToStored(Float(s.Raw) + Float(t.Raw)));
    }
    static bool Same(Currency a, Currency b) { return Kornumfinancials::SameCurrency(a, b); }
    static bool SameIsAnInterval(const TKorVector<Currency>&) noexcept { return true; }
    static bool FailsZero(Currency x) { return !Kornummath::FloatIsZero(Amount(x)); }
    static bool FailsNonZero(Currency x) { return Kornummath::FloatIsZero(Amount(x)); }
    static bool FailsPositive(Currency x) { return !Kornummath::FloatIsPositive(Amount(x)); }
    static bool FailsNonNegative(Currency x) { return Kornummath::FloatIsNegative(Amount(x)); }
};

// amount * A + B in the member's own terms: for Currency on the stored amount in Float,
// rounded; for the others through the Float amount and back (a result out of range
// raises Platform::ERangeError).
template <class R>
typename R::Value Transformed(typename R::Value x, Float A, Float B) {
    if constexpr (std::is_same_v<typename R::Value, Currency>)
        return Currency::FromRaw(RoundToStored(A * Float(x.Raw) + B * Float(Currency::Scale)));
    else
        return R::FromAmount(A * R::Amount(x) + B);
}

// Currency is a type of its own, so the algorithms that take their rules from the
// element type find these.
template <>
struct ElementRules<Currency> : CurrencyRules {};

}  // namespace KornumVector::detail
