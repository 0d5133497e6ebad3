// The order-preserving key of a stored Float, read from its bytes in memory: loading the
// value into the FPU and storing it again costs more than the rest of a pass over it.
#pragma once

#include <kornum/KornumSharded.h>

#include <cstdint>
#include <cstring>

namespace KornumSharded::detail {

inline TKorKey KeyAt(const Float* x) noexcept {
    std::uint64_t low;
    std::uint16_t high;
    std::memcpy(&low, x, 8);
    std::memcpy(&high, reinterpret_cast<const unsigned char*>(x) + 8, 2);
    // Negative values count down from the sign bit, positive ones up from it.
    if (high & 0x8000) return {std::uint16_t(~high), ~low};
    return {std::uint16_t(high | 0x8000), low};
}

}  // namespace KornumSharded::detail
