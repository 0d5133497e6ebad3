// Median, quartiles, deciles, mode, most frequent values and trimmed means of sorted
// samples.
#include "StatisticsTestSupport.h"

#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

using namespace StatisticsTest;

namespace {

template <class V>
class OrderMembers : public ::testing::Test {};
using SixVectors = ::testing::Types<TKorFloatVector, TKorDoubleVector, TKorSingleVector,
                                    TKorInt64Vector, TKorLWordVector, TKorLIntVector>;
TYPED_TEST_SUITE(OrderMembers, SixVectors);

TYPED_TEST(OrderMembers, MedianAndTrimmedMeans) {
    const TypeParam X{1, 2, 3, 4, 5, 6, 7, 8, 9, 100};
    EXPECT_TRUE(AllMatch({
        {GetMedian(TypeParam{7}), 7}, {GetMedian(TypeParam{1, 2, 3, 4}), 2.5L}, {GetMedian(TypeParam{1, 5, 9}), 5},
        {GetMedian(TypeParam{3, 1, 2}), 1},  // unsorted: the middle element
        {TrimmedMean(X, 0), 14.5L},          // plain mean
        {TrimmedMean(X, 0.125L), 5.5L},      // 1 off each end: 2 .. 9
        {ExcelTrimmedMean(X, 0.25L), 5.5L},  // Trunc(2.5) div 2 = 1 off each end
        {ExcelTrimmedMean(X, 1.0L), 5.5L},   // median
        {TrimmedMean(TypeParam{1, 2, 10, 20}, 0.49L), 6},  // k = 1: X[1], X[2]
        {ExcelTrimmedMean(X, 0.6L), 5.5L},   // accepted by the Excel reading only
    }));
    EXPECT_TRUE(Raises([] { GetMedian(TypeParam{}); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { TrimmedMean(X, 0.6L); }, rsInvalidValue));
    EXPECT_TRUE(Raises([&] { ExcelTrimmedMean(X, 1.2L); }, rsInvalidValue));
    EXPECT_TRUE(Raises([&] { TrimmedMean(X, std::nanl("")); }, rsInvalidValue));
    // Alpha is checked before the length; the shortcuts report through their delegate.
    EXPECT_TRUE(Raises([] { TrimmedMean(TypeParam{}, 0.7L); }, rsInvalidValue));
    EXPECT_TRUE(Raises([] { TrimmedMean(TypeParam{}, 0.2L); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([] { ExcelTrimmedMean(TypeParam{}, 1); }, rsVectorIsEmpty));
    // Zero and one half within tolerance take the mean and the median; the range is exact.
    const TypeParam Y{1, 2, 3, 10};
    EXPECT_TRUE(AllMatch({{TrimmedMean(Y, -1e-17L), 4}, {TrimmedMean(Y, 0.5L + 1e-17L), 2.5L},
                          {ExcelTrimmedMean(Y, 1.0L + 1e-17L), 2.5L}}));
    EXPECT_TRUE(Raises([&] { TrimmedMean(Y, 0.5L + 1e-12L); }, rsInvalidValue));
}

TEST(QuartilesAndDeciles, PlusOneHalfPositions) {
    // {data, Q1, Q3}: positions n/4 + 0.5 and 3n/4 + 0.5.
    const std::tuple<TKorFloatVector, Float, Float> cases[] = {
        {{1, 2, 3, 4, 5, 6, 7, 8}, 2.5L, 6.5L},  // p = 2.5, 6.5
        {{1, 2, 3}, 1.25L, 2.75L},               // p = 1.25, 2.75
        {{10, 20, 40, 80}, 15, 60},              // p = 1.5, 3.5
        {{3, 9}, 3, 9}, {{4}, 4, 4},             // p = 1.0, 2.0
    };
    for (const auto& [x, q1, q3] : cases) {
        Float first = 0, third = 0;
        GetQuartiles(x, first, third);
        EXPECT_TRUE(AllMatch({{first, q1}, {third, q3}})) << double(x[0]);
    }
    Float q1 = -5, q3 = -5;
    EXPECT_TRUE(Raises([&] { GetQuartiles(TKorFloatVector{}, q1, q3); }, rsVectorIsEmpty));
    EXPECT_TRUE(AllMatch({{q1, -5}, {q3, -5}}));  // untouched

    TKorFloatVector ten;
    ten.SetLength(10);
    for (Integer i = 0; i < 10; ++i) ten[i] = Float(10 * (i + 1));  // 10, 20, .. 100
    const TKorDeciles d = GetDeciles(ten), one = GetDeciles(TKorFloatVector{3}),
                      two = GetDeciles(TKorFloatVector{1, 2});
    // Ten values: p = 1.5, 5.5 (the mean of X[4] and X[5]), 9.5. Two values: p = 0.7 for
    // D1 lies before the first element, which it takes; p = 1.5; p = 2.3, the last one.
    EXPECT_TRUE(AllMatch({{d[1], 15}, {d[5], 55}, {d[9], 95}, {two[1], 1}, {two[5], 1.5L}, {two[9], 2},
                          {one[1], 3}, {one[5], 3}, {one[9], 3}}));
    EXPECT_TRUE(Raises([] { GetDeciles(TKorFloatVector{}); }, rsVectorIsEmpty));
}

TEST(ModeAndMostFrequent, RunsOfSameFloatNeighboursAndTheFinalRunQuirk) {
    // {data, single mode, the mode}: ties give the first tied value, and nothing repeated
    // gives the "no mode" marker.
    const std::tuple<TKorFloatVector, bool, Float> modes[] = {
        {{1, 2, 3}, false, -1.1e4932L}, {{1, 1, 2, 2}, false, 1}, {{1, 1, 2, 2, 2}, true, 2},
        {{1, 1, 2, 2, 3, 3, 3}, true, 3},  // a longer final run clears the tie
        {{1, 2, 2, 2, 3, 3}, true, 2}, {{1, 2, 3, 3}, true, 3}, {{9}, true, 9},
        {{1, 2, 2 + 1e-17L, 3}, true, 2 + 1e-17L},  // equal within tolerance: one run
        {{-0.0L, 0.0L, 1}, true, 0},                // equal values with different bytes
        {{1, std::nanl(""), std::nanl(""), std::nanl("")}, false, -1.1e4932L},  // NaNs, bytes alike, never
    };
    for (const auto& [x, single, expected] : modes) {
        Float mode = 0;
        EXPECT_EQ(GetMode(x, mode), single) << double(expected);
        EXPECT_EQ(mode, expected);
    }
    using List = std::vector<Float>;
    const std::pair<TKorFloatVector, List> frequent[] = {
        {{1, 1, 2, 2, 3}, {1, 2}}, {{1, 2, 3}, {}}, {{1, 1, 2, 3, 3}, {1, 3}}, {{1, 1, 2, 2, 3, 3, 3}, {3}},
        {{1, 1, 1, 2, 3, 3}, {1}}, {{5}, {5}}, {{3, 3, 3}, {3}},
        {{1, 2, 3, 3}, {1}},  // only the final run repeats: the first element is returned
    };
    for (const auto& [x, expected] : frequent) {
        const TKorFloatVector result = GetMostFrequent(x);
        EXPECT_EQ(List(result.begin(), result.end()), expected) << double(x[0]);
    }
    Float mode = 4;
    EXPECT_TRUE(Raises([&] { GetMode(TKorFloatVector{}, mode); }, rsVectorIsEmpty));
    EXPECT_EQ(mode, 4.0L);
    EXPECT_TRUE(Raises([] { GetMostFrequent(TKorFloatVector{}); }, rsVectorIsEmpty));
}

}  // namespace
