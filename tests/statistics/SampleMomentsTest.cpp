// Means, variances, standard deviations and shape statistics of one sample.
#include <kornum/KornumStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include "SampleTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

using namespace KornumStatistics;
using namespace Kornumglobals;
using namespace Kornum_RS_Math;
using SampleTestSupport::RaisesMath;

namespace {

// ---- The six members agree where their arithmetic is exact --------------------------

template <class V>
class MomentMembers : public ::testing::Test {};
using SixVectors = ::testing::Types<TKorFloatVector, TKorDoubleVector, TKorSingleVector,
                                    TKorInt64Vector, TKorLWordVector, TKorLIntVector>;
TYPED_TEST_SUITE(MomentMembers, SixVectors);

TYPED_TEST(MomentMembers, SmallSampleByHand) {
    const TypeParam X{1, 2, 3, 4};
    EXPECT_EQ(KorMean(X), 2.5L);
    EXPECT_EQ(SampleVariance(X), 5.0L / 3.0L);
    EXPECT_EQ(PopulationVariance(X), 1.25L);
    EXPECT_EQ(SampleStdDev(X), std::sqrt(5.0L / 3.0L));
    EXPECT_EQ(PopulationStdDev(X), std::sqrt(1.25L));

    Float spread = -1, mean = -1;
    SampleVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, 5.0L / 3.0L);
    EXPECT_EQ(mean, 2.5L);
    // The spread is written before the mean: one variable given for both ends up
    // holding the mean.
    SampleStdDevAndMean(X, spread, spread);
    EXPECT_EQ(spread, 2.5L);
}

