// Tables of Taylor coefficients at evenly spaced nodes: the node nearest a point and the
// polynomial about it. Internal to the library (not installed).
#pragma once

#include <kornum/Kornumglobals.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace KornumStatistics::detail {

using Kornumglobals::Float;

// The node c = i / NodesPerUnit nearest z >= 0 (NodesPerUnit a power of two), as its
// index i and the offset h = z - c, which is exact.
struct NearestNode {
    std::uint64_t index;
    Float offset;
};

template <int NodesPerUnit>
inline NearestNode NearestNodeOf(Float z) {
    // Adding 1.5 * 2^63 rounds NodesPerUnit z to the nearest integer and leaves it in the
    // low bits of the significand: no slow conversion of this format to an integer.
    constexpr Float Shifter = 0x1.8p63L;
    const Float shifted = z * NodesPerUnit + Shifter;
    const Float c = (shifted - Shifter) / NodesPerUnit;
    std::uint64_t bits;
    std::memcpy(&bits, &shifted, sizeof bits);
    return {bits - 0xC000000000000000ull, z - c};
}

// A Float as two doubles whose sum is exactly its value: the low double holds the 11
// bits the high one lacks. Two double loads and an addition cost less than one load of
// this format from memory, and the sum is the tabulated Float to the last bit.
struct SplitFloat {
    double hi = 0, lo = 0;
    constexpr SplitFloat() = default;
    constexpr explicit SplitFloat(Float x) : hi(double(x)), lo(double(x - Float(double(x)))) {}
    Float Value() const { return Float(hi) + lo; }
};

// A table of Floats held as SplitFloats, built from it at compile time.
template <std::size_t Rows, std::size_t Columns>
struct SplitTable {
    SplitFloat rows[Rows][Columns];
    constexpr explicit SplitTable(const Float (&table)[Rows][Columns]) {
        for (std::size_t i = 0; i < Rows; ++i)
            for (std::size_t k = 0; k < Columns; ++k) rows[i][k] = SplitFloat(table[i][k]);
    }
    const SplitFloat* operator[](std::uint64_t i) const { return rows[i]; }
};

// c[K] of a Taylor table, 0 beyond the Degree: the full Float below Short, the high
// double from there on.
template <int Degree, int Short, int K>
[[gnu::always_inline]] inline Float Coefficient(const SplitFloat* c) {
    if constexpr (K > Degree) return 0;
    else if constexpr (K >= Short) return c[K].hi;
    else return c[K].Value();
}

// c[K] + c[K + 1] h.
template <int Degree, int Short, int K>
[[gnu::always_inline]] inline Float Pair(const SplitFloat* c, Float h) {
    return Coefficient<Degree, Short, K>(c) + Coefficient<Degree, Short, K + 1>(c) * h;
}

// sum c[k] h^k for k = 0 .. Degree as c[0] + h T(h), T by Estrin's scheme: pairs
// c[k] + c[k+1] h combined with h^2, those with h^4 and h^8, a chain of four
// multiply-adds where Horner's rule needs one per power (the polynomial's latency is most
// of a call near the centre). c[0] is added last, so that T's larger rounding errors
// are scaled down by h, as in Horner's rule.
// The coefficients from h^Short on are read to double precision only, one memory
// operand each, where the caller's table makes their terms small enough for that.
// Always inlined: a call would pass h and the result through memory.
template <int Degree, int Short>
[[gnu::always_inline]] inline Float TaylorPolynomial(const SplitFloat* c, Float h) {
    static_assert(Degree >= 9 && Degree <= 16);
    const Float h2 = h * h, h4 = h2 * h2, h8 = h4 * h4;
    const Float low = (Pair<Degree, Short, 1>(c, h) + Pair<Degree, Short, 3>(c, h) * h2) +
                      (Pair<Degree, Short, 5>(c, h) + Pair<Degree, Short, 7>(c, h) * h2) * h4;
    Float high = Pair<Degree, Short, 9>(c, h) + Pair<Degree, Short, 11>(c, h) * h2;
    if constexpr (Degree >= 13) high += Pair<Degree, Short, 13>(c, h) * h4;
    return Coefficient<Degree, Short, 0>(c) + (low + high * h8) * h;
}

}  // namespace KornumStatistics::detail
