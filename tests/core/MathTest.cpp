// Elementary functions with the library's conventions, swaps, and the
// tolerant comparisons, which agree with each other and follow KorTolerance.
#include "TestSupport.h"

#include <kornum/Kornummath.h>
#include <kornum/Kornumsystem.h>

#include <cmath>
#include <limits>
#include <random>

using namespace Kornummath;
using namespace Kornumglobals;
using KornumTest::ToleranceScope;

namespace {

TEST(Elementary, PowersLogarithmsArcCosSignExtremesAndSwap) {
    TKorFloatVector v{1.25L, -7.5L};
    Kornumsystem::SwapXY(v[0], v[1]);  // packed elements are exchanged in place
    EXPECT_TRUE(KornumTest::AllMatch({
        {v[0], -7.5L}, {v[1], 1.25L},
        // A negative base with an integral exponent gives the signed power.
        {XtoY(-2, 3), -8}, {XtoY(-2, 2), 4}, {XtoY(-2, -3), -0.125L}, {XtoY(0, 0), 1},
        {XtoY(2, 0.5L), std::sqrt(2.0L)}, {TwoToY(-3), 0.125L},
        {KorLog10(1000), 3}, {KorLog2(0.125L), -3}, {KorArcCos(-1), KorPi}, {KorArcCos(1), 0},
        // The magnitude of X with the sign of Y; a zero Y of either sign counts as positive.
        {SignXY(3, -1), -3}, {SignXY(-3, 2), 3}, {SignXY(-3, 0), 3}, {SignXY(-3, -0.0L), 3},
        {MinXY(Integer(-5), Integer(3)), -5}, {MinXY(Int64(1) << 40, Int64(7)), 7},
        {MaxXY(Int64(-1), Int64(1) << 40), 1099511627776.0L}, {MinXY(2.5L, -1.0L), -1}, {MaxXY(2.5L, -1.0L), 2.5L},
    }));
    EXPECT_TRUE(std::isnan(XtoY(-8, 1.0L / 3)) && std::isnan(KorArcCos(1.0L + 1e-18L)));
    // pi to 21 digits, from its published decimal expansion.
    EXPECT_NEAR(double(KorPi - 3.14159265358979323846L), 0, 1e-19);
}

TEST(Tolerance, EveryValueIsExactlyOneOfZeroPositiveNegative) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> exponent(-40, 5);
    for (Float tolerance : {1e-15L, 1e-6L, 0.25L}) {
        ToleranceScope scope(tolerance);
        for (int i = 0; i < 20000; ++i) {
            const Float magnitude = std::pow(10.0L, Float(exponent(random)));
            const Float x = (i % 2 ? -magnitude : magnitude);
            const int kinds = FloatIsZero(x) + FloatIsPositive(x) + FloatIsNegative(x);
            ASSERT_EQ(kinds, 1) << double(x);
            ASSERT_EQ(FloatIsZero(x), std::fabs(x) <= tolerance);
            ASSERT_EQ(SameFloat(x, 0.0L), FloatIsZero(x)) << double(x);
            ASSERT_EQ(SameFloat(x, 0.0L), SameFloat(0.0L, x));
        }
    }
}

TEST(Tolerance, ByHandAtEachSetting) {
    // At the default tolerance neighbouring doubles and singles are the same (each width
    // has a floor at its own precision); Float neighbours farther apart are not.
    EXPECT_TRUE(SameFloat(0.1, std::nextafter(0.1, 1.0)));
    EXPECT_TRUE(SameFloat(0.1f, std::nextafter(0.1f, 1.0f)));
    EXPECT_FALSE(SameFloat(1.0, 1.0 + 2e-13));
    EXPECT_FALSE(SameFloat(1.0f, 1.0f + 4e-6f));
    EXPECT_FALSE(SameFloat(1.0L, 1.0L + 2e-15L));

    ToleranceScope zero(1e-10L);  // the zero test is absolute and inclusive
    EXPECT_TRUE(FloatIsZero(1e-10L) && FloatIsZero(-1e-10L));
    EXPECT_FALSE(FloatIsZero(std::nextafter(1e-10L, 1.0L)));
    EXPECT_FALSE(FloatIsPositive(5e-11L) || FloatIsNegative(-5e-11L));
    EXPECT_TRUE(FloatIsNegative(-2e-10L));

    ToleranceScope same(1e-12L);  // SameFloat is relative above one, absolute below
    EXPECT_TRUE(SameFloat(1e6L, 1e6L + 0.9e-6L));
    EXPECT_FALSE(SameFloat(1e6L, 1e6L + 1.1e-6L));
    EXPECT_TRUE(SameFloat(1e-3L, 1e-3L + 0.9e-12L));
    EXPECT_FALSE(SameFloat(1e-3L, 1e-3L + 1.1e-12L));
    const Float infinity = std::numeric_limits<Float>::infinity();
    EXPECT_TRUE(SameFloat(infinity, infinity));
    EXPECT_FALSE(SameFloat(infinity, -infinity));
    EXPECT_FALSE(SameFloat(std::nanl(""), std::nanl("")));

    ToleranceScope wide(1e-3L);  // a tolerance above the floor applies to every width
    EXPECT_TRUE(SameFloat(1.0, 1.0009));
    EXPECT_TRUE(SameFloat(1.0f, 1.0009f));
    EXPECT_FALSE(SameFloat(1.0, 1.0011));
}

}  // namespace
