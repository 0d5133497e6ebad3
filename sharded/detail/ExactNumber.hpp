// Exact signed integers scaled by a power of two (2^(64 * Scale)), for the moments of a
// summary: products and differences of the exact sums without rounding, then one
// conversion to 113-bit binary128 for the few operations that follow.
#pragma once

#include <cstdint>
#include <vector>

namespace KornumSharded::detail {

using Quad = __float128;

struct ExactNumber {
    bool Negative = false;
    std::vector<std::uint64_t> Limbs;  // magnitude, least significant first, no leading zero
    std::int64_t Scale = 0;            // the value is +-Limbs * 2^(64 * Scale)

    static ExactNumber Of(std::int64_t value);
    bool IsZero() const noexcept { return Limbs.empty(); }
    void Trim();
};

ExactNumber operator+(const ExactNumber& a, const ExactNumber& b);
ExactNumber operator-(const ExactNumber& a, const ExactNumber& b);
ExactNumber operator*(const ExactNumber& a, const ExactNumber& b);
// The value rounded to nearest (ties to even) at 113 bits; infinity past the range.
Quad ToQuad(const ExactNumber& x);
// The square root of a nonnegative binary128 value, to about 113 bits.
Quad SquareRoot(Quad x);

}  // namespace KornumSharded::detail
