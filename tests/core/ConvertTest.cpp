// Number to text and back.
#include "TestSupport.h"

#include <kornum/Kornumconvert.h>

#include <charconv>
#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <tuple>

using namespace Kornumconvert;
using KornumTest::Raises;

namespace {

TEST(Float2EStr, FixedNotationWithTheGivenDecimals) {
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
}

TEST(Str2Float, AcceptsWhatAPersonTypes) {
    EXPECT_TRUE(KornumTest::AllMatch({{Str2Float("  42 "), 42}, {Str2Float("\t-1.5\n"), -1.5L},
                                      {Str2Float("+.5"), 0.5L}, {Str2Float("1."), 1},
                                      {Str2Float("2.5E-3"), 2.5e-3L}, {Str2Float("1e+4"), 1e4L},
                                      {Str2Float("0.1"), 0.1L},  // correctly rounded to 64 bits
                                      {Str2Float("-inf"), -std::numeric_limits<Float>::infinity()}}));
    EXPECT_TRUE(std::isnan(Str2Float("NaN")));
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
    for (Float x : {1.0L / 3, 123456.789L, -2.0L / 7, 1e-9L}) {  // the 20-decimal text reads back
        EXPECT_NEAR(double((Str2Float(Float2EStr(x, 20)) - x) / x), 0, 1e-18);
    }
}

TEST(Str2Float, RejectsGarbageNamingTheText) {
    for (const std::string bad : {"", "   ", "abc", "1,5", "1e", "1.2.3", "--1", "+-1", "- 1", "0x10",
                                  "12abc", "1 2", "e5", ".", "+"}) {
        EXPECT_TRUE(Raises<Platform::EConvertError>([&] { Str2Float(bad); }, "'" + bad + "' is not a valid number"));
    }
    EXPECT_THROW(Str2Float("1e99999"), Platform::EConvertError);
}

TEST(StripTChStr, RemovesOnlyTrailingOccurrences) {
    EXPECT_EQ(StripTChStr("1.25000", '0'), "1.25");
    EXPECT_EQ(StripTChStr("100.000", '0'), "100.");
    EXPECT_EQ(StripTChStr("000", '0'), "");
    EXPECT_EQ(StripTChStr("a0b", '0'), "a0b");
}

}  // namespace
