// The tolerant comparisons agree with each other and follow KorTolerance.
#include "TestSupport.h"

#include <kornum/Kornummath.h>

#include <cmath>
#include <limits>
#include <random>

using namespace Kornummath;
using KornumTest::ToleranceScope;

namespace {

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

TEST(Tolerance, ZeroTestIsAbsoluteAndInclusive) {
    ToleranceScope scope(1e-10L);
    EXPECT_TRUE(FloatIsZero(1e-10L));
    EXPECT_TRUE(FloatIsZero(-1e-10L));
    EXPECT_FALSE(FloatIsZero(std::nextafter(1e-10L, 1.0L)));
    EXPECT_FALSE(FloatIsPositive(5e-11L));
    EXPECT_FALSE(FloatIsNegative(-5e-11L));
    EXPECT_TRUE(FloatIsNegative(-2e-10L));
}

TEST(Tolerance, SameFloatIsRelativeAboveOneAndAbsoluteBelow) {
    ToleranceScope scope(1e-12L);
    EXPECT_TRUE(SameFloat(1e6L, 1e6L + 0.9e-6L));    // 0.9e-12 relative
    EXPECT_FALSE(SameFloat(1e6L, 1e6L + 1.1e-6L));   // 1.1e-12 relative
    EXPECT_TRUE(SameFloat(1e-3L, 1e-3L + 0.9e-12L)); // absolute below 1
    EXPECT_FALSE(SameFloat(1e-3L, 1e-3L + 1.1e-12L));
    const Float infinity = std::numeric_limits<Float>::infinity();
    EXPECT_TRUE(SameFloat(infinity, infinity));
    EXPECT_FALSE(SameFloat(infinity, -infinity));
    EXPECT_FALSE(SameFloat(std::nanl(""), std::nanl("")));
}

TEST(Tolerance, NarrowWidthsHaveAFloorAtTheirOwnPrecision) {
    // Neighbouring doubles and singles are the same at the default tolerance; Float
    // neighbours farther apart than the tolerance are not.
    EXPECT_TRUE(SameFloat(0.1, std::nextafter(0.1, 1.0)));
    EXPECT_TRUE(SameFloat(0.1f, std::nextafter(0.1f, 1.0f)));
    EXPECT_FALSE(SameFloat(1.0, 1.0 + 2e-13));
    EXPECT_FALSE(SameFloat(1.0f, 1.0f + 4e-6f));
    EXPECT_FALSE(SameFloat(1.0L, 1.0L + 2e-15L));
    // A tolerance above the floor applies to every width.
    ToleranceScope scope(1e-3L);
    EXPECT_TRUE(SameFloat(1.0, 1.0009));
    EXPECT_TRUE(SameFloat(1.0f, 1.0009f));
    EXPECT_FALSE(SameFloat(1.0, 1.0011));
}

}  // namespace
