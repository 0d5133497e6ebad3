// Statistics of frequency tables: location, spread and shape from class counts, with
// expected values worked by hand.
#include <kornum/GroupedStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include "DistributionTestSupport.h"

#include <cmath>
#include <cstring>
#include <functional>

using namespace KornumStatistics;
using namespace distribution_tests;
namespace rs = Kornum_RS_Math;

namespace {
const TKorLWordVector Table{1, 2, 1};  // with L = 0, W = 10: mid-points 5, 15, 25
}

TEST(GroupedLocation, MeanMedianQuartilesDeciles) {
    EXPECT_EQ(GroupedMean(Table, 0, 10), 15.0L);
    EXPECT_EQ(GroupedMedian(Table, 0, 10), 15.0L);
    Float Q1 = 0, Q3 = 0;
    GroupedQuartiles(Table, 0, 10, Q1, Q3);
    EXPECT_EQ(Q1, 10.0L);
    EXPECT_EQ(Q3, 20.0L);
    // N = 5: targets 1.25 and 3.75 fall in different classes.
    GroupedQuartiles(TKorLWordVector{3, 2}, 0, 1, Q1, Q3);
    EXPECT_NEAR(double(Q1), 1.25 / 3, 1e-18);
    EXPECT_EQ(Q3, 1.375L);
    Float D[9];
    GetGroupedDeciles(Table, 0, 10, D);
    EXPECT_NEAR(double(D[0]), 4, 1e-17);   // 0.4 of the first class
    EXPECT_EQ(D[4], GroupedMedian(Table, 0, 10));
    EXPECT_NEAR(double(D[8]), 26, 1e-16);  // 3.6: 0.6 into the last class
    // The lower bound shifts every location statistic.
    EXPECT_EQ(GroupedMean(Table, 100, 10), 115.0L);
    EXPECT_EQ(GroupedMedian(Table, 100, 10), 115.0L);
}

TEST(GroupedLocation, CountsBeyondThirtyTwoBitsAccumulateExactly) {
    const TKorLWordVector big{4000000000u, 4000000000u, 1};
    EXPECT_NEAR(double(GroupedMedian(big, 0, 1)), 1 + 0.5 / 4e9, 1e-15);
    EXPECT_NEAR(double(GroupedMean(big, 0, 1)), (0.5 * 4e9 + 1.5 * 4e9 + 2.5) / 8000000001.0, 1e-15);
}

