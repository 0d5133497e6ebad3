#include "sharded/detail/ExactNumber.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace KornumSharded::detail {

namespace {

__extension__ typedef unsigned __int128 u128;  // GCC's 128-bit integer

// |a| compared with |b| at the same scale.
int CompareMagnitude(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b) {
    if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
    for (std::size_t i = a.size(); i-- > 0;)
        if (a[i] != b[i]) return a[i] < b[i] ? -1 : 1;
    return 0;
}

std::vector<std::uint64_t> AddMagnitude(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b) {
    std::vector<std::uint64_t> r(std::max(a.size(), b.size()) + 1);
    u128 carry = 0;
    for (std::size_t i = 0; i < r.size(); ++i) {
        carry += u128(i < a.size() ? a[i] : 0) + (i < b.size() ? b[i] : 0);
        r[i] = std::uint64_t(carry);
        carry >>= 64;
    }
    return r;
}

// |a| - |b| for |a| >= |b|.
std::vector<std::uint64_t> SubtractMagnitude(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b) {
    std::vector<std::uint64_t> r(a.size());
    std::uint64_t borrow = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const std::uint64_t bi = i < b.size() ? b[i] : 0;
        const u128 d = u128(a[i]) - bi - borrow;
        r[i] = std::uint64_t(d);
        borrow = (d >> 64) ? 1 : 0;
    }
    return r;
}

// Both numbers at the smaller of their scales.
std::pair<ExactNumber, ExactNumber> Aligned(ExactNumber a, ExactNumber b) {
    const std::int64_t scale = std::min(a.Scale, b.Scale);
    for (ExactNumber* x : {&a, &b}) {
        if (x->IsZero()) x->Scale = scale;
        x->Limbs.insert(x->Limbs.begin(), std::size_t(x->Scale - scale), 0);
        x->Scale = scale;
    }
    return {std::move(a), std::move(b)};
}

ExactNumber Signed(bool negative, std::vector<std::uint64_t> limbs, std::int64_t scale) {
    ExactNumber r{negative, std::move(limbs), scale};
    r.Trim();
    return r;
}

}  // namespace

ExactNumber ExactNumber::Of(std::int64_t value) {
    const std::uint64_t magnitude = value < 0 ? 0 - std::uint64_t(value) : std::uint64_t(value);
    return Signed(value < 0, {magnitude}, 0);
}

void ExactNumber::Trim() {
    while (!Limbs.empty() && Limbs.back() == 0) Limbs.pop_back();
    if (Limbs.empty()) {
        Negative = false;
        Scale = 0;
        return;
    }
    // Drop whole zero limbs at the bottom, so that equal values have one form.
    std::size_t zeros = 0;
    while (Limbs[zeros] == 0) ++zeros;
    Limbs.erase(Limbs.begin(), Limbs.begin() + std::ptrdiff_t(zeros));
    Scale += std::int64_t(zeros);
}

ExactNumber operator+(const ExactNumber& x, const ExactNumber& y) {
    auto [a, b] = Aligned(x, y);
    if (a.Negative == b.Negative) return Signed(a.Negative, AddMagnitude(a.Limbs, b.Limbs), a.Scale);
    if (CompareMagnitude(a.Limbs, b.Limbs) >= 0)
        return Signed(a.Negative, SubtractMagnitude(a.Limbs, b.Limbs), a.Scale);
    return Signed(b.Negative, SubtractMagnitude(b.Limbs, a.Limbs), a.Scale);
}

ExactNumber operator-(const ExactNumber& a, const ExactNumber& b) {
    ExactNumber negated = b;
    negated.Negative = !b.Negative && !b.IsZero();
    return a + negated;
}

ExactNumber operator*(const ExactNumber& a, const ExactNumber& b) {
    if (a.IsZero() || b.IsZero()) return {};
    std::vector<std::uint64_t> r(a.Limbs.size() + b.Limbs.size());
    for (std::size_t i = 0; i < a.Limbs.size(); ++i) {
        u128 carry = 0;
        for (std::size_t j = 0; j < b.Limbs.size(); ++j) {
            carry += u128(a.Limbs[i]) * b.Limbs[j] + r[i + j];
            r[i + j] = std::uint64_t(carry);
            carry >>= 64;
        }
        r[i + b.Limbs.size()] = std::uint64_t(carry);
    }
    return Signed(a.Negative != b.Negative, std::move(r), a.Scale + b.Scale);
}

Quad ToQuad(const ExactNumber& x) {
    if (x.IsZero()) return 0;
    // The top 192 bits, with a sticky bit for everything below them.
    const std::size_t n = x.Limbs.size();
    const std::uint64_t top = x.Limbs[n - 1];
    const int lead = 63 - __builtin_clzll(top);  // bit of the leading one in the top limb
    std::uint64_t words[3] = {0, 0, top};
    if (n >= 2) words[1] = x.Limbs[n - 2];
    if (n >= 3) words[0] = x.Limbs[n - 3];
    bool sticky = false;
    for (std::size_t i = 0; i + 3 < n; ++i) sticky |= x.Limbs[i] != 0;
    // Shift so that the leading one is bit 127 of hi:mid.
    const int shift = 63 - lead;
    u128 high = (u128(words[2]) << 64) | words[1];
    std::uint64_t low = words[0];
    if (shift) {
        high = (high << shift) | (low >> (64 - shift));
        low <<= shift;
    }
    sticky |= low != 0;
    // Keep 113 bits: drop the 15 lowest bits of high, rounding to nearest, ties to even.
    u128 significand = high >> 15;
    const std::uint64_t dropped = std::uint64_t(high & 0x7fff);
    if (dropped > 0x4000 || (dropped == 0x4000 && (sticky || (significand & 1)))) ++significand;
    // The value is significand * 2^(exponent - 112).
    std::int64_t exponent = x.Scale * 64 + std::int64_t(n - 1) * 64 + lead;
    if (significand >> 113) {
        significand >>= 1;
        ++exponent;
    }
    Quad result;
    if (exponent > 16383) {
        result = std::numeric_limits<long double>::infinity();
    } else if (exponent < -16382) {
        // Below the normal range of both formats: go through long double scaling.
        result = std::ldexp((long double)(Quad)significand, int(exponent - 112));
    } else {
        const u128 bits = (u128(std::uint64_t(exponent + 16383)) << 112) | (significand & ((u128(1) << 112) - 1));
        std::memcpy(&result, &bits, sizeof result);
    }
    return x.Negative ? -result : result;
}

Quad SquareRoot(Quad x) {
    if (x <= 0) return 0;
    const long double guess = std::sqrt((long double)x);
    if (!std::isfinite(guess)) return guess;
    Quad y = guess;
    y = (y + x / y) / 2;
    y = (y + x / y) / 2;
    return y;
}

}  // namespace KornumSharded::detail
