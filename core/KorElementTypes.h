// The element types of vectors and matrices.
#pragma once

#include <kornum/KornumExport.h>
#include <compare>
#include <cstdint>
#include <limits>

namespace KORNUM_API Kornumglobals {

static_assert(std::numeric_limits<long double>::digits == 64,
              "kornum needs long double to be the 80-bit extended format");

using Boolean = bool;
using Byte = std::uint8_t;
using ShortInt = std::int8_t;
using Word = std::uint16_t;
using SmallInt = std::int16_t;
using Cardinal = std::uint32_t;
using LongWord = std::uint32_t;
using Integer = std::int32_t;
using LongInt = std::int32_t;
using Int64 = std::int64_t;
using Single = float;
using Double = double;
using Float = long double;

// Scaled integer amounts: KorCurrency holds hundredths, KorLongCurrency millionths.
using KorCurrency = std::int32_t;
using KorLongCurrency = std::int64_t;

// An amount held as a 64-bit integer count of ten-thousandths. A type of its own so
// that currency routines overload apart from the Int64 ones.
struct Currency {
    static constexpr Int64 Scale = 10000;

    Int64 Raw = 0;  // the amount times 10,000

    static constexpr Currency FromRaw(Int64 raw) noexcept { return Currency{raw}; }

    friend constexpr bool operator==(Currency, Currency) noexcept = default;
    friend constexpr auto operator<=>(Currency, Currency) noexcept = default;
};

// An 80-bit extended value stored in exactly 10 bytes, as a TKorFloatVector holds its
// elements. It reads and writes like a Float; copying it copies the 10 bytes, so
// stored values stay bit-exact.
struct PackedFloat {
    unsigned char Bytes[10];

    PackedFloat() noexcept = default;
    // One x87 store or load of exactly the 10 stored bytes. Copying through a local
    // instead would make every read a 10-byte load of two fresh narrower stores, which
    // the processor cannot forward: the sorts and sums would run at half speed.
    PackedFloat(Float x) noexcept { asm("fstpt %0" : "=m"(Bytes) : "t"(x) : "st"); }

    operator Float() const noexcept {
        Float x;
        asm("fldt %1" : "=t"(x) : "m"(Bytes));
        return x;
    }

    PackedFloat& operator+=(Float x) noexcept { return *this = Float(*this) + x; }
    PackedFloat& operator-=(Float x) noexcept { return *this = Float(*this) - x; }
    PackedFloat& operator*=(Float x) noexcept { return *this = Float(*this) * x; }
    PackedFloat& operator/=(Float x) noexcept { return *this = Float(*this) / x; }
};

static_assert(sizeof(PackedFloat) == 10 && alignof(PackedFloat) == 1);

}  // namespace Kornumglobals
