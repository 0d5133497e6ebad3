// Median, quartiles, deciles, mode, most frequent values and trimmed means of sorted
// samples.
#include <kornum/KornumStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include "SampleTestSupport.h"

#include <gtest/gtest.h>

#include <vector>

using namespace KornumStatistics;
using namespace Kornumglobals;
using namespace Kornum_RS_Math;
using SampleTestSupport::RaisesMath;

namespace {

template <class V>
class OrderMembers : public ::testing::Test {};
using SixVectors = ::testing::Types<TKorFloatVector, TKorDoubleVector, TKorSingleVector,
                                    TKorInt64Vector, TKorLWordVector, TKorLIntVector>;
TYPED_TEST_SUITE(OrderMembers, SixVectors);

TYPED_TEST(OrderMembers, Median) {
    EXPECT_EQ(GetMedian(TypeParam{7}), 7.0L);
    EXPECT_EQ(GetMedian(TypeParam{1, 2, 3, 4}), 2.5L);
    EXPECT_EQ(GetMedian(TypeParam{1, 5, 9}), 5.0L);
    EXPECT_EQ(GetMedian(TypeParam{3, 1, 2}), 1.0L);  // unsorted: the middle element
    EXPECT_TRUE(RaisesMath([] { GetMedian(TypeParam{}); }, rsVectorIsEmpty));
}

TYPED_TEST(OrderMembers, TrimmedMeans) {
    const TypeParam X{1, 2, 3, 4, 5, 6, 7, 8, 9, 100};
    EXPECT_EQ(TrimmedMean(X, 0), 14.5L);             // plain mean
    EXPECT_EQ(TrimmedMean(X, 0.5L), 5.5L);           // median
    EXPECT_EQ(TrimmedMean(X, 0.125L), 5.5L);         // 1 off each end: 2 .. 9
    EXPECT_EQ(TrimmedMean(X, 0.25L), 5.5L);          // 2 off each end: 3 .. 8
    EXPECT_EQ(ExcelTrimmedMean(X, 0.25L), 5.5L);     // Trunc(2.5) div 2 = 1 off each end
    EXPECT_EQ(ExcelTrimmedMean(X, 0.1L), 14.5L);     // Trunc(1) div 2 = 0
    EXPECT_EQ(ExcelTrimmedMean(X, 1.0L), 5.5L);      // median
    EXPECT_EQ(TrimmedMean(TypeParam{4}, 0.3L), 4.0L);
    EXPECT_EQ(TrimmedMean(TypeParam{1, 2, 10, 20}, 0.49L), 6.0L);  // k = 1: X[1], X[2]

    EXPECT_TRUE(RaisesMath([&] { TrimmedMean(X, 0.6L); }, rsInvalidValue));
    EXPECT_TRUE(RaisesMath([&] { TrimmedMean(X, -0.1L); }, rsInvalidValue));
    EXPECT_TRUE(RaisesMath([&] { ExcelTrimmedMean(X, 1.2L); }, rsInvalidValue));
    EXPECT_EQ(ExcelTrimmedMean(X, 0.6L), 5.5L);  // accepted: about 3 off each end
    // Alpha is checked before the length; the shortcuts report through their delegate.
    EXPECT_TRUE(RaisesMath([] { TrimmedMean(TypeParam{}, 0.7L); }, rsInvalidValue));
    EXPECT_TRUE(RaisesMath([] { TrimmedMean(TypeParam{}, 0.2L); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([] { TrimmedMean(TypeParam{}, 0); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([] { ExcelTrimmedMean(TypeParam{}, 1); }, rsVectorIsEmpty));
}

TEST(TrimmedMean, ToleranceAtTheShortcutsButExactRange) {
    const TKorFloatVector X{1, 2, 3, 10};
    EXPECT_EQ(TrimmedMean(X, -1e-17L), 4.0L);         // zero within tolerance: the mean
    EXPECT_EQ(TrimmedMean(X, 0.5L + 1e-17L), 2.5L);  // one half within tolerance: the median
    EXPECT_TRUE(RaisesMath([&] { TrimmedMean(X, 0.5L + 1e-12L); }, rsInvalidValue));
    EXPECT_EQ(ExcelTrimmedMean(X, 1.0L + 1e-17L), 2.5L);
}

TEST(Quartiles, PlusOneHalfPositions) {
    Float q1 = 0, q3 = 0;
    GetQuartiles(TKorFloatVector{1, 2, 3, 4, 5, 6, 7, 8}, q1, q3);  // p = 2.5 and 6.5
    EXPECT_EQ(q1, 2.5L);
    EXPECT_EQ(q3, 6.5L);
    GetQuartiles(TKorFloatVector{1, 2, 3}, q1, q3);  // p = 1.25 and 2.75
    EXPECT_EQ(q1, 1.25L);
    EXPECT_EQ(q3, 2.75L);
    GetQuartiles(TKorFloatVector{10, 20, 40, 80}, q1, q3);  // p = 1.5 and 3.5
    EXPECT_EQ(q1, 15.0L);
    EXPECT_EQ(q3, 60.0L);
    GetQuartiles(TKorFloatVector{3, 9}, q1, q3);  // p = 1.0 and 2.0
    EXPECT_EQ(q1, 3.0L);
    EXPECT_EQ(q3, 9.0L);
    GetQuartiles(TKorFloatVector{4}, q1, q3);
    EXPECT_EQ(q1, 4.0L);
    EXPECT_EQ(q3, 4.0L);

    q1 = q3 = -5;
    EXPECT_TRUE(RaisesMath([&] { GetQuartiles(TKorFloatVector{}, q1, q3); }, rsVectorIsEmpty));
    EXPECT_EQ(q1, -5.0L);
    EXPECT_EQ(q3, -5.0L);
}

TEST(Deciles, PlusOneHalfPositions) {
    TKorFloatVector ten;
    ten.SetLength(10);
    for (Integer i = 0; i < 10; ++i) ten[i] = Float(10 * (i + 1));  // 10, 20, .. 100
    const TKorDeciles d = GetDeciles(ten);
    EXPECT_EQ(d[1], 15.0L);  // p = 1.5
    EXPECT_EQ(d[5], 55.0L);  // p = 5.5: the mean of X[4] and X[5]
    EXPECT_EQ(d[9], 95.0L);  // p = 9.5

    const TKorDeciles one = GetDeciles(TKorFloatVector{3});
    for (int i = 1; i <= 9; ++i) EXPECT_EQ(one[i], 3.0L);

    // Two values: p = 0.7 for D1 lies before the first element, which it takes.
    const TKorDeciles two = GetDeciles(TKorFloatVector{1, 2});
    EXPECT_EQ(two[1], 1.0L);
    EXPECT_EQ(two[2], 1.0L);                        // p = 0.9
    EXPECT_NEAR(double(two[3]), 1.1, 1e-15);        // p = 1.1
    EXPECT_EQ(two[5], 1.5L);                        // p = 1.5
    EXPECT_EQ(two[9], 2.0L);                        // p = 2.3: the last element
    EXPECT_TRUE(RaisesMath([] { GetDeciles(TKorFloatVector{}); }, rsVectorIsEmpty));
}

TEST(Mode, SingleTiedAndAbsent) {
    Float mode = 0;
    EXPECT_FALSE(GetMode(TKorFloatVector{1, 2, 3}, mode));
    EXPECT_EQ(mode, -1.1e4932L);
    EXPECT_EQ(mode, KorNoMode);
    EXPECT_FALSE(GetMode(TKorFloatVector{1, 1, 2, 2}, mode));
    EXPECT_EQ(mode, 1.0L);  // the first of the tied values
    EXPECT_TRUE(GetMode(TKorFloatVector{1, 1, 2, 2, 2}, mode));
    EXPECT_EQ(mode, 2.0L);
    EXPECT_TRUE(GetMode(TKorFloatVector{1, 1, 2, 2, 3, 3, 3}, mode));  // a longer run clears a tie
    EXPECT_EQ(mode, 3.0L);
    EXPECT_TRUE(GetMode(TKorFloatVector{1, 2, 2, 2, 3, 3}, mode));
    EXPECT_EQ(mode, 2.0L);
    EXPECT_TRUE(GetMode(TKorFloatVector{1, 2, 3, 3}, mode));  // only the final run repeats
    EXPECT_EQ(mode, 3.0L);
    EXPECT_TRUE(GetMode(TKorFloatVector{9}, mode));
    EXPECT_EQ(mode, 9.0L);
    // Neighbours equal within tolerance form one run.
    EXPECT_TRUE(GetMode(TKorFloatVector{1, 2, 2 + 1e-17L, 3}, mode));
    EXPECT_EQ(mode, 2.0L + 1e-17L);

    mode = 4;
    EXPECT_TRUE(RaisesMath([&] { GetMode(TKorFloatVector{}, mode); }, rsVectorIsEmpty));
    EXPECT_EQ(mode, 4.0L);
}

std::vector<Float> Values(const TKorFloatVector& V) {
    return std::vector<Float>(V.begin(), V.end());
}

TEST(MostFrequent, TiesInAscendingOrder) {
    using List = std::vector<Float>;
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 1, 2, 2, 3})), (List{1, 2}));
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 2, 3})), List{});
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 1, 2, 2, 2})), List{2});
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 1, 2, 3, 3})), (List{1, 3}));
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 1, 2, 2, 3, 3, 3})), List{3});
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 1, 1, 2, 3, 3})), List{1});
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{5})), List{5});
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{3, 3, 3})), List{3});
    // The kept quirk: when only the final run repeats, the first element is returned.
    EXPECT_EQ(Values(GetMostFrequent(TKorFloatVector{1, 2, 3, 3})), List{1});
    EXPECT_TRUE(RaisesMath([] { GetMostFrequent(TKorFloatVector{}); }, rsVectorIsEmpty));
}

}  // namespace
