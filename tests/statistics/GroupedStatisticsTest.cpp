// Statistics of frequency tables, with expected values worked by hand.
#include <kornum/GroupedStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include "DistributionTestSupport.h"

#include <cstring>
#include <functional>

using namespace KornumStatistics;
using namespace distribution_tests;
namespace rs = Kornum_RS_Math;

namespace {
const TKorLWordVector Table{1, 2, 1};  // with L = 0, W = 10: mid-points 5, 15, 25
}

TEST(GroupedStatistics, LocationAndSpread) {
    EXPECT_EQ(GroupedMean(Table, 0, 10), 15.0L);
    EXPECT_EQ(GroupedMedian(Table, 100, 10), 115.0L);
    Float Q1 = 0, Q3 = 0, D[9];
    GroupedQuartiles(TKorLWordVector{3, 2}, 0, 1, Q1, Q3);  // N = 5: targets 1.25, 3.75
    EXPECT_NEAR(double(Q1), 1.25 / 3, 1e-18);
    EXPECT_EQ(Q3, 1.375L);
    GetGroupedDeciles(Table, 0, 10, D);
    EXPECT_NEAR(double(D[0]), 4, 1e-17);
    EXPECT_EQ(D[4], 15.0L);
    EXPECT_NEAR(double(D[8]), 26, 1e-16);
    EXPECT_NEAR(double(GroupedSampleVariance(Table, 0, 10)), 200.0 / 3, 1e-15);
    EXPECT_EQ(GroupedPopulationStdDev(Table, 0, 10), std::sqrt(50.0L));
    Float sumFM = 0, sumFM2 = 0;
    GroupedSums(Table, 0, 10, sumFM, sumFM2);
    EXPECT_EQ(sumFM, 60.0L);
    EXPECT_EQ(sumFM2, 1100.0L);
    EXPECT_EQ(GetGroupedMeanDev(Table, 0, 10, 15), 5.0L);
    EXPECT_EQ(GroupedSampleVariance(TKorLWordVector{0, 1}, 0, 1), 0.0L);  // N < 2
    EXPECT_EQ(GroupedMean(TKorLWordVector{0, 0}, 0, 1), 0.0L);
    // Cumulative counts beyond 32 bits must not wrap.
    EXPECT_NEAR(double(GroupedMedian(TKorLWordVector{4000000000u, 4000000000u, 1}, 0, 1)),
                1 + 0.5 / 4e9, 1e-15);
}

TEST(GroupedStatistics, ModeAndTieMarker) {
    Float mode = -1;
    EXPECT_TRUE(GroupedMode(TKorLWordVector{1, 3, 1}, 0, 1, mode));
    EXPECT_EQ(mode, 1.5L);
    EXPECT_FALSE(GroupedMode(TKorLWordVector{2, 2}, 0, 1, mode));
    const unsigned char smallest[10] = {1};  // mantissa 1, exponent 0
    EXPECT_EQ(std::memcmp(&mode, smallest, 10), 0);
    EXPECT_TRUE(GroupedMode(TKorLWordVector{2, 2, 5}, 0, 1, mode));  // a later maximum
    EXPECT_EQ(mode, 2.375L);                                          // 2 + 3 / (3 + 5)
    EXPECT_TRUE(GroupedMode(TKorLWordVector{3, 1, 1}, 0, 1, mode));  // tie below the maximum
    EXPECT_NEAR(double(mode), 0.6, 1e-18);
    EXPECT_TRUE(GroupedMode(TKorLWordVector{4000000000u, 4294967295u, 0}, 0, 1, mode));
    EXPECT_NEAR(double(mode), 1 + 294967295.0 / 4589934590.0, 1e-15);  // d1 + d2 > 2^32
}

// Mid-points 1, 3, 5, 7, 9 about Mean = 4 with s = 2: deviations -3, -1, 1, 3, 5, so
// S3 = 125 and S4 = 789, worked through the ungrouped formulas.
TEST(GroupedStatistics, ShapeWithUnweightedPowerSums) {
    const TKorLWordVector ones{1, 1, 1, 1, 1};
    EXPECT_EQ(GetGroupedSampleSkew(ones, 0, 2, 4, 2), 125.0L / 40);
    EXPECT_NEAR(double(GetGroupedPopulationSkew(ones, 0, 2, 4, 2)), 625.0 / 96, 1e-17);
    EXPECT_NEAR(double(GetGroupedSampleKurtosis(ones, 0, 2, 4, 2)), 6.8625, 1e-17);
    EXPECT_NEAR(double(GetGroupedPopulationKurtosis(ones, 0, 2, 4, 2)), 53.640625, 1e-16);
    // A second value in the first class changes N but not the power sums.
    EXPECT_NEAR(double(GetGroupedSampleSkew(TKorLWordVector{2, 1, 1, 1, 1}, 0, 2, 4, 2)),
                125.0 / 48, 1e-17);
}

TEST(GroupedStatistics, Failures) {
    ExpectRaises([] { GetGroupedSampleSkew(TKorLWordVector{1, 1}, 0, 1, 1, 0); }, rs::rsVectorG2);
    ExpectRaises([] { GetGroupedSampleKurtosis(TKorLWordVector{3}, 0, 1, 1, 1); }, rs::rsVectorG3);
    ExpectRaises([] { GetGroupedPopulationSkew(TKorLWordVector{3}, 0, 1, 1, 1e-16L); },
                 rs::rsStdDev);
    const TKorLWordVector empty;
    Float a = 7, b = 8, D[9] = {9};
    const std::function<void()> calls[] = {
        [&] { GroupedMean(empty, 0, 1); },       [&] { GroupedMedian(empty, 0, 1); },
        [&] { GroupedMode(empty, 0, 1, a); },    [&] { GroupedQuartiles(empty, 0, 1, a, b); },
        [&] { GetGroupedDeciles(empty, 0, 1, D); },
        [&] { GroupedSampleVariance(empty, 0, 1); },
        [&] { GroupedPopulationStdDev(empty, 0, 1); },
        [&] { GroupedSums(empty, 0, 1, a, b); }, [&] { GetGroupedMeanDev(empty, 0, 1, 0); },
        [&] { GetGroupedPopulationKurtosis(empty, 0, 1, 0, 1); }};
    for (const auto& call : calls) ExpectRaises(call, rs::rsVectorIsEmpty);
    EXPECT_EQ(a, 7.0L);
    EXPECT_EQ(b, 8.0L);
    EXPECT_EQ(D[0], 9.0L);
}