TYPED_TEST(MomentMembers, SizeChecksLeaveOutputsUntouched) {
    const TypeParam empty, one{5};
    EXPECT_TRUE(RaisesMath([&] { KorMean(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { SampleStdDev(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { SampleVariance(one); }, rsVectorG1));
    EXPECT_TRUE(RaisesMath([&] { PopulationVariance(empty); }, rsVectorIsEmpty));
    EXPECT_EQ(PopulationStdDev(one), 0.0L);

    Float spread = 7, mean = 8;
    EXPECT_TRUE(RaisesMath([&] { SampleVarianceAndMean(one, spread, mean); }, rsVectorG1));
    EXPECT_TRUE(RaisesMath([&] { PopulationStdDevAndMean(empty, spread, mean); }, rsVectorIsEmpty));
    EXPECT_EQ(spread, 7.0L);
    EXPECT_EQ(mean, 8.0L);
    PopulationVarianceAndMean(one, spread, mean);
    EXPECT_EQ(spread, 0.0L);
    EXPECT_EQ(mean, 5.0L);
}

// ---- The one-pass integer members square in 32 bits --------------------------------

TEST(OnePassSquares, NarrowSquaresOfTheIntegerMembers) {
    Float spread = 0, mean = 0;
    // LongInt: 50000^2, 50001^2 kept to 32 bits and read signed (-1794967296, -1794867295).
    SampleVarianceAndMean(TKorLIntVector{50000, 50001}, spread, mean);
    EXPECT_EQ(spread, -8589934591.5L);
    EXPECT_EQ(mean, 50000.5L);
    EXPECT_EQ(SampleVariance(TKorLIntVector{50000, 50001}), 0.5L);  // two-pass: exact
    // LongWord: 70000^2, 70001^2 kept to 32 bits, unsigned (605032704, 605172705).
    PopulationVarianceAndMean(TKorLWordVector{70000, 70001}, spread, mean);
    EXPECT_EQ(spread, -8589934591.5L / 2);
    SampleVarianceAndMean(TKorLWordVector{60000, 60002}, spread, mean);  // below 2^16: exact
    EXPECT_EQ(spread, 2.0L);

    // Int64, sample forms: S = 2^32 + 2 as an exact Int64; squares of the low halves 0
    // and 4; S*S is the square of S's low 32 bits, 4. So (4 - 4/2) / 1.
    const TKorInt64Vector X{Int64(1) << 32, 2};
    SampleVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, 2.0L);
    EXPECT_EQ(mean, 2147483649.0L);
    // ... and the low-half squares are sign-extended: 50000^2 -> -1794967296.
    SampleVarianceAndMean(TKorInt64Vector{50000, 0}, spread, mean);
    EXPECT_EQ(spread, -897483648.0L);
    // Int64, population forms: S in Float, whose square 2^64 + 2^34 + 4 is exact.
    PopulationVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, -(4611686018427387904.0L + 4294967296.0L - 1.0L));
    EXPECT_EQ(PopulationVariance(X), 4611686014132420609.0L);  // two-pass: exact
}

// ---- Other means and standardisation ------------------------------------------------

TEST(OtherMeans, ValuesByHandAndFailures) {
    EXPECT_EQ(GeometricMean(TKorFloatVector{1, 4}), 2.0L);
    EXPECT_EQ(HarmonicMean(TKorFloatVector{1, 2, 4}), 12.0L / 7.0L);
    EXPECT_EQ(RootMeanSquare(TKorFloatVector{3, 4}), 5.0L);  // not divided by n
    EXPECT_EQ(MeanDeviation(TKorFloatVector{1, 2, 3, 6}, 3), 1.5L);
    EXPECT_EQ(MeanDeviation(TKorFloatVector{}, 3), 0.0L);  // empty: no failure
    EXPECT_TRUE(RaisesMath([] { GeometricMean(TKorFloatVector{}); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([] { GeometricMean(TKorFloatVector{1, 0}); }, rsVectorNotPos));
    EXPECT_TRUE(RaisesMath([] { HarmonicMean(TKorFloatVector{2, -1}); }, rsVectorNotPos));
    EXPECT_TRUE(RaisesMath([] { RootMeanSquare(TKorFloatVector{}); }, rsVectorIsEmpty));
}

TEST(Standardise, InPlaceThroughSharedStorageAndExactZeroCheck) {
    TKorFloatVector X{1, 2, 3};
    const TKorFloatVector sharer = X;
    EXPECT_TRUE(RaisesMath([&] { Standardise(X, 1, 0, 0, 1); }, rsStdDev));
    EXPECT_EQ(Float(X[0]), 1.0L);  // untouched
    Standardise(X, 2, 0.5L, 10, 2);  // ((x - 2) / 0.5) * 2 + 10
    EXPECT_EQ(Float(sharer[0]), 6.0L);
    EXPECT_EQ(Float(sharer[2]), 14.0L);
    Standardise(X, 10, 1e-300L, 0, 1);  // tiny but not zero: proceeds
    EXPECT_GT(Float(X[2]), 3.9e300L);
    TKorFloatVector empty;
    EXPECT_TRUE(RaisesMath([&] { Standardise(empty, 1, 0, 0, 1); }, rsVectorIsEmpty));
}

// ---- Skewness and kurtosis ----------------------------------------------------------

TEST(Shape, ValuesByHand) {
    // Deviations from 3: -2, -1, 3; cubes sum to 18.
    const TKorFloatVector three{1, 2, 6};
    EXPECT_EQ(GetSampleSkew(three, 3, 1), 27.0L);  // 3 * 18 / (2 * 1)
    EXPECT_EQ(GetPopulationSkew(three, 3, 2), 0.75L);
    // Deviations from 4: -3, -2, -1, 6; fourth powers sum to 1394; s = 2.
    const TKorFloatVector four{1, 2, 3, 10};
    EXPECT_EQ(GetPopulationKurtosis(four, 4, 2), 1394.0L / 64.0L - 3.0L);
    EXPECT_NEAR(double(GetSampleKurtosis(four, 4, 2)), 3323.0 / 12.0, 1e-12);
    // All values at the mean: only the bias term remains, -3(n-1)^2 / ((n-2)(n-3)).
    EXPECT_EQ(GetSampleKurtosis(TKorFloatVector{5, 5, 5, 5, 5}, 5, 0.3L), -8.0L);
}

TEST(Shape, SizeBeforeSpreadAndTolerantSpreadTest) {
    const TKorFloatVector empty, two{1, 2}, three{1, 2, 3};
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { GetPopulationSkew(two, 1.5L, 0); }, rsVectorG2));
    EXPECT_TRUE(RaisesMath([&] { GetSampleKurtosis(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { GetPopulationKurtosis(three, 2, 1); }, rsVectorG3));
    // Unlike Standardise, 1e-16 counts as a zero spread here.
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(three, 2, 1e-16L); }, rsStdDev));
}

// ---- Accuracy on ill-conditioned samples, against mpmath ----------------------------

template <class V>
V ToVector(const std::vector<Float>& values) {
    V X;
    X.SetLength(Integer(values.size()));
    for (std::size_t i = 0; i < values.size(); ++i) {
        X[Integer(i)] = typename V::value_type(values[i]);
    }
    return X;
}

template <class V>
void ExpectTwoPassDigits(const char* name, Float digits) {
    const auto ref = SampleTestSupport::ReadReference(name);
    const V X = ToVector<V>(ref.x);
    const std::pair<const char*, Float> results[] = {
        {"mean", KorMean(X)},
        {"sample_variance", SampleVariance(X)},
        {"population_variance", PopulationVariance(X)},
        {"sample_stddev", SampleStdDev(X)},
        {"population_stddev", PopulationStdDev(X)},
    };
    Float worst = 0;
    for (const auto& [key, value] : results) {
        const Float error = SampleTestSupport::RelativeError(value, ref.value.at(key));
        EXPECT_LE(error, std::pow(10.0L, -digits)) << name << " " << key;
        worst = std::max(worst, error);
    }
    std::printf("%s (%s, n = %zu): worst relative error %.2Le\n", name, ref.type.c_str(),
                ref.x.size(), worst);
}

TEST(Accuracy, TwoPassAgainstMpmath) {
    // 10^4 values of 10^9 + k/1000 and of 10^13 + k/10, and two random samples: 15
    // significant digits at least.
    for (const char* name : {"offset1e9", "offset1e13", "normal1e6", "lognormal"}) {
        ExpectTwoPassDigits<TKorFloatVector>(name, 15);
    }
    ExpectTwoPassDigits<TKorDoubleVector>("offset1e9_double", 15);
}

}  // namespace
