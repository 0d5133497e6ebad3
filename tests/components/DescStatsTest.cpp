// The descriptive-statistics component as a user relies on it. Expected values are
// worked out by hand for the sample 2, 4, 4, 4, 5, 5, 7, 9 (sum 40, mean 5, squared
// deviations 32, cubed 42, fourth powers 356); the sample skew 8 / (32/7)^1.5 and the
// sample excess kurtosis 72 * 356 / ((32/7)^2 * 210) - 4.9 were evaluated with mpmath.
#include "TestSupport.h"

#include <kornum/KornumDescStats.h>
#include <kornum/Kornum_RS_DescStats.h>
#include <kornum/PlatformStreaming.h>

using namespace KornumDescStats;
using namespace Kornumglobals;

namespace {

std::vector<std::string> Lines(const Platform::TStrings& list) {
    std::vector<std::string> lines;
    for (int i = 0; i < list.Count(); ++i) lines.push_back(list[i]);
    return lines;
}

TEST(DescStats, StartsEmptyThenComputesAndReportsTheStatistics) {
    TKorDescStats stats(nullptr);
    EXPECT_TRUE(KornumTest::AllMatch({{stats.NoOfValues(), 0}, {stats.DecimalPlaces(), 4}, {stats.Mean(), 0}}));
    EXPECT_FALSE(stats.Population() || stats.ModeExists());
    EXPECT_EQ(Lines(*stats.DescStats()), std::vector<std::string>{"The vector is empty"});

    stats.SetValues(TKorFloatVector{9, 4, 2, 5, 4, 7, 4, 5});
    EXPECT_TRUE(stats.ModeExists());
    EXPECT_TRUE(KornumTest::AllMatch({{stats.NoOfValues(), 8}, {stats.Sum(), 40}, {stats.SumSq(), 232}, {stats.Mean(), 5},
                                      {stats.Median(), 4.5L}, {stats.Mode(), 4}, {stats.Minimum(), 2}, {stats.Maximum(), 9},
                                      {stats.Quartile1st(), 4}, {stats.Quartile3rd(), 6}, {stats.IQR(), 2}}));
    EXPECT_TRUE(KornumTest::AllMatch({{stats.Variance(), 32.0L / 7}, {stats.StdDev(), 2.138089935299395077L},
                                      {stats.Skew(), 0.8184875533567996781L}, {stats.Kurtosis(), 0.940625L}},
                                     1e-15L));

    stats.SetPopulation(true);  // the report, line by line
    EXPECT_EQ(Lines(*stats.DescStats()),
              (std::vector<std::string>{
                  "Number of Values:\t8", "Maximum:\t9.0000", "Minimum:\t2.0000", "Range:\t7.0000",
                  "Sum:\t40.0000", "Sum of Squares:\t232.0000", "Mean:\t5.0000", "Mode:\t4.0000",
                  "Median:\t4.5000", "Variance:\t4.0000", "Standard Deviation:\t2.0000",
                  "Kurtosis:\t-0.2188", "Skew:\t0.6562", "First Quartile:\t4.0000",
                  "Third Quartile:\t6.0000", "Inter-Quartile Range:\t2.0000"}));
    stats.SetDecimalPlaces(1);
    EXPECT_EQ(stats.DescStats()->operator[](1), "Maximum:\t9.0");
}

TEST(DescStats, ReportsTooFewValuesAndZeroSpreadByMessageLines) {
    TKorDescStats stats(nullptr);
    stats.AddValue(3);
    auto report = Lines(*stats.DescStats());
    EXPECT_EQ(report[7], "Mode:\t3.0000");  // a single value is its own mode
    EXPECT_EQ(std::vector(report.begin() + 9, report.begin() + 13),
              (std::vector<std::string>{"Not enough Values for Variance", "Not enough Values for Standard Deviation",
                                        "Not enough Values for Kurtosis", "Not enough Values for Skew"}));
    stats.SetPopulation(true);
    EXPECT_EQ(stats.DescStats()->operator[](9), "Variance:\t0.0000");

    stats.Clear();
    for (int i = 0; i < 4; ++i) stats.AddValue(2);
    EXPECT_TRUE(KornumTest::AllMatch({{stats.Kurtosis(), 0}, {stats.Skew(), 0}}));
    report = Lines(*stats.DescStats());
    EXPECT_EQ(report[11], "Standard Deviation needs to be > 0 for Kurtosis");
    EXPECT_EQ(report[12], "Standard Deviation needs to be > 0 for Skew");

    stats.DeleteLast();  // three values: skew is computed, kurtosis is not
    stats.AddValue(5);
    stats.DeleteValue(0);
    report = Lines(*stats.DescStats());
    EXPECT_EQ(report[0], "Number of Values:\t3");
    EXPECT_EQ(report[11], "Not enough Values for Kurtosis");
    EXPECT_EQ(report[12].rfind("Skew:\t", 0), 0u);
}

TEST(DescStats, RecomputesAfterEveryChangeButNotInsideAnUpdateBracket) {
    TKorDescStats stats(nullptr);
    stats.AddValue(1);
    stats.BeginUpdate();
    stats.BeginUpdate();  // a flag, not a count
    stats.AddValue(2);
    stats.AddValue(6);
    EXPECT_EQ(stats.Mean(), 1);
    stats.EndUpdate();
    EXPECT_EQ(stats.Mean(), 3);

    stats.BeginUpdate();
    stats.AddValue(7);
    EXPECT_EQ(stats.Mean(), 3);
    stats.DescStats();  // a report closes the bracket
    EXPECT_EQ(stats.Mean(), 4);

    stats.DeleteValue(10);  // out of range: ignored
    stats.DeleteValue(-1);
    EXPECT_EQ(stats.NoOfValues(), 4u);
    stats.SetMean(99);  // read-only
    EXPECT_EQ(stats.Mean(), 4);
}

TEST(DescStats, KeepsItemsInStepAndConvertsTypedViews) {
    TKorDescStats stats(nullptr);
    for (Float x : {0.5L, -2.0L, 1.25L}) stats.AddValue(x);
    EXPECT_EQ(Lines(stats.Items()), (std::vector<std::string>{"0.5", "-2.", "1.25"}));
    stats.DeleteValue(1);
    EXPECT_EQ(Lines(stats.Items()), (std::vector<std::string>{"0.5", "1.25"}));

    stats.SetItems(Platform::TStringList{" 10", "20 ", "3e1"});
    EXPECT_EQ(stats.Mean(), 20);
    EXPECT_THROW(stats.SetItems(Platform::TStringList{"1", "two"}), Platform::EConvertError);

    // The typed views convert, and fill the caller's vector.
    stats.SetLIntValues(TKorLIntVector{-3, 4});
    EXPECT_EQ(stats.Mean(), 0.5L);
    stats.SetLWordValues(TKorLWordVector{4000000000u});
    EXPECT_EQ(stats.Sum(), 4000000000.0L);
    stats.SetInt64Values(TKorInt64Vector{1, 2, 3});
    EXPECT_EQ(stats.Sum(), 6);

    // A vector handed over alone is taken without a copy; one still shared is copied,
    // so a later change through the other handle does not reach the component.
    TKorFloatVector sole{1, 2}, shared{5, 7};
    const TKorFloatVector other = shared;
    stats.SetValues(std::move(sole));
    EXPECT_TRUE(sole.IsEmpty());
    EXPECT_EQ(stats.Mean(), 1.5L);
    stats.SetValues(std::move(shared));
    other[0] = 100;
    EXPECT_FALSE(stats.Values().SharesWith(other));
    EXPECT_EQ(stats.Mean(), 6);

    stats.SetValues(TKorFloatVector{2.5L, 3.5L, -1.5L});
    TKorLIntVector ints{0, 0, 0, 77};
    stats.GetLIntValues(ints);  // rounds ties to even, leaves the rest and the length
    EXPECT_EQ(std::vector<Integer>(ints.begin(), ints.end()), (std::vector<Integer>{2, 4, -2, 77}));
    TKorInt64Vector tooShort{9, 9};
    EXPECT_THROW(stats.GetInt64Values(tooShort), Platform::ERangeError);
    EXPECT_EQ(tooShort[0], 9);
}

TEST(DescStats, StreamsItsStoredPropertiesAndRecomputesWhenLoaded) {
    TKorDescStats original(nullptr), copy(nullptr);
    original.SetName("Stats");
    EXPECT_EQ(Platform::WriteComponentText(original), "TKorDescStats Stats\nend\n");
    original.AddValue(1.5L);
    original.AddValue(2.5L);
    original.SetDecimalPlaces(6);
    original.SetPopulation(true);
    const std::string text = Platform::WriteComponentText(original);
    EXPECT_EQ(text, "TKorDescStats Stats\n  DecimalPlaces = 6\n  Items = [\"1.5\", \"2.5\"]\n  Population = true\nend\n");
    Platform::ReadComponentText(copy, text);
    EXPECT_TRUE(KornumTest::AllMatch(
        {{copy.NoOfValues(), 2}, {copy.DecimalPlaces(), 6}, {copy.Mean(), 2}, {copy.Variance(), 0.25L}}));  // population
}

TEST(DescStats, IsFreedByItsOwnerAndReportsWithTheCaptionsInForce) {
    using namespace Kornum_RS_DescStats;
    Platform::TComponent owner(nullptr);
    auto* stats = new TKorDescStats(&owner);  // freed with the owner; the leak check sees it
    EXPECT_EQ(owner.ComponentCount(), 1);
    EXPECT_EQ(rsTestStatistic.Text(), "Test Statistics: ");  // trailing blank kept
    Platform::SetResourceText(rsDSMean, "Mittelwert:");
    stats->AddValue(1);
    EXPECT_EQ(stats->DescStats()->operator[](6), "Mittelwert:\t1.0000");
    Platform::RestoreDefaultResources();
}

}  // namespace
