// delta(k) = ln k! - ((k + 1/2) ln k - k + ln sqrt(2 pi)), the remainder of Stirling's
// formula for the factorial of a whole k >= 1, to an absolute error near 2^-67: from a
// table below 15 (tools/make_log_factorial_remainders.py), from the Stirling series
// above, where delta(k) = mu(k) of ln Gamma(k). Internal to the library (not installed).
#pragma once

#include "core/detail/ExtendedPrecision.hpp"

#include <kornum/Kornumglobals.h>

namespace KornumStatistics::detail {

inline Kornumglobals::Float LogFactorialRemainder(Kornumglobals::Float k) {
    using Kornumglobals::Float;
    static constexpr Float Small[] = {
        0xA6038DE6D052D65BP-67L, 0xA954DC91F532449CP-68L, 0xE2BCD1346C0599D3P-69L,
        0xAA513317EBC5476BP-69L, 0x885A7289FE5F65C0P-69L, 0xE358B3DF5EF9ADFCP-70L,
        0xC2EA6B097254329EP-70L, 0xAA9402F3D983B15DP-70L, 0x97A438D8955B204AP-70L,
        0x887CEA603A1D3A24P-70L, 0xF82C984400A7C1E3P-71L, 0xE380C399D54E2F85P-71L,
        0xD2028A38079B5F50P-71L, 0xC303B60016A53A37P-71L};  // k = 1 .. 14
    if (k < Kornummath::special::StirlingThreshold) return Small[int(k) - 1];
    return Kornummath::special::StirlingRemainder(1 / k);
}

}  // namespace KornumStatistics::detail
