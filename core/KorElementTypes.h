/// @file
/// The element types of vectors and matrices: the integer and floating types under their
/// library names, the scaled currency types, and `Kornumglobals::PackedFloat`, the
/// 10-byte element of a `TKorFloatVector`. Included by `<kornum/Kornumglobals.h>`.
#pragma once

#include <kornum/KornumExport.h>
#include <compare>
#include <cstdint>
#include <limits>

KORNUM_EXPORT_BEGIN
namespace Kornumglobals {

static_assert(std::numeric_limits<long double>::digits == 64,
              "kornum needs long double to be the 80-bit extended format");

/// A truth value.
using Boolean = bool;
/// An unsigned 8-bit integer.
using Byte = std::uint8_t;
/// A signed 8-bit integer.
using ShortInt = std::int8_t;
/// An unsigned 16-bit integer.
using Word = std::uint16_t;
/// A signed 16-bit integer.
using SmallInt = std::int16_t;
/// An unsigned 32-bit integer.
using Cardinal = std::uint32_t;
/// An unsigned 32-bit integer (the same type as `Cardinal`); row and column numbers.
using LongWord = std::uint32_t;
/// A signed 32-bit integer.
using Integer = std::int32_t;
/// A signed 32-bit integer (the same type as `Integer`).
using LongInt = std::int32_t;
/// A signed 64-bit integer.
using Int64 = std::int64_t;
/// The 32-bit binary floating type.
using Single = float;
/// The 64-bit binary floating type.
using Double = double;
/// The x87 80-bit extended type (64-bit significand): the library's working precision.
using Float = long double;

/// An amount held as a 32-bit integer count of hundredths (`Kornumfinancials` converts).
using KorCurrency = std::int32_t;
/// An amount held as a 64-bit integer count of millionths (`Kornumfinancials` converts).
using KorLongCurrency = std::int64_t;

/// An amount held as a 64-bit integer count of ten-thousandths. A type of its own so
/// that currency routines overload apart from the Int64 ones. Compares by its count.
struct Currency {
    /// The number of units in one: 10,000.
    static constexpr Int64 Scale = 10000;

    Int64 Raw = 0;  ///< The amount times 10,000; 0 by default.

    /// The amount whose count of ten-thousandths is `raw` (`FromRaw(15000)` is 1.5).
    static constexpr Currency FromRaw(Int64 raw) noexcept { return Currency{raw}; }

    /// True for the same amount.
    friend constexpr bool operator==(Currency, Currency) noexcept = default;
    /// Orders amounts by value.
    friend constexpr auto operator<=>(Currency, Currency) noexcept = default;
};

/// An 80-bit extended value stored in exactly 10 bytes, as a TKorFloatVector holds its
/// elements. It reads and writes like a Float; copying it copies the 10 bytes, so
/// stored values stay bit-exact.
struct PackedFloat {
    /// The value in the x87 extended format, little-endian: significand, then sign and
    /// exponent.
    unsigned char Bytes[10];

    /// An uninitialised value (a vector's new elements are zero-filled by the vector).
    PackedFloat() noexcept = default;
    // One x87 store or load of exactly the 10 stored bytes. Copying through a local
    // instead would make every read a 10-byte load of two fresh narrower stores, which
    // the processor cannot forward: the sorts and sums would run at half speed.
    /// Stores `x` exactly.
    PackedFloat(Float x) noexcept { asm("fstpt %0" : "=m"(Bytes) : "t"(x) : "st"); }

    /// The stored value, exactly.
    operator Float() const noexcept {
        Float x;
        asm("fldt %1" : "=t"(x) : "m"(Bytes));
        return x;
    }

    /// Adds `x` in Float arithmetic and stores the rounded result.
    PackedFloat& operator+=(Float x) noexcept { return *this = Float(*this) + x; }
    /// Subtracts `x` in Float arithmetic and stores the rounded result.
    PackedFloat& operator-=(Float x) noexcept { return *this = Float(*this) - x; }
    /// Multiplies by `x` in Float arithmetic and stores the rounded result.
    PackedFloat& operator*=(Float x) noexcept { return *this = Float(*this) * x; }
    /// Divides by `x` in Float arithmetic and stores the rounded result.
    PackedFloat& operator/=(Float x) noexcept { return *this = Float(*this) / x; }
};

static_assert(sizeof(PackedFloat) == 10 && alignof(PackedFloat) == 1);

}  // namespace Kornumglobals
KORNUM_EXPORT_END
