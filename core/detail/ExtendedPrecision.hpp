// Arithmetic in two Floats and the gamma function in pieces, inline and header-only:
// compiled into each library that includes it, so it is no interface between them.
//
// Results such as Beta(a, b) or x^a (1 - x)^b / Beta(a, b) are exp(E) with E a sum of
// terms like a ln x that reach 1e4 and more while E itself may be small: one Float for E
// would lose |E| ulps. These helpers carry E as a TwoFloat (an unevaluated sum hi + lo,
// about 128 bits) and take a single exponential at the end.
#pragma once

#include <kornum/Kornummath.h>

#include <cmath>
#include <cstdint>
#include <cstring>

namespace Kornummath::special {

inline constexpr Float Epsilon = 0x1p-63L;  // one ulp at 1

struct TwoFloat {
    Float hi, lo;
};

// ---- Error-free transformations ----------------------------------------------------

// a + b = s.hi + s.lo exactly.
inline TwoFloat TwoSum(Float a, Float b) {
    const Float s = a + b;
    const Float bb = s - a;
    return {s, (a - (s - bb)) + (b - bb)};
}

// The same for |a| >= |b| (or a == 0), three operations cheaper.
inline TwoFloat FastTwoSum(Float a, Float b) {
    const Float s = a + b;
    return {s, b - (s - a)};
}

// a split into two halves of at most 32 significant bits each, so that the product of
// two halves is exact in a 64-bit significand.
inline TwoFloat Split(Float a) {
    const Float c = a * 4294967297.0L;  // 2^32 + 1
    const Float hi = c - (c - a);
    return {hi, a - hi};
}

// a * b = p.hi + p.lo exactly (no fused multiply-add for this format).
inline TwoFloat TwoProduct(Float a, Float b) {
    const Float p = a * b;
    const TwoFloat x = Split(a), y = Split(b);
    return {p, ((x.hi * y.hi - p) + x.hi * y.lo + x.lo * y.hi) + x.lo * y.lo};
}

// ---- TwoFloat arithmetic (relative error about 2^-126) -----------------------------

inline TwoFloat operator+(TwoFloat x, TwoFloat y) {
    const TwoFloat s = TwoSum(x.hi, y.hi);
    return FastTwoSum(s.hi, s.lo + x.lo + y.lo);
}
inline TwoFloat operator-(TwoFloat x) { return {-x.hi, -x.lo}; }
inline TwoFloat operator-(TwoFloat x, TwoFloat y) { return x + -y; }
inline TwoFloat operator*(TwoFloat x, Float m) {
    const TwoFloat p = TwoProduct(x.hi, m);
    return FastTwoSum(p.hi, p.lo + x.lo * m);
}
inline TwoFloat operator*(TwoFloat x, TwoFloat y) {
    const TwoFloat p = TwoProduct(x.hi, y.hi);
    return FastTwoSum(p.hi, p.lo + (x.hi * y.lo + x.lo * y.hi));
}

// sqrt(y) for y > 0 in two Floats: the rounded root corrected by the exact residual y - s^2.
inline TwoFloat SquareRoot(const TwoFloat& y) {
    const Float s = std::sqrt(y.hi);
    const TwoFloat square = TwoProduct(s, s);
    return FastTwoSum(s, ((y.hi - square.hi) - square.lo + y.lo) / (2 * s));
}

// ---- Constants (tools/make_log_table.py) -----------------------------------

struct LogTableEntry {
    TwoFloat log;   // ln(j / 32)
    Float point;    // j / 32
    Float inverse;  // 32 / j, rounded
};

inline constexpr TwoFloat Ln2 = {0xB17217F7D2P-40L, -0xC21950D871319FF0P-106L};
inline constexpr TwoFloat LnSqrtTwoPi = {0xEB3F8E4325F5A535P-64L, -0xD686DFFD77CDBFB8P-129L};
inline constexpr TwoFloat Pi = {0xC90FDAA22168C235P-62L, -0xECE675D1FC8F8CBBP-128L};
inline constexpr LogTableEntry LogTable[] = {
    {{-0x934B1089A6DC93C2P-65L, 0x82913127EAAC7ABAP-131L}, 0xC000000000000000P-64L, 0xAAAAAAAAAAAAAAABP-63L},  // j = 24
    {{-0xFCC8E3659D9BCBEDP-66L, 0xD7CC833FAF3927C5P-132L}, 0xC800000000000000P-64L, 0xA3D70A3D70A3D70AP-63L},  // j = 25
    {{-0xD49F69E456CF1B79P-66L, -0xBEA77A5C80DCCDCFP-131L}, 0xD000000000000000P-64L, 0x9D89D89D89D89D8AP-63L},  // j = 26
    {{-0xADFA035AA1ED8FDCP-66L, -0xA4BB3F20818B6961P-133L}, 0xD800000000000000P-64L, 0x97B425ED097B425FP-63L},  // j = 27
    {{-0x88BC74113F23DEF2P-66L, 0xC74BE038D217E1C4P-131L}, 0xE000000000000000P-64L, 0x9249249249249249P-63L},  // j = 28
    {{-0xC99AF2EACA4C4571P-67L, 0xA85704CCB6BDDA33P-134L}, 0xE800000000000000P-64L, 0x8D3DCB08D3DCB08DP-63L},  // j = 29
    {{-0x842CC5ACF1D03445P-67L, -0xFF66FD40CDCB04BFP-134L}, 0xF000000000000000P-64L, 0x8888888888888889P-63L},  // j = 30
    {{-0x820AEC4F3A222381P-68L, 0x8C38A2B2777621F2P-133L}, 0xF800000000000000P-64L, 0x8421084210842108P-63L},  // j = 31
    {{0.0L, 0.0L}, 0x8000000000000000P-63L, 0x8000000000000000P-63L},  // j = 32
    {{0xFC14D873C1980268P-69L, -0xE07D87086EB028A9P-135L}, 0x8400000000000000P-63L, 0xF83E0F83E0F83E10P-64L},  // j = 33
    {{0xF85186008B15330CP-68L, -0xCDA3A4453343B396P-135L}, 0x8800000000000000P-63L, 0xF0F0F0F0F0F0F0F1P-64L},  // j = 34
    {{0xB78694572B5A5CDFP-67L, 0x93373DA336C819CAP-133L}, 0x8C00000000000000P-63L, 0xEA0EA0EA0EA0EA0FP-64L},  // j = 35
    {{0xF1383B7157972F4FP-67L, 0xA87FFE1FE9E155DCP-132L}, 0x9000000000000000P-63L, 0xE38E38E38E38E38EP-64L},  // j = 36
    {{0x94AA97C0FFA91A60P-66L, 0xBB8E203EDF4D10A0P-132L}, 0x9400000000000000P-63L, 0xDD67C8A60DD67C8AP-64L},  // j = 37
    {{0xAFF983853C9E9E44P-66L, -0xC1DF5F8DEDC45019P-131L}, 0x9800000000000000P-63L, 0xD79435E50D79435EP-64L},  // j = 38
    {{0xCA92D4E7A2B5A3B2P-66L, 0x983A9C5C4B3B1328P-134L}, 0x9C00000000000000P-63L, 0xD20D20D20D20D20DP-64L},  // j = 39
    {{0xE47FBE3CD4D10D61P-66L, 0xBB03DE5FF734495CP-132L}, 0xA000000000000000P-63L, 0xCCCCCCCCCCCCCCCDP-64L},  // j = 40
    {{0xFDC8C36AF1F1546BP-66L, -0xAB993C86B2D35F6EP-131L}, 0xA400000000000000P-63L, 0xC7CE0C7CE0C7CE0CP-64L},  // j = 41
    {{0x8B3AE55D5D30701DP-65L, -0xCE0AA3BE4747DC10P-132L}, 0xA800000000000000P-63L, 0xC30C30C30C30C30CP-64L},  // j = 42
    {{0x974715D708E984E1P-65L, 0xCC91A85081B3CDEEP-130L}, 0xAC00000000000000P-63L, 0xBE82FA0BE82FA0BFP-64L},  // j = 43
    {{0xA30C5E10E2F613E8P-65L, 0xB7B37B33C734415EP-130L}, 0xB000000000000000P-63L, 0xBA2E8BA2E8BA2E8CP-64L},  // j = 44
    {{0xAE8DEDFAC04E5284P-65L, 0xD8E0F71FF84567CEP-130L}, 0xB400000000000000P-63L, 0xB60B60B60B60B60BP-64L},  // j = 45
    {{0xB9CEBFB5DE8034E7P-65L, 0x9314FEB4FBDE5AAEP-132L}, 0xB800000000000000P-63L, 0xB21642C8590B2164P-64L},  // j = 46
    {{0xC4D19C360A12D5ADP-65L, 0xE310220782AD9FFEP-131L}, 0xBC00000000000000P-63L, 0xAE4C415C9882B931P-64L},  // j = 47
    {{0xCF991F65FCC25F96P-65L, -0x9728990BFADDE7E6P-130L}, 0xC000000000000000P-63L, 0xAAAAAAAAAAAAAAABP-64L},  // j = 48
};

// ---- Logarithm and exponential -----------------------------------------------------

// ln x for a finite x > 0, with an absolute error below 2^-80 (plus 2^-120 |ln x|).
// x = 2^k m with m in [0.75, 1.5), m = c (1 + r) with c = j / 32 the nearest table point
// (|r| <= 1/48), and ln(1 + r) = r - r^2 / 2 + r^3 P(r): the first two terms in TwoFloat,
// the rest, below 2^-17 of the total, in plain Float. k, j and m come straight from the
// bits of x, avoiding the slow conversions of this format to integers.
inline TwoFloat Log(Float x) {
    int bias = 0;
    if (x < 0x1p-16000L) {  // subnormal or close: scale into the normal range first
        x *= 0x1p+256L;
        bias = -256;
    }
    std::uint64_t significand;  // explicit leading bit: x = significand 2^(e - 63)
    std::uint16_t exponent;
    std::memcpy(&significand, &x, sizeof significand);
    std::memcpy(&exponent, reinterpret_cast<const char*>(&x) + 8, sizeof exponent);
    int k = int(exponent & 0x7fff) - 16383 + bias;
    int j;
    Float m;
    std::uint16_t mExponent;
    if (significand < 0xC000000000000000u) {  // m = significand / 2^63 in [1, 1.5)
        j = int(((significand >> 57) + 1) >> 1);  // round(32 m)
        mExponent = 16383;
    } else {  // m = significand / 2^64 in [0.75, 1)
        j = int(((significand >> 58) + 1) >> 1);
        mExponent = 16382;
        ++k;
    }
    std::memcpy(&m, &x, sizeof m);
    std::memcpy(reinterpret_cast<char*>(&m) + 8, &mExponent, sizeof mExponent);
    const LogTableEntry& entry = LogTable[j - 24];
    const Float c = entry.point;
    const Float d = m - c;  // exact
    // r = d / c as a TwoFloat: r rounded to 58 bits makes r c exact (c has 6 bits), and
    // then the residual d - r c too.
    const Float rough = d * entry.inverse;
    const Float scaled = rough * 65;  // 2^6 + 1
    const Float r = scaled - (scaled - rough);
    const Float rLow = (d - r * c) * entry.inverse;
    // (-1)^(n + 1) / n for n = 14 down to 3, as two interleaved Horner chains in r^2.
    static constexpr Float even[] = {-1.0L / 14, -1.0L / 12, -1.0L / 10, -1.0L / 8,
                                     -1.0L / 6,  -1.0L / 4};
    static constexpr Float odd[] = {1.0L / 13, 1.0L / 11, 1.0L / 9,
                                    1.0L / 7,  1.0L / 5,  1.0L / 3};
    const Float r2 = r * r;
    Float tailEven = even[0], tailOdd = odd[0];
    for (int n = 1; n < 6; ++n) {
        tailEven = tailEven * r2 + even[n];
        tailOdd = tailOdd * r2 + odd[n];
    }
    const Float tail = tailEven * r + tailOdd;
    const TwoFloat halves = Split(r);
    const Float squareLow = ((halves.hi * halves.hi - r2) + 2 * halves.hi * halves.lo) +
                            halves.lo * halves.lo;
    // ln(1 + r + rLow) = ln(1 + r) + rLow / (1 + r) to far below an ulp: rLow is under
    // 2^-57 of r. (Taking rLow (1 - r) instead would leave r^2 rLow, up to 2^-76.)
    const TwoFloat series = FastTwoSum(r, -r2 / 2) +
                            TwoFloat{rLow / (1 + r), r2 * r * tail - squareLow / 2};
    // k ln 2: the high part of ln 2 has 40 bits, so k times it is exact.
    return TwoFloat{Ln2.hi * k, Ln2.lo * k} + entry.log + series;
}

// ln of a TwoFloat x > 0: ln(hi) + lo / hi to first order (lo / hi is below 2^-63).
inline TwoFloat Log(TwoFloat x) { return Log(x.hi) + TwoFloat{x.lo / x.hi, 0}; }

// x / y, with a relative error about 2^-125.
inline TwoFloat operator/(TwoFloat x, TwoFloat y) {
    const Float q = x.hi / y.hi;
    const TwoFloat p = TwoProduct(q, y.hi);
    return FastTwoSum(q, (((x.hi - p.hi) - p.lo) + x.lo - q * y.lo) / y.hi);
}

// exp(hi + lo) = exp(hi) (1 + lo) for |lo| below 2^-60.
inline Float Exp(TwoFloat e) {
    const Float v = std::exp(e.hi);
    return std::isfinite(v) ? v + v * e.lo : v;
}

// ---- The gamma function in pieces --------------------------------------------------

// Below this argument the Stirling series is reached by recurrence.
inline constexpr Float StirlingThreshold = 15;

// The Stirling remainder mu(z) = ln Gamma(z) - ((z - 1/2) ln z - z + ln sqrt(2 pi)) for
// z >= 15, given r = 1 / z: ten terms of the asymptotic series (five from z = 60 on), the
// first omitted below 1e-22.
inline Float StirlingRemainder(Float r) {
    // B(2k) / (2k (2k - 1)), k = 1 .. 10.
    static constexpr Float c[] = {
        1.0L / 12,      -1.0L / 360,         1.0L / 1260,    -1.0L / 1680,
        1.0L / 1188,    -691.0L / 360360,    1.0L / 156,     -3617.0L / 122400,
        43867.0L / 244188, -174611.0L / 125400};
    const Float r2 = r * r;
    int k = r > 1.0L / 60 ? 9 : 4;
    Float sum = c[k];
    while (k > 0) sum = sum * r2 + c[--k];
    return sum * r;
}

// Gamma(x) = exp(logGamma) / product for x > 0 given as a TwoFloat: product is
// x (x + 1) ... (x + n - 1), which shifts the argument to z = x + n >= 15, and logGamma is
// the Stirling form of ln Gamma(z). Keeping the two apart lets a caller combine several
// gammas with one exponential and one division.
struct GammaParts {
    TwoFloat logGamma;
    TwoFloat product;
};

inline GammaParts SplitGamma(TwoFloat x) {
    TwoFloat product{1, 0};
    TwoFloat z = x;
    if (x.lo == 0 && x.hi < StirlingThreshold && 2 * x.hi == std::floor(2 * x.hi)) {
        // A multiple of 1/2, as the shapes of the F and t families: every factor and the
        // product (at most 1 3 5 ... 29 / 2^15, below 2^64) are exact in one Float.
        Float exact = 1, shifted = x.hi;
        for (; shifted < StirlingThreshold; shifted += 1) exact *= shifted;
        product = {exact, 0};
        z = {shifted, 0};
    }
    for (Float i = 1; z.hi < StirlingThreshold; i += 1) {
        product = product * z;
        const TwoFloat next = TwoSum(x.hi, i);
        z = FastTwoSum(next.hi, next.lo + x.lo);
    }
    // (z - 1/2) ln z - z + mu(z) + ln sqrt(2 pi); z.hi - 1/2 is exact from 15 on, and the
    // low part of z enters to first order through the derivative ln z - 1 / (2z).
    const TwoFloat lnZ = Log(z.hi);
    const Float inverse = 1 / z.hi;
    const Float slope = lnZ.hi - 0.5L * inverse;
    const TwoFloat logGamma = lnZ * (z.hi - 0.5L) + TwoFloat{-z.hi, 0} + LnSqrtTwoPi +
                              TwoFloat{StirlingRemainder(inverse) + z.lo * slope, 0};
    return {logGamma, product};
}

}  // namespace Kornummath::special
