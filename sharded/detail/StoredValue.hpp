// A value of a shard as the 80-bit format stores it: the sign and biased exponent bits
// and the 64-bit significand with its explicit integer bit. Read from a Float's bytes (a
// copy through the FPU would cost more than the rest of a pass over it), or built from a
// double's bits as exactly the Float the double converts to, so that a shard of doubles
// gives the same keys, cells and sums as the same values held as Floats, at half the
// bytes a value.
#pragma once

#include <kornum/KornumSharded.h>

#include <bit>
#include <cstdint>
#include <cstring>

namespace KornumSharded::detail {

__extension__ typedef unsigned __int128 UInt128;  // GCC's 128-bit integer

struct Stored {
    std::uint16_t top;          // sign bit, then the 15 exponent bits
    std::uint64_t significand;  // with the integer bit (bit 63) of a normal value
};

[[gnu::always_inline]] inline Stored StoredOf(const Float& x) noexcept {
    Stored s;
    std::memcpy(&s.significand, &x, 8);
    std::memcpy(&s.top, reinterpret_cast<const unsigned char*>(&x) + 8, 2);
    return s;
}

// Zeros, subnormals, infinities and NaN: the exponent bits all 0 or all 1.
[[gnu::noinline]] inline Stored SpecialStoredOf(std::uint64_t bits) noexcept {
    const std::uint16_t sign = std::uint16_t(bits >> 48) & 0x8000;
    const std::uint64_t fraction = bits & ((std::uint64_t(1) << 52) - 1);
    if ((bits >> 52 & 0x7ff) == 0x7ff) {  // infinity, or a NaN, quiet as the conversion makes it
        const std::uint64_t quiet = fraction ? std::uint64_t(1) << 62 : 0;
        return {std::uint16_t(sign | 0x7fff), std::uint64_t(1) << 63 | quiet | fraction << 11};
    }
    if (fraction == 0) return {sign, 0};
    // A subnormal double, fraction * 2^-1074, is a normal Float.
    const int shift = std::countl_zero(fraction);
    return {std::uint16_t(sign | (16383 + 63 - 1074 - shift)), fraction << shift};
}

[[gnu::always_inline]] inline Stored StoredOf(const double& x) noexcept {
    const std::uint64_t bits = std::bit_cast<std::uint64_t>(x);
    const unsigned exponent = unsigned(bits >> 52) & 0x7ff;
    if (exponent - 1 >= 0x7fe) [[unlikely]]
        return SpecialStoredOf(bits);
    // A normal double: the exponent rebiased, the integer bit made explicit.
    return {std::uint16_t((std::uint16_t(bits >> 48) & 0x8000) | (exponent + 16383 - 1023)),
            std::uint64_t(1) << 63 | bits << 11};
}

// The order-preserving key (see TKorKey): negative values count down from the sign bit,
// positive ones up from it, -0 below +0.
[[gnu::always_inline]] inline TKorKey KeyOf(Stored s) noexcept {
    if (s.top & 0x8000) return {std::uint16_t(~s.top), ~s.significand};
    return {std::uint16_t(s.top | 0x8000), s.significand};
}
// The key as one integer, without branches.
[[gnu::always_inline]] inline UInt128 WideKeyOf(Stored s) noexcept {
    const std::uint64_t negative = -std::uint64_t(s.top >> 15);
    const std::uint16_t high = std::uint16_t(s.top ^ (0x8000 | (negative & 0x7fff)));
    return UInt128(high) << 64 | (s.significand ^ negative);
}

// The value whose key is the integer key.
inline Float ValueOfWideKey(UInt128 key) noexcept { return ValueOf({std::uint16_t(key >> 64), std::uint64_t(key)}); }

inline Float FloatOf(const Float& x) noexcept { return x; }
inline Float FloatOf(const double& x) noexcept { return Float(x); }

}  // namespace KornumSharded::detail