TEST(GroupedMode, UniqueModalClassAndTieMarker) {
    Float mode = -1;
    EXPECT_TRUE(GroupedMode(TKorLWordVector{1, 3, 1}, 0, 1, mode));
    EXPECT_EQ(mode, 1.5L);
    EXPECT_FALSE(GroupedMode(TKorLWordVector{2, 2}, 0, 1, mode));
    EXPECT_EQ(mode, GroupedModeTieMarker);
    // The smallest positive extended value: mantissa 1, exponent 0.
    const unsigned char pattern[10] = {1, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    EXPECT_EQ(std::memcmp(&mode, pattern, 10), 0);
    // A larger count later clears an earlier tie; the last class has no right-hand
    // neighbour, so d2 is its own count: 2 + 3 / (3 + 5).
    EXPECT_TRUE(GroupedMode(TKorLWordVector{2, 2, 5}, 0, 1, mode));
    EXPECT_EQ(mode, 2.375L);
    // Only a tie at the maximum counts; the first class has no left neighbour.
    EXPECT_TRUE(GroupedMode(TKorLWordVector{3, 1, 1}, 0, 1, mode));
    EXPECT_NEAR(double(mode), 0.6, 1e-18);
    EXPECT_FALSE(GroupedMode(TKorLWordVector{1, 4, 2, 4}, 0, 1, mode));
    // d1 + d2 does not fit 32 bits here and must not wrap.
    EXPECT_TRUE(GroupedMode(TKorLWordVector{4000000000u, 4294967295u, 0}, 0, 1, mode));
    EXPECT_NEAR(double(mode), 1 + 294967295.0 / 4589934590.0, 1e-15);
}

TEST(GroupedSpread, VariancesSumsAndMeanDeviation) {
    EXPECT_NEAR(double(GroupedSampleVariance(Table, 0, 10)), 200.0 / 3, 1e-15);
    EXPECT_EQ(GroupedPopulationVariance(Table, 0, 10), 50.0L);
    EXPECT_EQ(GroupedPopulationStdDev(Table, 0, 10), std::sqrt(50.0L));
    EXPECT_EQ(GroupedSampleStdDev(Table, 0, 10), std::sqrt(GroupedSampleVariance(Table, 0, 10)));
    Float sumFM = 0, sumFM2 = 0;
    GroupedSums(Table, 0, 10, sumFM, sumFM2);
    EXPECT_EQ(sumFM, 60.0L);
    EXPECT_EQ(sumFM2, 1100.0L);
    EXPECT_EQ(GetGroupedMeanDev(Table, 0, 10, 15), 5.0L);
    // Too few counts give 0 rather than a failure.
    EXPECT_EQ(GroupedSampleVariance(TKorLWordVector{0, 1}, 0, 1), 0.0L);
    EXPECT_EQ(GroupedPopulationVariance(TKorLWordVector{0, 1}, 0, 1), 0.0L);
    EXPECT_EQ(GroupedPopulationVariance(TKorLWordVector{0, 0}, 0, 1), 0.0L);
    EXPECT_EQ(GroupedMean(TKorLWordVector{0, 0}, 0, 1), 0.0L);
}

// One value per class: mid-points 1, 3, 5, 7, 9, measured about Mean = 4 with s = 2, so
// the deviations are -3, -1, 1, 3, 5 (S3 = 125, S4 = 789).
TEST(GroupedShape, OneValuePerClassMatchesTheUngroupedFormulas) {
    const TKorLWordVector ones{1, 1, 1, 1, 1};
    EXPECT_EQ(GetGroupedSampleSkew(ones, 0, 2, 4, 2), 125.0L / 40);               // S3/(s^3 n)
    EXPECT_NEAR(double(GetGroupedPopulationSkew(ones, 0, 2, 4, 2)), 625.0 / 96, 1e-17);
    EXPECT_NEAR(double(GetGroupedSampleKurtosis(ones, 0, 2, 4, 2)), 6.8625, 1e-17);
    EXPECT_NEAR(double(GetGroupedPopulationKurtosis(ones, 0, 2, 4, 2)), 53.640625, 1e-16);
}

TEST(GroupedShape, PowerSumsIgnoreTheCounts) {
    // A second value in the first class changes N but not S3 or S4.
    const TKorLWordVector counts{2, 1, 1, 1, 1};
    EXPECT_NEAR(double(GetGroupedSampleSkew(counts, 0, 2, 4, 2)), 125.0 / 48, 1e-17);
    EXPECT_NEAR(double(GetGroupedSampleKurtosis(counts, 0, 2, 4, 2)), 789.0 / 96 - 3, 1e-17);
}

TEST(GroupedShape, TooFewValuesThenZeroSpread) {
    ExpectRaises([] { GetGroupedSampleSkew(TKorLWordVector{1, 1}, 0, 1, 1, 0); }, rs::rsVectorG2);
    ExpectRaises([] { GetGroupedPopulationSkew(TKorLWordVector{2}, 0, 1, 1, 1); }, rs::rsVectorG2);
    ExpectRaises([] { GetGroupedSampleKurtosis(TKorLWordVector{1, 1, 1}, 0, 1, 1, 1); },
                 rs::rsVectorG3);
    ExpectRaises([] { GetGroupedPopulationKurtosis(TKorLWordVector{3}, 0, 1, 1, 1); },
                 rs::rsVectorG3);
    ExpectRaises([] { GetGroupedSampleSkew(TKorLWordVector{1, 1, 1}, 0, 1, 1, 1e-16L); },
                 rs::rsStdDev);
    ExpectRaises([] { GetGroupedPopulationKurtosis(TKorLWordVector{4}, 0, 1, 1, 0); },
                 rs::rsStdDev);
}

TEST(GroupedFailures, EmptyTableRaisesAndLeavesOutputsAlone) {
    const TKorLWordVector empty;
    Float a = 7, b = 8, D[9] = {9, 9, 9, 9, 9, 9, 9, 9, 9};
    const std::function<void()> calls[] = {
        [&] { GroupedMean(empty, 0, 1); },
        [&] { GroupedMedian(empty, 0, 1); },
        [&] { GroupedMode(empty, 0, 1, a); },
        [&] { GroupedQuartiles(empty, 0, 1, a, b); },
        [&] { GetGroupedDeciles(empty, 0, 1, D); },
        [&] { GroupedSampleVariance(empty, 0, 1); },
        [&] { GroupedPopulationVariance(empty, 0, 1); },
        [&] { GroupedSampleStdDev(empty, 0, 1); },
        [&] { GroupedPopulationStdDev(empty, 0, 1); },
        [&] { GroupedSums(empty, 0, 1, a, b); },
        [&] { GetGroupedMeanDev(empty, 0, 1, 0); },
        [&] { GetGroupedSampleSkew(empty, 0, 1, 0, 1); },
        [&] { GetGroupedPopulationSkew(empty, 0, 1, 0, 1); },
        [&] { GetGroupedSampleKurtosis(empty, 0, 1, 0, 1); },
        [&] { GetGroupedPopulationKurtosis(empty, 0, 1, 0, 1); },
    };
    for (const auto& call : calls) ExpectRaises(call, rs::rsVectorIsEmpty);
    EXPECT_EQ(a, 7.0L);
    EXPECT_EQ(b, 8.0L);
    EXPECT_EQ(D[0], 9.0L);
}
