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

// sum c[k] h^k for k = 0 .. Degree, as its even and odd halves in h^2: two chains of
// half the length side by side, short enough for the eight registers of this format's
// stack. The coefficients from h^Short on are read to double precision only, one memory
// operand each, where the caller's table makes their terms small enough for that.
template <int Degree, int Short>
inline Float EvenOddPolynomial(const SplitFloat* c, Float h) {
    constexpr int TopEven = Degree % 2 == 0 ? Degree : Degree - 1;
    constexpr int TopOdd = Degree % 2 == 1 ? Degree : Degree - 1;
    const auto coefficient = [c](int k) { return k >= Short ? Float(c[k].hi) : c[k].Value(); };
    const Float h2 = h * h;
    Float even = coefficient(TopEven), odd = coefficient(TopOdd);
#pragma GCC unroll 8
    for (int n = 1; n <= TopEven / 2; ++n) {
        even = even * h2 + coefficient(TopEven - 2 * n);
        if (TopOdd - 2 * n >= 1) odd = odd * h2 + coefficient(TopOdd - 2 * n);
    }
    return even + odd * h;
}

}  // namespace KornumStatistics::detail
