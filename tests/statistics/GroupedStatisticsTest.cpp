// Statistics of frequency tables, with expected values worked by hand.
#include "StatisticsTestSupport.h"


#include <cstring>
#include <functional>

using namespace StatisticsTest;

namespace {
const TKorLWordVector Table{1, 2, 1};  // with L = 0, W = 10: mid-points 5, 15, 25
}

TEST(GroupedStatistics, LocationAndSpread) {
    Float Q1 = 0, Q3 = 0, D[9], sumFM = 0, sumFM2 = 0;
    GroupedQuartiles(TKorLWordVector{3, 2}, 0, 1, Q1, Q3);  // N = 5: targets 1.25, 3.75
    GetGroupedDeciles(Table, 0, 10, D);
    GroupedSums(Table, 0, 10, sumFM, sumFM2);
    EXPECT_TRUE(AllMatch({
        {GroupedMean(Table, 0, 10), 15}, {GroupedMedian(Table, 100, 10), 115}, {Q3, 1.375L}, {D[4], 15},
        {GroupedPopulationStdDev(Table, 0, 10), std::sqrt(50.0L)}, {sumFM, 60}, {sumFM2, 1100},
        {GetGroupedMeanDev(Table, 0, 10, 15), 5}, {GroupedSampleVariance(TKorLWordVector{0, 1}, 0, 1), 0},  // N < 2
        {GroupedMean(TKorLWordVector{0, 0}, 0, 1), 0},
    }));
    EXPECT_TRUE(AllMatch({{Q1, 1.25L / 3}, {D[0], 4}, {D[8], 26}, {GroupedSampleVariance(Table, 0, 10), 200.0L / 3},
                          // Cumulative counts beyond 32 bits must not wrap.
                          {GroupedMedian(TKorLWordVector{4000000000u, 4000000000u, 1}, 0, 1), 1 + 0.5L / 4e9L}},
                         1e-16L));
}

TEST(GroupedStatistics, ModeTieMarkerAndShapeWithUnweightedPowerSums) {
    Float marker = 0;
    EXPECT_FALSE(GroupedMode(TKorLWordVector{2, 2}, 0, 1, marker));
    const unsigned char smallest[10] = {1};  // mantissa 1, exponent 0
    EXPECT_EQ(std::memcmp(&marker, smallest, 10), 0);
    const auto modeOf = [](const TKorLWordVector& table) {
        Float mode = 0;
        EXPECT_TRUE(GroupedMode(table, 0, 1, mode));
        return mode;
    };
    EXPECT_TRUE(AllMatch({{modeOf({1, 3, 1}), 1.5L},
                          {modeOf({2, 2, 5}), 2.375L},  // a later maximum: 2 + 3 / (3 + 5)
                          {modeOf({3, 1, 1}), 0.6L},    // a tie below the maximum
                          {modeOf({4000000000u, 4294967295u, 0}), 1 + 294967295.0L / 4589934590.0L}},  // d1 + d2 > 2^32
                         1e-18L));

    // Mid-points 1, 3, 5, 7, 9 about Mean = 4 with s = 2: deviations -3, -1, 1, 3, 5, so
    // S3 = 125 and S4 = 789, worked through the ungrouped formulas.
    const TKorLWordVector ones{1, 1, 1, 1, 1};
    EXPECT_TRUE(AllMatch({{GetGroupedSampleSkew(ones, 0, 2, 4, 2), 125.0L / 40},
                          {GetGroupedPopulationSkew(ones, 0, 2, 4, 2), 625.0L / 96},
                          {GetGroupedSampleKurtosis(ones, 0, 2, 4, 2), 6.8625L},
                          {GetGroupedPopulationKurtosis(ones, 0, 2, 4, 2), 53.640625L},
                          // A second value in the first class changes N but not the power sums.
                          {GetGroupedSampleSkew(TKorLWordVector{2, 1, 1, 1, 1}, 0, 2, 4, 2), 125.0L / 48}},
                         1e-17L));
}

TEST(GroupedStatistics, Failures) {
    EXPECT_TRUE(Raises([] { GetGroupedSampleSkew(TKorLWordVector{1, 1}, 0, 1, 1, 0); }, rsVectorG2));
    EXPECT_TRUE(Raises([] { GetGroupedSampleKurtosis(TKorLWordVector{3}, 0, 1, 1, 1); }, rsVectorG3));
    EXPECT_TRUE(Raises([] { GetGroupedPopulationSkew(TKorLWordVector{3}, 0, 1, 1, 1e-16L); }, rsStdDev));
    const TKorLWordVector empty;
    Float a = 7, b = 8, D[9] = {9};
    const std::function<void()> calls[] = {
        [&] { GroupedMean(empty, 0, 1); }, [&] { GroupedMedian(empty, 0, 1); }, [&] { GroupedMode(empty, 0, 1, a); },
        [&] { GroupedQuartiles(empty, 0, 1, a, b); }, [&] { GetGroupedDeciles(empty, 0, 1, D); },
        [&] { GroupedSampleVariance(empty, 0, 1); }, [&] { GroupedPopulationStdDev(empty, 0, 1); },
        [&] { GroupedSums(empty, 0, 1, a, b); }, [&] { GetGroupedMeanDev(empty, 0, 1, 0); },
        [&] { GetGroupedPopulationKurtosis(empty, 0, 1, 0, 1); }};
    for (const auto& call : calls) EXPECT_TRUE(Raises(call, rsVectorIsEmpty));
    EXPECT_TRUE(AllMatch({{a, 7}, {b, 8}, {D[0], 9}}));
}
