// Number to text and back, and currency amounts between their scales: ties to even,
// range ends.
#include "TestSupport.h"

#include <kornum/Kornumconvert.h>
#include <kornum/Kornumfinancials.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <tuple>

using namespace Kornumconvert;
using namespace Kornumfinancials;
using namespace KornumTest;

namespace {

TEST(NumberToText, FixedNotationWithTheGivenDecimals) {
    const Float infinity = std::numeric_limits<Float>::infinity();
    const std::tuple<Float, int, const char*> cases[] = {
        {2.5L, 3, "2.500"}, {-2.5L, 0, "-2"}, {3.5L, 0, "4"},  // ties to even
        {0.1L, 20, "0.10000000000000000000"},                  // correctly rounded
        {1.0L / 3, 4, "0.3333"}, {1e20L, 1, "100000000000000000000.0"},
        {infinity, 2, "INF"}, {-infinity, 2, "-INF"}, {std::nanl(""), 2, "NAN"},
    };
    for (const auto& [x, decimals, text] : cases) EXPECT_EQ(Float2EStr(x, decimals), text);
    EXPECT_EQ(Float2EStr(std::numeric_limits<Float>::max(), 0).size(), 4933u);
    EXPECT_EQ(Int2EStr(Int64(-9223372036854775807LL - 1)), "-9223372036854775808");
    EXPECT_EQ(Int2EStr(Integer(42)), "42");
    // Trailing zeros are stripped, and only those.
    for (auto [text, stripped] : {std::pair{"1.25000", "1.25"}, {"100.000", "100."}, {"000", ""}, {"a0b", "a0b"}})
        EXPECT_EQ(StripTChStr(text, '0'), stripped);
}

TEST(Str2Float, IsCorrectlyRoundedForEveryShapeOfDecimal) {
    // The standard library's correctly rounded conversion is the reference, over
    // decimals with 1 to 22 significant digits, leading and trailing zeros, exponents.
    std::mt19937_64 random(11);
    for (int i = 0; i < 200000; ++i) {
        std::string digits = std::to_string(random() % 10000000000000000000ULL);
        digits.resize(1 + random() % digits.size());
        if (random() % 4 == 0) digits += std::string(random() % 5, '0');
        const std::size_t point = random() % (digits.size() + 1);
        std::string text = "0";
        text.append(digits, 0, point).append(".").append(digits, point);
        if (random() % 3 == 0) text.append("e").append(std::to_string(int(random() % 80) - 40));
        Float expected = 0;
        std::from_chars(text.data(), text.data() + text.size(), expected);
        ASSERT_EQ(Str2Float(text), expected) << text;
        ASSERT_EQ(Str2Float(std::string("-").append(text)), -expected) << text;
    }
    for (Float x : {1.0L / 3, 123456.789L, -2.0L / 7, 1e-9L})  // the 20-decimal text reads back
        EXPECT_NEAR(double((Str2Float(Float2EStr(x, 20)) - x) / x), 0, 1e-18);
}

TEST(Str2Float, AcceptsWhatAPersonTypesAndRejectsGarbageNamingIt) {
    EXPECT_TRUE(AllMatch({{Str2Float("  42 "), 42}, {Str2Float("\t-1.5\n"), -1.5L}, {Str2Float("+.5"), 0.5L},
                          {Str2Float("1."), 1}, {Str2Float("2.5E-3"), 2.5e-3L}, {Str2Float("1e+4"), 1e4L},
                          {Str2Float("0.1"), 0.1L},  // correctly rounded to 64 bits
                          {Str2Float("-inf"), -std::numeric_limits<Float>::infinity()}}));
    EXPECT_TRUE(std::isnan(Str2Float("NaN")));
    for (const std::string bad : {"", "   ", "abc", "1,5", "1e", "1.2.3", "--1", "+-1", "- 1", "0x10",
                                  "12abc", "1 2", "e5", ".", "+"})
        EXPECT_TRUE(Raises<Platform::EConvertError>([&] { Str2Float(bad); }, "'" + bad + "' is not a valid number"));
    EXPECT_THROW(Str2Float("1e99999"), Platform::EConvertError);
    // Nothing past a view's end is read: here an allocation ends with it, so the
    // sanitizer build sees any read beyond (found by fuzzing).
    for (const std::string_view text : {"inf", "12345678901234567890123"}) {
        const auto exact = std::make_unique<char[]>(text.size());
        std::copy(text.begin(), text.end(), exact.get());
        EXPECT_EQ(Str2Float(std::string_view(exact.get(), text.size())), Str2Float(std::string(text))) << text;
    }
}

Currency Raw(Int64 raw) { return Currency::FromRaw(raw); }

TEST(Currency, ScalesRoundTiesToEvenScalingUpIsExactAndRangeEndsHold) {
    // 0.125 and 0.375 are exact binary values, so their hundredths are true ties.
    EXPECT_TRUE(AllMatch({
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
        // KorCurrency holds hundredths in 32 bits: 21474836.47 is the largest amount.
        {Float2KorCurrency(21474836.47L), INT32_MAX}, {Float2KorCurrency(-21474836.48L), INT32_MIN},
        {Currency2KorCurrency(Raw(INT64_C(214748364749))), INT32_MAX},
    }));
    // Values outside the target range raise the range error.
    EXPECT_THROW(Float2KorCurrency(21474836.48L), Platform::ERangeError);
    EXPECT_THROW(Float2KorCurrency(__builtin_nanl("")), Platform::ERangeError);
    EXPECT_THROW(Float2KorLongCurrency(1e13L), Platform::ERangeError);
    EXPECT_THROW(Currency2KorCurrency(Raw(INT64_C(214748364750))), Platform::ERangeError);
    EXPECT_THROW(Currency2KorLongCurrency(Raw(INT64_MAX / 50)), Platform::ERangeError);
    EXPECT_TRUE(Raises<Platform::ERangeError>([] { Float2KorCurrency(1e30L); },
                                              "The value 1e+30 is out of the range of KorCurrency"));
}

}  // namespace
