#include <kornum/Kornumfinancials.h>

#include <kornum/PlatformExceptions.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace Kornumfinancials {
namespace {

constexpr Int64 CurrencyScale = Currency::Scale;   // ten-thousandths
constexpr Int64 KorCurrencyScale = 100;            // hundredths
constexpr Int64 KorLongCurrencyScale = 1000000;    // millionths

// The message names the amount (in units of one) and the target type.
[[noreturn]] void RaiseOutOfRange(Float value, const char* target) {
    char text[64];
    auto end = std::to_chars(text, text + sizeof text, value).ptr;
    throw Platform::ERangeError("The value " + std::string(text, end) + " is out of the range of " +
                                target);
}

// The integer nearest to X, ties to even, independent of the rounding mode.
Float RoundHalfEven(Float X) {
    Float whole = std::trunc(X);
    const Float fraction = X - whole;  // exact
    const Float away = X < 0 ? -1 : 1;
    const Float size = std::fabs(fraction);
    if (size > 0.5L || (size == 0.5L && std::fmod(whole, 2.0L) != 0)) whole += away;
    return whole;
}

// X * scale rounded to a whole number of units of Target.
template <class Target>
Target ScaleFloat(Float X, Int64 scale, const char* target) {
    const Float units = RoundHalfEven(X * scale);
    if (!(units >= Float(std::numeric_limits<Target>::min()) &&
          units <= Float(std::numeric_limits<Target>::max())))
        RaiseOutOfRange(X, target);
    return static_cast<Target>(units);
}

// N / divisor rounded to the nearest integer, ties to even (divisor > 0).
Int64 DivideHalfEven(Int64 N, Int64 divisor) {
    Int64 quotient = N / divisor;
    const Int64 remainder = N % divisor;
    const Int64 twice = 2 * (remainder < 0 ? -remainder : remainder);
    if (twice > divisor || (twice == divisor && quotient % 2 != 0)) quotient += N < 0 ? -1 : 1;
    return quotient;
}

template <class Target>
Target Narrow(Int64 value, Float amount, const char* target) {
    if (value < std::numeric_limits<Target>::min() || value > std::numeric_limits<Target>::max())
        RaiseOutOfRange(amount, target);
    return static_cast<Target>(value);
}

Int64 Widen(Int64 value, Int64 factor, Float amount, const char* target) {
    Int64 result;
    if (__builtin_mul_overflow(value, factor, &result)) RaiseOutOfRange(amount, target);
    return result;
}

}  // namespace

Float Currency2Float(Currency X) { return Float(X.Raw) / CurrencyScale; }
Float Currency2Float(KorLongCurrency X) { return Float(X) / KorLongCurrencyScale; }
Float Currency2Float(KorCurrency X) { return Float(X) / KorCurrencyScale; }

KorCurrency Float2KorCurrency(Float X) {
    return ScaleFloat<KorCurrency>(X, KorCurrencyScale, "KorCurrency");
}
KorLongCurrency Float2KorLongCurrency(Float X) {
    return ScaleFloat<KorLongCurrency>(X, KorLongCurrencyScale, "KorLongCurrency");
}
Currency Float2Currency(Float X) { return Currency::FromRaw(ScaleFloat<Int64>(X, CurrencyScale, "Currency")); }
KorCurrency Currency2KorCurrency(Currency X) {
    return Narrow<KorCurrency>(DivideHalfEven(X.Raw, CurrencyScale / KorCurrencyScale), Currency2Float(X),
                               "KorCurrency");
}
KorLongCurrency Currency2KorLongCurrency(Currency X) {
    return Widen(X.Raw, KorLongCurrencyScale / CurrencyScale, Currency2Float(X),
                 "KorLongCurrency");
}
Currency KorCurrency2Currency(KorCurrency X) {
    return Currency::FromRaw(Int64(X) * (CurrencyScale / KorCurrencyScale));
}
KorLongCurrency KorCurrency2KorLongCurrency(KorCurrency X) {
    return Int64(X) * (KorLongCurrencyScale / KorCurrencyScale);
}
Currency KorLongCurrency2Currency(KorLongCurrency X) {
    return Currency::FromRaw(DivideHalfEven(X, KorLongCurrencyScale / CurrencyScale));
}
KorCurrency KorLongCurrency2KorCurrency(KorLongCurrency X) {
    return Narrow<KorCurrency>(DivideHalfEven(X, KorLongCurrencyScale / KorCurrencyScale),
                               Currency2Float(X), "KorCurrency");
}

bool SameCurrency(Currency X, Currency Y) { return X.Raw == Y.Raw; }

}  // namespace Kornumfinancials
