// Currency conversions: scales, ties to even, range ends.
#include <kornum/Kornumfinancials.h>
#include <kornum/PlatformExceptions.h>

#include <gtest/gtest.h>

#include <cstdint>

using namespace Kornumfinancials;

namespace {

TEST(Currency, ToFloatUsesEachTypesScale) {
    EXPECT_EQ(Currency2Float(Currency::FromRaw(12345)), 1.2345L);
    EXPECT_EQ(Currency2Float(KorLongCurrency(1000000)), 1.0L);
    EXPECT_EQ(Currency2Float(KorCurrency(-250)), -2.5L);
}

TEST(Currency, FromFloatRoundsTiesToEven) {
    // 0.125 and 0.375 are exact binary values, so their hundredths are true ties.
    EXPECT_EQ(Float2KorCurrency(0.125L), 12);
    EXPECT_EQ(Float2KorCurrency(0.375L), 38);
    EXPECT_EQ(Float2KorCurrency(-0.125L), -12);
    EXPECT_EQ(Float2KorCurrency(1.0L), 100);
    EXPECT_EQ(Float2KorLongCurrency(-1.25L), -1250000);
}

TEST(Currency, ScalingDownRoundsTiesToEven) {
    // Ten-thousandths to hundredths: 0.0050 -> 0.00, 0.0150 -> 0.02, 0.0151 -> 0.02.
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(50)), 0);
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(150)), 2);
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(149)), 1);
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(-150)), -2);
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(-250)), -2);
    // Millionths to ten-thousandths and to hundredths.
    EXPECT_EQ(KorLongCurrency2Currency(250).Raw, 2);
    EXPECT_EQ(KorLongCurrency2Currency(350).Raw, 4);
    EXPECT_EQ(KorLongCurrency2Currency(-351).Raw, -4);
    EXPECT_EQ(KorLongCurrency2KorCurrency(1005000), 100);
    EXPECT_EQ(KorLongCurrency2KorCurrency(1015000), 102);
}

TEST(Currency, ScalingUpIsExact) {
    EXPECT_EQ(KorCurrency2Currency(-123).Raw, -12300);
    EXPECT_EQ(KorCurrency2KorLongCurrency(INT32_MAX), INT64_C(21474836470000));
    EXPECT_EQ(Currency2KorLongCurrency(Currency::FromRaw(7)), 700);
}

TEST(Currency, ValuesOutsideTheTargetRangeRaiseRangeError) {
    // KorCurrency holds hundredths in 32 bits: 21474836.47 is the largest amount.
    EXPECT_EQ(Float2KorCurrency(21474836.47L), INT32_MAX);
    EXPECT_EQ(Float2KorCurrency(-21474836.48L), INT32_MIN);
    EXPECT_THROW(Float2KorCurrency(21474836.48L), Platform::ERangeError);
    EXPECT_THROW(Float2KorCurrency(__builtin_nanl("")), Platform::ERangeError);
    EXPECT_THROW(Float2KorLongCurrency(1e13L), Platform::ERangeError);
    EXPECT_THROW(Currency2KorCurrency(Currency::FromRaw(INT64_C(214748364750))),
                 Platform::ERangeError);
    EXPECT_EQ(Currency2KorCurrency(Currency::FromRaw(INT64_C(214748364749))), INT32_MAX);
    EXPECT_THROW(Currency2KorLongCurrency(Currency::FromRaw(INT64_MAX / 50)),
                 Platform::ERangeError);
    try {
        Float2KorCurrency(1e30L);
    } catch (const Platform::ERangeError& error) {
        EXPECT_EQ(error.Message(), "The value 1e+30 is out of the range of KorCurrency");
    }
}

TEST(Currency, SameCurrencyAndSwap) {
    EXPECT_TRUE(SameCurrency(Currency::FromRaw(5), Currency::FromRaw(5)));
    EXPECT_FALSE(SameCurrency(Currency::FromRaw(5), Currency::FromRaw(6)));
    Currency a = Currency::FromRaw(1), b = Currency::FromRaw(2);
    SwapXY(a, b);
    EXPECT_EQ(a.Raw, 2);
    KorCurrency c = 3, d = 4;
    SwapXY(c, d);
    EXPECT_EQ(c, 4);
}

}  // namespace
