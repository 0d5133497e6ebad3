// e^-y and 1 - e^-y for y >= 0, table-driven, for the exponential distribution, and e^y
// for any y through the same reduction.
// Internal to the library (not installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

#include <kornum/Kornumglobals.h>

#include <cstdint>
#include <cstring>
#include <limits>

namespace KornumStatistics::detail {

using Kornumglobals::Float;
using Kornummath::special::TwoFloat;

// e^-y for |y| <= 11400 as 2^(-k/64) e^-r, k the nearest multiple of 64 y / ln 2 and
// |r| <= ln 2 / 128: the power from a table of 2^(-j/64) in two Floats, e^-r from its
// Taylor series to r^8 (the next term is below 2^-85), the reduction by ln 2 / 64 in two
// pieces whose first times k is exact. Within about an ulp, and without the library call
// that would be most of an exponential distribution's cost. Returns e^-y as a pair
// (scale 2^-m, value near one) so that 1 - e^-y can be formed without cancellation.
struct NegativeExponential {
    Float power;  // 2^(-j/64) e^-r - 1, below 1 in magnitude
    Float table;  // 2^(-j/64)
    int m;        // e^-y = 2^-m (table + power)
};

inline constexpr TwoFloat PowersOfTwo[64] = {
    {0x8000000000000000P-63L, 0.0L},
    {0xFD3E0C0CF486C175P-64L, -0xF5818B4D9C3E23FAP-129L},
    {0xFA83B2DB722A033AP-64L, 0xF84B762862BAFF99P-129L},
    {0xF7D0DF730AD13BB9P-64L, -0xB795B494F8248A8BP-135L},
    {0xF5257D152486CC2CP-64L, 0xF73A18F5DB301F87P-129L},
    {0xF281773C59FFB13AP-64L, -0xBB3FAB19B85C2DA7P-131L},
    {0xEFE4B99BDCDAF5CBP-64L, 0x8CAC39ED291B7226P-129L},
    {0xED4F301ED9942B84P-64L, 0xC01A5B6D4C97F624P-129L},
    {0xEAC0C6E7DD24392FP-64L, -0xBF4A29323E46AC15P-130L},
    {0xE8396A503C4BDC68P-64L, 0xF22F21A158E18FBCP-129L},
    {0xE5B906E77C8348A8P-64L, 0xF2F47A5276DD8765P-131L},
    {0xE33F8972BE8A5A51P-64L, 0x9BFE90795980EECFP-132L},
    {0xE0CCDEEC2A94E111P-64L, 0xCB12A091BA667944P-133L},
    {0xDE60F4825E0E9124P-64L, -0x8BE174985EE65E9CP-130L},
    {0xDBFBB797DAF23755P-64L, 0xF610356A78A6A991P-130L},
    {0xD99D15C278AFD7B6P-64L, -0xBC6109AE0F6A2A20P-135L},
    {0xD744FCCAD69D6AF4P-64L, 0xE69A2EE640B4FF78P-130L},
    {0xD4F35AABCFEDFA1FP-64L, 0xB243BDFF4C4C58B5P-129L},
    {0xD2A81D91F12AE45AP-64L, 0x912472BE1EF20143P-131L},
    {0xD06333DAEF2B2595P-64L, -0xA4AE8E6A996CABF8P-130L},
    {0xCE248C151F8480E4P-64L, -0xEE53E3835069C895P-131L},
    {0xCBEC14FEF2727C5DP-64L, -0xB6F8370BA1409231P-132L},
    {0xC9B9BD866E2F27A3P-64L, -0xFE3C0DABF5DD2D04P-129L},
    {0xC78D74C8ABB9B15DP-64L, -0xFB17471A24FF6207P-130L},
    {0xC5672A115506DADDP-64L, 0xF8AB432593767CDEP-130L},
    {0xC346CCDA24976407P-64L, 0x83B21584A2E0E90AP-130L},
    {0xC12C4CCA66709456P-64L, 0xF88AFAB34A010F6BP-129L},
    {0xBF1799B67A731083P-64L, -0xBF517AA1A07A3D7BP-131L},
    {0xBD08A39F580C36BFP-64L, -0xAEFDC09325E0A10CP-129L},
    {0xBAFF5AB2133E45FBP-64L, 0xE9AA33A48B270718P-129L},
    {0xB8FBAF4762FB9EE9P-64L, 0xDC3CBBC2B35B2D0DP-131L},
    {0xB6FD91E328D17791P-64L, 0xE2CBE1BBAA834B3FP-133L},
    {0xB504F333F9DE6484P-64L, 0xB2FB1366EA957D3EP-129L},
    {0xB311C412A9112489P-64L, 0xFB3C5371E6294670P-130L},
    {0xB123F581D2AC2590P-64L, -0xF05F902D25BD44E3P-129L},
    {0xAF3B78AD690A4375P-64L, -0x8367BF8CD132BF35P-130L},
    {0xAD583EEA42A14AC6P-64L, 0x93015191EB345D89P-129L},
    {0xAB7A39B5A93ED337P-64L, 0xCB004764EB3C00F3P-129L},
    {0xA9A15AB4EA7C0EF8P-64L, 0xA83C49D86A63F4E6P-129L},
    {0xA7CD93B4E965356AP-64L, -0xC2749655F8C11AA2P-129L},
    {0xA5FED6A9B15138EAP-64L, 0xE5EBFB10B88380D9P-131L},
    {0xA43515AE09E6809EP-64L, 0xD1DB4831781E1EECP-132L},
    {0xA27043030C496819P-64L, -0xC90BF620FE6042B1P-129L},
    {0xA0B0510FB9714FC2P-64L, 0xC96E3CF6D87ECD4CP-131L},
    {0x9EF5326091A111AEP-64L, -0xBEDDC1EC288C045DP-129L},
    {0x9D3ED9A72CFFB751P-64L, -0x86DACC3EBC5993D4P-130L},
    {0x9B8D39B9D54E5539P-64L, -0xBAAFD0BAB86781C2P-129L},
    {0x99E0459320B7FA65P-64L, -0xDE7BC9A65A501A8CP-131L},
    {0x9837F0518DB8A96FP-64L, 0x8D5A46305C85EDEDP-129L},
    {0x96942D3720185A00P-64L, 0x91D536D07538458AP-129L},
    {0x94F4EFA8FEF70961P-64L, 0xBA2BEB4495477951P-130L},
    {0x935A2B2F13E6E92CP-64L, -0xB319AFC589B6C463P-130L},
    {0x91C3D373AB11C336P-64L, 0xFD6D8E0AE5AC9D82P-132L},
    {0x9031DC431466B1DCP-64L, 0xEEB02950929D0FC5P-129L},
    {0x8EA4398B45CD53C0P-64L, 0xB70051321E0F5317P-130L},
    {0x8D1ADF5B7E5BA9E6P-64L, -0x967096D2E37CA594P-129L},
    {0x8B95C1E3EA8BD6E7P-64L, -0x8373AF14EB586DFDP-133L},
    {0x8A14D575496EFD9AP-64L, 0x80CA1D92C3680C22P-132L},
    {0x88980E8092DA8527P-64L, 0xBBF1AED9318CEAC6P-129L},
    {0x871F61969E8D1010P-64L, 0xE85C9F15ED4AA559P-130L},
    {0x85AAC367CC487B15P-64L, -0xE8DA91CF7AACF938P-130L},
    {0x843A28C3ACDE4046P-64L, 0xD7C976509FE8AC10P-131L},
    {0x82CD8698AC2BA1D7P-64L, 0xF8A91D6D19482FFDP-130L},
    {0x8164D1F3BC030773P-64L, 0xF7CACA4F7A29BDE9P-129L}};

// 2^-m for -16383 <= m < 16382, built from its exponent bits (no library call).
inline Float PowerOfTwoNegative(int m) {
    const std::uint64_t significand = 0x8000000000000000ull;
    const std::uint16_t exponent = std::uint16_t(16383 - m);
    unsigned char bytes[16] = {};
    std::memcpy(bytes, &significand, 8);
    std::memcpy(bytes + 8, &exponent, 2);
    Float x;
    std::memcpy(&x, bytes, sizeof x < 16 ? sizeof x : 16);
    return x;
}

inline NegativeExponential ReduceNegativeExponential(Float y) {
    constexpr Float InverseStep = 0xB8AA3B295C17F0BCP-57L;  // 64 / ln 2
    constexpr Float StepHigh = 0xB17217F7C0000000P-70L, StepLow = 0x8E7BCD5E4F1D9CC0P-105L;
    // Adding 1.5 * 2^63 rounds y / step to an integer k and leaves k in the low bits of
    // the significand: no slow conversion of this format to an integer.
    constexpr Float Shifter = 0x1.8p63L;
    const Float shifted = y * InverseStep + Shifter;
    const Float k = shifted - Shifter;
    std::uint64_t bits;
    std::memcpy(&bits, &shifted, 8);
    const std::uint64_t kk = bits - 0xC000000000000000ull;
    const Float r = (y - k * StepHigh) - k * StepLow;
    // e^-r - 1 = -r + r^2/2 - ... - r^7/7! + r^8/8!, as s P(s) with s = -r and P in
    // Estrin's form: three short chains side by side rather than one of seven steps.
    const Float s = -r;
    const Float s2 = s * s;
    const Float q = s * ((1 + s * (1.0L / 2)) + (1.0L / 6 + s * (1.0L / 24)) * s2 +
                         ((1.0L / 120 + s * (1.0L / 720)) + (1.0L / 5040 + s * (1.0L / 40320)) * s2) * (s2 * s2));
    const TwoFloat& t = PowersOfTwo[kk & 63];
    // 2^(-j/64) (1 + q) = t.hi + (t.hi q + t.lo (1 + q))
    // k and m are negative for a negative y: the shift keeps the sign.
    return {t.hi * q + t.lo * (1 + q), t.hi, int(std::int64_t(kk) >> 6)};
}

// 2^-m x for |m| up to 16,500, in two steps where one power would not be normal.
inline Float ScaledDown(Float x, int m) {
    if (m >= 16000) return x * PowerOfTwoNegative(8000) * PowerOfTwoNegative(m - 8000);
    if (m <= -16000) return x * PowerOfTwoNegative(-8000) * PowerOfTwoNegative(m + 8000);
    return x * PowerOfTwoNegative(m);
}

// e^-y for y >= 0 (0 beyond the smallest subnormal).
inline Float ExpOfNegative(Float y) {
    if (y > 11400) return 0;
    const NegativeExponential e = ReduceNegativeExponential(y);
    return ScaledDown(e.table + e.power, e.m);
}

// 1 - e^-y for y >= 0, without cancellation near 0.
inline Float OneMinusExpOfNegative(Float y) {
    if (y > 11400) return 1;
    const NegativeExponential e = ReduceNegativeExponential(y);
    if (e.m == 0) return (1 - e.table) - e.power;  // 1 - table is exact: table is in [1/2, 1]
    return 1 - ScaledDown(e.table + e.power, e.m);
}

// e^y for any y, within about an ulp: e^-(-y), whose scale is then a power of two of
// either sign. Infinity beyond the largest Float, 0 below the smallest.
inline Float ExpOf(Float y) {
    if (!(y <= 11357)) return y > 0 ? std::numeric_limits<Float>::infinity() : y;  // y NaN
    if (y < -11400) return 0;
    const NegativeExponential e = ReduceNegativeExponential(-y);
    return ScaledDown(e.table + e.power, e.m);
}

}  // namespace KornumStatistics::detail
