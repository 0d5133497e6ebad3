// Elementary functions with the library's conventions, swaps and clearing.
#include "TestSupport.h"

#include <kornum/Kornummath.h>
#include <kornum/Kornumsystem.h>

#include <cmath>
#include <cstring>

using namespace Kornummath;
using namespace Kornumglobals;

namespace {

TEST(Elementary, PowersLogarithmsArcCosSignAndExtremes) {
    EXPECT_TRUE(KornumTest::AllMatch({
        // A negative base with an integral exponent gives the signed power.
        {XtoY(-2, 3), -8}, {XtoY(-2, 2), 4}, {XtoY(-2, -3), -0.125L}, {XtoY(0, 0), 1},
        {XtoY(2, 0.5L), std::sqrt(2.0L)}, {TwoToY(-3), 0.125L},
        {KorLog10(1000), 3}, {KorLog2(0.125L), -3}, {KorArcCos(-1), KorPi}, {KorArcCos(1), 0},
        // The magnitude of X with the sign of Y; a zero Y of either sign counts as positive.
        {SignXY(3, -1), -3}, {SignXY(-3, 2), 3}, {SignXY(-3, 0), 3}, {SignXY(-3, -0.0L), 3},
        {MinXY(Integer(-5), Integer(3)), -5}, {MinXY(Int64(1) << 40, Int64(7)), 7},
        {MaxXY(Int64(-1), Int64(1) << 40), 1099511627776.0L}, {MinXY(2.5L, -1.0L), -1}, {MaxXY(2.5L, -1.0L), 2.5L},
    }));
    EXPECT_TRUE(std::isnan(XtoY(-8, 1.0L / 3)));
    EXPECT_TRUE(std::isnan(KorArcCos(1.0L + 1e-18L)));
    // pi to 21 digits, from its published decimal expansion.
    EXPECT_NEAR(double(KorPi - 3.14159265358979323846L), 0, 1e-19);
}

TEST(Elementary, SwapAndClear) {
    Byte b1 = 1, b2 = 200;
    Kornumsystem::SwapXY(b1, b2);
    EXPECT_EQ(b1 * 1000 + b2, 200001);
    TKorFloatVector v{1.25L, -7.5L};
    Kornumsystem::SwapXY(v[0], v[1]);
    EXPECT_EQ(v[0], -7.5L);
    EXPECT_EQ(v[1], 1.25L);
    unsigned char bytes[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Kornumsystem::KorClear(bytes + 2, 4);  // exactly size bytes
    const unsigned char expected[8] = {1, 2, 0, 0, 0, 0, 7, 8};
    EXPECT_EQ(std::memcmp(bytes, expected, 8), 0);
}

}  // namespace
