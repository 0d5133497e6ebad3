// The two-Float logarithm behind the distributions' tails: its absolute error bound over
// the whole range, relative accuracy next to 1 on both sides, and every step of its table.
#include "core/detail/ExtendedPrecision.hpp"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using Kornummath::Float;
using Kornummath::special::Log;
using Kornummath::special::TwoFloat;

// ln 3 and ln 10 to about 128 bits (mpmath), and ln 2 with a high part of 40 bits, so
// that k times it is exact.
constexpr TwoFloat Ln2 = {0xB17217F7D2P-40L, -0xC21950D871319FF0P-106L};
constexpr TwoFloat Ln3 = {0x8C9F53D5681854BBP-63L, 0xA4198D55053B7CB6P-128L};
constexpr TwoFloat Ln10 = {0x935D8DDDAAA8AC17P-62L, -0xAD494EA3E967AEB9P-129L};

// |(a.hi + a.lo) - (b.hi + b.lo)|, the difference formed without losing the low parts.
Float Distance(TwoFloat a, TwoFloat b) { return std::fabs((a.hi - b.hi) + (a.lo - b.lo)); }

TwoFloat Times(TwoFloat x, int k) { return {x.hi * k, x.lo * k}; }  // for Ln2: k hi is exact

TEST(TwoFloatLog, PowersOfTwoAndKnownConstantsWithinTwoToTheMinus80) {
    for (int k : {-16445, -16382, -1001, -1000, -999, -64, -1, 1, 2, 63, 999, 1000, 1001, 16383}) {
        const Float x = std::ldexp(Float(1), k);
        EXPECT_LE(Distance(Log(x), Times(Ln2, k)), 0x1p-80L + 0x1p-100L * std::fabs(k)) << "2^" << k;
    }
    EXPECT_EQ(Log(1).hi, 0);
    EXPECT_EQ(Log(1).lo, 0);
    EXPECT_LE(Distance(Log(3), Ln3), 0x1p-80L);
    EXPECT_LE(Distance(Log(10), Ln10), 0x1p-80L);
    EXPECT_LE(Distance(Log(std::ldexp(Float(3), -12000)), Ln3 - Times(Ln2, 12000)), 0x1p-79L);
    EXPECT_LE(Distance(Log(std::ldexp(Float(10), 9000)), Ln10 + Times(Ln2, 9000)), 0x1p-79L);
}

TEST(TwoFloatLog, RelativeAccuracyNextToOneOnBothSides) {
    // ln(1 + t) = (t - t^2/2) + (t^3/3 - t^4/4 + t^5/5) for t = +-2^-j, 20 <= j <= 62:
    // the first part is exact, the next term below 2^-100 of t.
    for (int j = 20; j <= 62; ++j)
        for (int sign : {1, -1}) {
            const Float t = sign * std::ldexp(Float(1), -j), t3 = t * t * t;
            const Float leading = t - t * t / 2, rest = t3 / 3 - t3 * t / 4 + t3 * t * t / 5;
            const TwoFloat got = Log(1 + t);
            EXPECT_LE(std::fabs((got.hi - leading) + got.lo - rest), 0x1p-70L * std::fabs(t)) << sign << " 2^-" << j;
        }
}

TEST(TwoFloatLog, EveryStepOfTheTableAgreesWithItsNeighbours) {
    // x at each end of step i, each against 3x (exact, as x has at most 61 bits), which
    // falls in another step: ln 3x - ln x - ln 3 exposes a wrong inverse or logarithm in
    // either step.
    for (int i = 0; i < 256; ++i)
        for (Float x : {1 + Float(i) / 256, 1 + Float(i + 1) / 256 - 0x1p-60L}) {
            const TwoFloat difference = Log(3 * x) - Log(x);
            EXPECT_LE(Distance(difference, Ln3), 0x1p-79L) << "step " << i << " x " << double(x);
        }
}

}  // namespace
