// Means, variances, standard deviations and shape statistics of one sample.
#include <kornum/KornumStatistics.h>
#include <kornum/Kornum_RS_Math.h>

#include "SampleTestSupport.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

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
    PopulationVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, 1.25L);
    SampleStdDevAndMean(X, spread, mean);
    EXPECT_EQ(spread, std::sqrt(5.0L / 3.0L));
    PopulationStdDevAndMean(X, spread, mean);
    EXPECT_EQ(spread, std::sqrt(1.25L));
    EXPECT_EQ(mean, 2.5L);

    // The spread is written before the mean: one variable given for both ends up
    // holding the mean.
    Float both = 0;
    SampleVarianceAndMean(X, both, both);
    EXPECT_EQ(both, 2.5L);
}

TYPED_TEST(MomentMembers, SizeChecksAndUntouchedOutputs) {
    const TypeParam empty;
    const TypeParam one{5};
    EXPECT_TRUE(RaisesMath([&] { KorMean(empty); }, rsVectorIsEmpty));
    EXPECT_EQ(KorMean(one), 5.0L);
    EXPECT_TRUE(RaisesMath([&] { SampleVariance(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { SampleVariance(one); }, rsVectorG1));
    EXPECT_TRUE(RaisesMath([&] { SampleStdDev(one); }, rsVectorG1));
    EXPECT_TRUE(RaisesMath([&] { PopulationStdDev(empty); }, rsVectorIsEmpty));
    EXPECT_EQ(PopulationVariance(one), 0.0L);
    EXPECT_EQ(PopulationStdDev(one), 0.0L);

    Float spread = 7, mean = 8;
    EXPECT_TRUE(RaisesMath([&] { SampleVarianceAndMean(empty, spread, mean); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { SampleStdDevAndMean(one, spread, mean); }, rsVectorG1));
    EXPECT_TRUE(RaisesMath([&] { PopulationStdDevAndMean(empty, spread, mean); }, rsVectorIsEmpty));
    EXPECT_EQ(spread, 7.0L);
    EXPECT_EQ(mean, 8.0L);
    PopulationVarianceAndMean(one, spread, mean);
    EXPECT_EQ(spread, 0.0L);
    EXPECT_EQ(mean, 5.0L);
}

// ---- The one-pass integer members square in 32 bits --------------------------------

TEST(OnePassSquares, LongIntSquareWrapsSigned) {
    // 50000^2 and 50001^2 kept to 32 bits and read signed: -1794967296 and -1794867295.
    const TKorLIntVector X{50000, 50001};
    Float variance = 0, mean = 0;
    SampleVarianceAndMean(X, variance, mean);
    EXPECT_EQ(variance, -8589934591.5L);
    EXPECT_EQ(mean, 50000.5L);
    EXPECT_EQ(SampleVariance(X), 0.5L);  // the two-pass form is exact
}

TEST(OnePassSquares, LongWordSquareWrapsUnsigned) {
    // 70000^2 and 70001^2 kept to 32 bits: 605032704 and 605172705.
    const TKorLWordVector X{70000, 70001};
    Float variance = 0, mean = 0;
    SampleVarianceAndMean(X, variance, mean);
    EXPECT_EQ(variance, -8589934591.5L);
    PopulationVarianceAndMean(X, variance, mean);
    EXPECT_EQ(variance, -8589934591.5L / 2);
    EXPECT_EQ(mean, 70000.5L);
    // Below 65536 the unsigned square is exact.
    SampleVarianceAndMean(TKorLWordVector{60000, 60002}, variance, mean);
    EXPECT_EQ(variance, 2.0L);
}

TEST(OnePassSquares, Int64SampleFormsUseWrappedIntegerSums) {
    // S = 2^32 + 2 (exact Int64); squares of the low halves: 0 and 4; S*S is the
    // square of S's low 32 bits, 4. Variance (4 - 4/2) / 1.
    const TKorInt64Vector X{Int64(1) << 32, 2};
    Float spread = 0, mean = 0;
    SampleVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, 2.0L);
    EXPECT_EQ(mean, 2147483649.0L);
    SampleStdDevAndMean(X, spread, mean);
    EXPECT_EQ(spread, std::sqrt(2.0L));

    // The low-half squares are read signed and sign-extended: 50000^2 -> -1794967296.
    SampleVarianceAndMean(TKorInt64Vector{50000, 0}, spread, mean);
    EXPECT_EQ(spread, -1794967296.0L + 897483648.0L);
    EXPECT_EQ(mean, 25000.0L);
}

TEST(OnePassSquares, Int64PopulationFormsSumInFloat) {
    // Same data: S = 2^32 + 2 in Float, whose square (2^64 + 2^34 + 4) is exact.
    const TKorInt64Vector X{Int64(1) << 32, 2};
    Float spread = 0, mean = 0;
    PopulationVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, -(4611686018427387904.0L + 4294967296.0L - 1.0L));
    EXPECT_EQ(mean, 2147483649.0L);
    // The two-pass form is the exact alternative.
    EXPECT_EQ(PopulationVariance(X), 4611686014132420609.0L);
}

TEST(OnePassSquares, FloatingMembersShowTextbookCancellation) {
    // 10^10 + {1, 2, 3}: the sum of squares ~3e20 needs 69 bits, so the one-pass
    // formula loses the variance that the two-pass form keeps exactly.
    const TKorDoubleVector X{1e10 + 1, 1e10 + 2, 1e10 + 3};
    EXPECT_EQ(SampleVariance(X), 1.0L);
    Float variance = 0, mean = 0;
    SampleVarianceAndMean(X, variance, mean);
    EXPECT_EQ(mean, 1e10L + 2);
    EXPECT_NE(variance, 1.0L);
}

// ---- Other means --------------------------------------------------------------------

TEST(OtherMeans, ValuesByHand) {
    EXPECT_EQ(GeometricMean(TKorFloatVector{1, 4}), 2.0L);
    EXPECT_NEAR(double(GeometricMean(TKorFloatVector{2, 4, 8})), 4.0, 1e-15);
    EXPECT_EQ(HarmonicMean(TKorFloatVector{1, 2, 4}), 12.0L / 7.0L);
    EXPECT_EQ(RootMeanSquare(TKorFloatVector{3, 4}), 5.0L);  // not divided by n
    EXPECT_EQ(MeanDeviation(TKorFloatVector{1, 2, 3, 6}, 3), 1.5L);
    EXPECT_EQ(MeanDeviation(TKorFloatVector{}, 3), 0.0L);  // empty: no failure
}

TEST(OtherMeans, Failures) {
    EXPECT_TRUE(RaisesMath([] { GeometricMean(TKorFloatVector{}); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([] { GeometricMean(TKorFloatVector{1, 0}); }, rsVectorNotPos));
    EXPECT_TRUE(RaisesMath([] { HarmonicMean(TKorFloatVector{}); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([] { HarmonicMean(TKorFloatVector{2, -1}); }, rsVectorNotPos));
    EXPECT_TRUE(RaisesMath([] { RootMeanSquare(TKorFloatVector{}); }, rsVectorIsEmpty));
}

TEST(Standardise, RewritesInPlaceThroughSharedStorage) {
    TKorFloatVector X{1, 2, 3};
    const TKorFloatVector sharer = X;
    Standardise(X, 2, 1, 0, 1);  // z-scores
    EXPECT_EQ(Float(sharer[0]), -1.0L);
    EXPECT_EQ(Float(sharer[2]), 1.0L);
    Standardise(X, 0, 0.5L, 10, 2);  // (z / 0.5) * 2 + 10
    EXPECT_EQ(Float(X[0]), 6.0L);
    EXPECT_EQ(Float(X[1]), 10.0L);
    EXPECT_EQ(Float(X[2]), 14.0L);
}

TEST(Standardise, OnlyAnExactZeroSpreadIsRefused) {
    TKorFloatVector X{1, 2};
    EXPECT_TRUE(RaisesMath([&] { Standardise(X, 1, 0, 0, 1); }, rsStdDev));
    EXPECT_EQ(Float(X[0]), 1.0L);
    EXPECT_EQ(Float(X[1]), 2.0L);
    TKorFloatVector empty;
    EXPECT_TRUE(RaisesMath([&] { Standardise(empty, 1, 0, 0, 1); }, rsVectorIsEmpty));
    Standardise(X, 1, 1e-300L, 0, 1);  // tiny but not zero: proceeds
    EXPECT_EQ(Float(X[1]), 1e300L);
}

// ---- Skewness and kurtosis ----------------------------------------------------------

TEST(Shape, ValuesByHand) {
    // Deviations from 3: -2, -1, 3; cubes sum to 18.
    const TKorFloatVector three{1, 2, 6};
    EXPECT_EQ(GetSampleSkew(three, 3, 1), 27.0L);  // 3 * 18 / (2 * 1)
    EXPECT_EQ(GetPopulationSkew(three, 3, 1), 6.0L);
    EXPECT_EQ(GetPopulationSkew(three, 3, 2), 0.75L);
    // Deviations from 4: -3, -2, -1, 6; fourth powers sum to 1394; s = 2.
    const TKorFloatVector four{1, 2, 3, 10};
    EXPECT_EQ(GetPopulationKurtosis(four, 4, 2), 1394.0L / 64.0L - 3.0L);
    EXPECT_NEAR(double(GetSampleKurtosis(four, 4, 2)), 3323.0 / 12.0, 1e-12);
    // All values at the mean: only the bias term remains, -3(n-1)^2 / ((n-2)(n-3)).
    EXPECT_EQ(GetSampleKurtosis(TKorFloatVector{5, 5, 5, 5, 5}, 5, 0.3L), -8.0L);
    EXPECT_EQ(GetPopulationKurtosis(TKorFloatVector{5, 5, 5, 5}, 5, 0.3L), -3.0L);
}

TEST(Shape, SizeAndSpreadChecks) {
    const TKorFloatVector empty, two{1, 2}, three{1, 2, 3};
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(two, 1.5L, 1); }, rsVectorG2));
    EXPECT_TRUE(RaisesMath([&] { GetPopulationSkew(two, 1.5L, 1); }, rsVectorG2));
    EXPECT_TRUE(RaisesMath([&] { GetSampleKurtosis(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(RaisesMath([&] { GetSampleKurtosis(three, 2, 1); }, rsVectorG3));
    EXPECT_TRUE(RaisesMath([&] { GetPopulationKurtosis(three, 2, 1); }, rsVectorG3));
    // The spread test is tolerant here (unlike Standardise): 1e-16 counts as zero.
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(three, 2, 1e-16L); }, rsStdDev));
    EXPECT_TRUE(RaisesMath([&] { GetPopulationKurtosis(TKorFloatVector{1, 2, 3, 4}, 2.5L, 0); },
                           rsStdDev));
    // Size is checked before the spread.
    EXPECT_TRUE(RaisesMath([&] { GetSampleSkew(two, 1.5L, 0); }, rsVectorG2));
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
void ExpectTwoPassDigits(const SampleTestSupport::ReferenceSample& ref, Float digits) {
    using SampleTestSupport::RelativeError;
    const V X = ToVector<V>(ref.x);
    const Float bound = std::pow(10.0L, -digits);
    EXPECT_LE(RelativeError(KorMean(X), ref.value.at("mean")), bound);
    EXPECT_LE(RelativeError(SampleVariance(X), ref.value.at("sample_variance")), bound);
    EXPECT_LE(RelativeError(PopulationVariance(X), ref.value.at("population_variance")), bound);
    EXPECT_LE(RelativeError(SampleStdDev(X), ref.value.at("sample_stddev")), bound);
    EXPECT_LE(RelativeError(PopulationStdDev(X), ref.value.at("population_stddev")), bound);
}

TEST(Accuracy, TwoPassFloatOnOffsetSamples) {
    // 10^4 values of 10^9 + k/1000 and of 10^13 + k/10: 15 significant digits at least.
    for (const char* name : {"offset1e9", "offset1e13", "normal1e6", "lognormal"}) {
        SCOPED_TRACE(name);
        const auto ref = SampleTestSupport::ReadReference(name);
        ASSERT_EQ(ref.type, "float");
        ExpectTwoPassDigits<TKorFloatVector>(ref, 15);
    }
}

TEST(Accuracy, TwoPassDoubleOnOffsetSample) {
    const auto ref = SampleTestSupport::ReadReference("offset1e9_double");
    ASSERT_EQ(ref.type, "double");
    ExpectTwoPassDigits<TKorDoubleVector>(ref, 15);
}

TEST(Accuracy, ShapeFromReferenceMeanAndSpread) {
    using SampleTestSupport::RelativeError;
    for (const char* name : {"normal1e6", "lognormal"}) {
        SCOPED_TRACE(name);
        const auto ref = SampleTestSupport::ReadReference(name);
        const auto X = ToVector<TKorFloatVector>(ref.x);
        const Float m = ref.value.at("shape_mean");
        const Float s = ref.value.at("shape_sample_stddev");
        const Float p = ref.value.at("shape_population_stddev");
        EXPECT_LE(RelativeError(GetSampleSkew(X, m, s), ref.value.at("sample_skew")), 1e-13L);
        EXPECT_LE(RelativeError(GetPopulationSkew(X, m, p), ref.value.at("population_skew")), 1e-13L);
        EXPECT_LE(RelativeError(GetSampleKurtosis(X, m, s), ref.value.at("sample_kurtosis")), 1e-13L);
        EXPECT_LE(RelativeError(GetPopulationKurtosis(X, m, p), ref.value.at("population_kurtosis")),
                  1e-13L);
    }
}

}  // namespace
