#include <kornum/Combinatorics.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Platform.h>

#include <array>
#include <cmath>
#include <cstdint>

namespace KornumStatistics {

namespace {

// Floating faults stay masked, so an overflow inside the products shows up as an
// infinity and an invalid operation as a NaN; either one is the overflow failure.
// Every factor is positive, so once the running value has left the finite range it
// cannot come back: testing the result after each step is enough.
bool Overflowed(Float value) { return !std::isfinite(value); }

// Int(X + 0.5): the integer part of the value plus one half.
Float RoundHalfUp(Float value) { return std::trunc(value + 0.5L); }

// 0! .. 1754!, each formed exactly as Factorial describes (1.0 times 2, 3, ... in
// order), so a lookup returns the same bits as the loop. The Poisson tails call
// Factorial once per term, which makes the table worth its 28 KiB.
const std::array<Float, MaxFactorialArgument + 1>& FactorialTable() {
    static const auto table = [] {
        std::array<Float, MaxFactorialArgument + 1> values{};
        Float product = 1.0L;
        values[0] = product;
        for (Cardinal n = 1; n <= MaxFactorialArgument; ++n) {
            if (n >= 2) product *= Float(n);
            values[n] = product;
        }
        return values;
    }();
    return table;
}

}  // namespace

Float Factorial(Cardinal N) {
    if (N > MaxFactorialArgument) Platform::Raise(Kornum_RS_Math::rsFactOverflow);
    return FactorialTable()[N];
}

Float Permutation(Cardinal N, Cardinal R) {
    if (N < R) Platform::Raise(Kornum_RS_Math::rsPermInvalid);
    if (N == 0) return 0;  // Permutation(0, 0) counts as 0 on purpose
    if (R == 0) return 1;
    Float product = 1.0L;
    // A 64-bit counter, so that the loop ends even when N is the largest Cardinal.
    const std::uint64_t last = std::uint64_t(N) - R + 1;
    for (std::uint64_t factor = N; factor >= last; --factor) {
        product *= Float(factor);
        if (Overflowed(product)) Platform::Raise(Kornum_RS_Math::rsPermOverflowed);
    }
    const Float result = RoundHalfUp(product);
    if (Overflowed(result)) Platform::Raise(Kornum_RS_Math::rsPermOverflowed);
    return result;
}

Float BinomialCoeff(Cardinal N, Cardinal R) {
    if (N < R) Platform::Raise(Kornum_RS_Math::rsBinomInvalid);
    if (N == 0) return 0;  // BinomialCoeff(0, 0) counts as 0 on purpose
    if (R == 0 || R == N) return 1;
    const std::uint64_t K = (R <= N / 2) ? R : N - R;
    // One division per multiplication, while divisors remain: the running value stays
    // near the size of an intermediate coefficient instead of N^K.
    Float C = 1.0L;
    std::uint64_t divisor = 2;
    for (std::uint64_t factor = std::uint64_t(N) - K + 1; factor <= N; ++factor) {
        C *= Float(factor);
        if (divisor <= K) {
            C /= Float(divisor);
            ++divisor;
        }
        if (Overflowed(C)) Platform::Raise(Kornum_RS_Math::rsBinomOverflowed);
    }
    C = RoundHalfUp(C);
    if (Overflowed(C)) Platform::Raise(Kornum_RS_Math::rsBinomOverflowed);
    return C;
}

}  // namespace KornumStatistics
