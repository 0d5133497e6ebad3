// Elementary functions with the library's conventions, swaps and clearing.
#include <kornum/Kornummath.h>
#include <kornum/Kornumsystem.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace Kornummath;
using namespace Kornumglobals;

namespace {

TEST(XtoY, NegativeBaseWithIntegralExponentGivesTheSignedPower) {
    EXPECT_EQ(XtoY(-2, 3), -8);
    EXPECT_EQ(XtoY(-2, 2), 4);
    EXPECT_EQ(XtoY(-2, -3), -0.125L);
    EXPECT_TRUE(std::isnan(XtoY(-8, 1.0L / 3)));
    EXPECT_EQ(XtoY(0, 0), 1);
    EXPECT_EQ(XtoY(2, 0.5L), std::sqrt(2.0L));
    EXPECT_EQ(TwoToY(-3), 0.125L);
}

TEST(Logarithms, HaveTheirBasesAndArcCosIsInRadians) {
    EXPECT_EQ(KorLog10(1000), 3);
    EXPECT_EQ(KorLog2(0.125L), -3);
    EXPECT_EQ(KorArcCos(-1), KorPi);
    EXPECT_EQ(KorArcCos(1), 0);
    EXPECT_TRUE(std::isnan(KorArcCos(1.0L + 1e-18L)));
    // pi to 21 digits, from its published decimal expansion.
    EXPECT_NEAR(double(KorPi - 3.14159265358979323846L), 0, 1e-19);
}

TEST(SignXY, TakesTheMagnitudeOfXAndTheSignOfY) {
    EXPECT_EQ(SignXY(3, -1), -3);
    EXPECT_EQ(SignXY(-3, 2), 3);
    EXPECT_EQ(SignXY(-3, 0), 3);
    EXPECT_EQ(SignXY(-3, -0.0L), 3);
}

TEST(MinMax, OverloadsKeepTheirTypes) {
    EXPECT_EQ(MinXY(Integer(-5), Integer(3)), -5);
    EXPECT_EQ(MinXY(Int64(1) << 40, Int64(7)), 7);
    EXPECT_EQ(MaxXY(Int64(-1), Int64(1) << 40), Int64(1) << 40);
    EXPECT_EQ(MinXY(2.5L, -1.0L), -1.0L);
    EXPECT_EQ(MaxXY(2.5L, -1.0L), 2.5L);
    static_assert(std::is_same_v<decltype(MinXY(Integer(1), Integer(2))), Integer>);
}

TEST(Swap, ExchangesValuesOfEveryWidthAndPackedFloats) {
    Byte b1 = 1, b2 = 200;
    Kornumsystem::SwapXY(b1, b2);
    EXPECT_EQ(b1, 200);
    EXPECT_EQ(b2, 1);
    TKorFloatVector v{1.25L, -7.5L};
    Kornumsystem::SwapXY(v[0], v[1]);
    EXPECT_EQ(v[0], -7.5L);
    EXPECT_EQ(v[1], 1.25L);
}

TEST(KorClear, ZeroesExactlySizeBytes) {
    unsigned char bytes[8] = {1, 2, 3, 4, 5, 6, 7, 8};
    Kornumsystem::KorClear(bytes + 2, 4);
    const unsigned char expected[8] = {1, 2, 0, 0, 0, 0, 7, 8};
    EXPECT_EQ(std::memcmp(bytes, expected, 8), 0);
}

}  // namespace
