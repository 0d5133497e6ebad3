// Currency conversions: scales, ties to even, range ends.
#include "TestSupport.h"

#include <kornum/Kornumfinancials.h>

#include <cstdint>

using namespace Kornumfinancials;

namespace {

Currency Raw(Int64 raw) { return Currency::FromRaw(raw); }

TEST(Currency, ScalesRoundTiesToEvenAndScalingUpIsExact) {
    // 0.125 and 0.375 are exact binary values, so their hundredths are true ties.
    EXPECT_TRUE(KornumTest::AllMatch({
        {Currency2Float(Raw(12345)), 1.2345L}, {Currency2Float(KorLongCurrency(1000000)), 1},
        {Currency2Float(KorCurrency(-250)), -2.5L},
        {Float2KorCurrency(0.125L), 12}, {Float2KorCurrency(0.375L), 38}, {Float2KorCurrency(-0.125L), -12},
        {Float2KorCurrency(1.0L), 100}, {Float2KorLongCurrency(-1.25L), -1250000},
        // Ten-thousandths to hundredths: 0.0050 -> 0.00, 0.0150 -> 0.02, 0.0149 -> 0.01.
        {Currency2KorCurrency(Raw(50)), 0}, {Currency2KorCurrency(Raw(150)), 2},
        {Currency2KorCurrency(Raw(149)), 1}, {Currency2KorCurrency(Raw(-150)), -2},
        {Currency2KorCurrency(Raw(-250)), -2},
        // Millionths to ten-thousandths and to hundredths.
        {KorLongCurrency2Currency(250).Raw, 2}, {KorLongCurrency2Currency(350).Raw, 4},
        {KorLongCurrency2Currency(-351).Raw, -4}, {KorLongCurrency2KorCurrency(1005000), 100},
        {KorLongCurrency2KorCurrency(1015000), 102},
        // Scaling up.
        {KorCurrency2Currency(-123).Raw, -12300}, {KorCurrency2KorLongCurrency(INT32_MAX), 21474836470000.0L},
        {Currency2KorLongCurrency(Raw(7)), 700},
    }));
}

TEST(Currency, ValuesOutsideTheTargetRangeRaiseRangeError) {
    // KorCurrency holds hundredths in 32 bits: 21474836.47 is the largest amount.
    EXPECT_EQ(Float2KorCurrency(21474836.47L), INT32_MAX);
    EXPECT_EQ(Float2KorCurrency(-21474836.48L), INT32_MIN);
    EXPECT_EQ(Currency2KorCurrency(Raw(INT64_C(214748364749))), INT32_MAX);
    EXPECT_THROW(Float2KorCurrency(21474836.48L), Platform::ERangeError);
    EXPECT_THROW(Float2KorCurrency(__builtin_nanl("")), Platform::ERangeError);
    EXPECT_THROW(Float2KorLongCurrency(1e13L), Platform::ERangeError);
    EXPECT_THROW(Currency2KorCurrency(Raw(INT64_C(214748364750))), Platform::ERangeError);
    EXPECT_THROW(Currency2KorLongCurrency(Raw(INT64_MAX / 50)), Platform::ERangeError);
    EXPECT_TRUE(KornumTest::Raises<Platform::ERangeError>([] { Float2KorCurrency(1e30L); },
                                                          "The value 1e+30 is out of the range of KorCurrency"));
}

TEST(Currency, SameCurrencyAndSwap) {
    EXPECT_TRUE(SameCurrency(Raw(5), Raw(5)));
    EXPECT_FALSE(SameCurrency(Raw(5), Raw(6)));
    Currency a = Raw(1), b = Raw(2);
    KorCurrency c = 3, d = 4;
    SwapXY(a, b);
    SwapXY(c, d);
    EXPECT_EQ(a.Raw, 2);
    EXPECT_EQ(c, 4);
}

}  // namespace
