// Tables of Taylor coefficients at evenly spaced nodes: the node nearest a point and the
// polynomial about it. Internal to the library (not installed).
#pragma once

#include <kornum/Kornumglobals.h>

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

// sum c[k] h^k for k = 0 .. Degree, as its even and odd halves in h^2: two chains of
// half the length side by side, short enough for the eight registers of this format's
// stack.
template <int Degree>
inline Float EvenOddPolynomial(const Float* c, Float h) {
    constexpr int TopEven = Degree % 2 == 0 ? Degree : Degree - 1;
    constexpr int TopOdd = Degree % 2 == 1 ? Degree : Degree - 1;
    const Float h2 = h * h;
    Float even = c[TopEven], odd = c[TopOdd];
    for (int k = TopEven - 2, j = TopOdd - 2; k >= 0 || j >= 1; k -= 2, j -= 2) {
        if (k >= 0) even = even * h2 + c[k];
        if (j >= 1) odd = odd * h2 + c[j];
    }
    return even + odd * h;
}

}  // namespace KornumStatistics::detail
