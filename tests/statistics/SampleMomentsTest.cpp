// Means, variances, standard deviations and shape statistics of one sample, and the
// least-squares line through two.
#include "StatisticsTestSupport.h"

#include <algorithm>
#include <cstdio>
#include <map>

using namespace StatisticsTest;

namespace {

// ---- The six members agree where their arithmetic is exact --------------------------

template <class V>
class MomentMembers : public ::testing::Test {};
using SixVectors = ::testing::Types<TKorFloatVector, TKorDoubleVector, TKorSingleVector,
                                    TKorInt64Vector, TKorLWordVector, TKorLIntVector>;
TYPED_TEST_SUITE(MomentMembers, SixVectors);

TYPED_TEST(MomentMembers, SmallSampleByHand) {
    const TypeParam X{1, 2, 3, 4}, empty, one{5};
    Float spread = -1, mean = -1, twoPass = -1, both = 0;
    SampleVarianceAndMean(X, spread, mean);
    // The spread is written before the mean: one variable given for both ends up
    // holding the mean.
    SampleStdDevAndMean(X, both, both);
    EXPECT_TRUE(AllMatch({{KorMean(X), 2.5L}, {SampleVariance(X), 5.0L / 3.0L}, {PopulationVariance(X), 1.25L},
                          {SampleStdDev(X), std::sqrt(5.0L / 3.0L)}, {PopulationStdDev(X), std::sqrt(1.25L)},
                          {spread, 5.0L / 3.0L}, {mean, 2.5L}, {both, 2.5L}, {PopulationStdDev(one), 0}}));

    // Size checks leave the outputs untouched.
    EXPECT_TRUE(Raises([&] { KorMean(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { SampleStdDev(empty); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { SampleVariance(one); }, rsVectorG1));
    EXPECT_TRUE(Raises([&] { PopulationVariance(empty); }, rsVectorIsEmpty));
    spread = 7, mean = 8;
    EXPECT_TRUE(Raises([&] { SampleVarianceAndMean(one, spread, mean); }, rsVectorG1));
    EXPECT_TRUE(Raises([&] { PopulationStdDevAndMean(empty, spread, mean); }, rsVectorIsEmpty));
    EXPECT_TRUE(AllMatch({{spread, 7}, {mean, 8}}));
    PopulationVarianceAndMean(one, spread, twoPass);
    EXPECT_TRUE(AllMatch({{spread, 0}, {twoPass, 5}}));
}

// ---- The one-pass integer members square in 32 bits --------------------------------

TEST(OnePassSquares, NarrowSquaresOfTheIntegerMembers) {
    Float spread = 0, mean = 0;
    // LongInt: 50000^2, 50001^2 kept to 32 bits and read signed (-1794967296, -1794867295).
    SampleVarianceAndMean(TKorLIntVector{50000, 50001}, spread, mean);
    EXPECT_TRUE(AllMatch({{spread, -8589934591.5L}, {mean, 50000.5L}}));
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
    EXPECT_TRUE(AllMatch({{spread, 2}, {mean, 2147483649.0L}}));
    // ... and the low-half squares are sign-extended: 50000^2 -> -1794967296.
    SampleVarianceAndMean(TKorInt64Vector{50000, 0}, spread, mean);
    EXPECT_EQ(spread, -897483648.0L);
    // Int64, population forms: S in Float, whose square 2^64 + 2^34 + 4 is exact.
    PopulationVarianceAndMean(X, spread, mean);
    EXPECT_EQ(spread, -(4611686018427387904.0L + 4294967296.0L - 1.0L));
    EXPECT_EQ(PopulationVariance(X), 4611686014132420609.0L);  // two-pass: exact
}

// ---- Other means, standardisation, skewness and kurtosis ----------------------------

TEST(OtherMeans, ValuesByHandFailuresAndStandardise) {
    EXPECT_TRUE(AllMatch({{GeometricMean(TKorFloatVector{1, 4}), 2}, {HarmonicMean(TKorFloatVector{1, 2, 4}), 12.0L / 7},
                          {RootMeanSquare(TKorFloatVector{3, 4}), 5},  // not divided by n
                          {MeanDeviation(TKorFloatVector{1, 2, 3, 6}, 3), 1.5L},
                          {MeanDeviation(TKorFloatVector{}, 3), 0}}));  // empty: no failure
    EXPECT_TRUE(Raises([] { GeometricMean(TKorFloatVector{}); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([] { GeometricMean(TKorFloatVector{1, 0}); }, rsVectorNotPos));
    EXPECT_TRUE(Raises([] { HarmonicMean(TKorFloatVector{2, -1}); }, rsVectorNotPos));
    EXPECT_TRUE(Raises([] { RootMeanSquare(TKorFloatVector{}); }, rsVectorIsEmpty));

    // Standardise rewrites in place, through shared storage, after an exact zero check.
    TKorFloatVector X{1, 2, 3}, empty;
    const TKorFloatVector sharer = X;
    EXPECT_TRUE(Raises([&] { Standardise(X, 1, 0, 0, 1); }, rsStdDev));
    EXPECT_TRUE(Raises([&] { Standardise(empty, 1, 0, 0, 1); }, rsVectorIsEmpty));
    EXPECT_EQ(Float(X[0]), 1.0L);  // untouched
    Standardise(X, 2, 0.5L, 10, 2);  // ((x - 2) / 0.5) * 2 + 10
    EXPECT_TRUE(AllMatch({{sharer[0], 6}, {sharer[2], 14}}));
    Standardise(X, 10, 1e-300L, 0, 1);  // tiny but not zero: proceeds
    EXPECT_GT(Float(X[2]), 3.9e300L);
}

TEST(Shape, ValuesByHandSizeBeforeSpreadAndTolerantSpreadTest) {
    // Deviations from 3: -2, -1, 3; cubes sum to 18. Deviations from 4: -3, -2, -1, 6;
    // fourth powers sum to 1394; s = 2. All values at the mean: only the bias term
    // remains, -3(n-1)^2 / ((n-2)(n-3)).
    const TKorFloatVector empty, two{1, 2}, three{1, 2, 6}, four{1, 2, 3, 10};
    EXPECT_TRUE(AllMatch({{GetSampleSkew(three, 3, 1), 27},  // 3 * 18 / (2 * 1)
                          {GetPopulationSkew(three, 3, 2), 0.75L},
                          {GetPopulationKurtosis(four, 4, 2), 1394.0L / 64 - 3},
                          {GetSampleKurtosis(TKorFloatVector{5, 5, 5, 5, 5}, 5, 0.3L), -8}}));
    EXPECT_NEAR(double(GetSampleKurtosis(four, 4, 2)), 3323.0 / 12.0, 1e-12);
    EXPECT_TRUE(Raises([&] { GetSampleSkew(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { GetPopulationSkew(two, 1.5L, 0); }, rsVectorG2));
    EXPECT_TRUE(Raises([&] { GetSampleKurtosis(empty, 0, 1); }, rsVectorIsEmpty));
    EXPECT_TRUE(Raises([&] { GetPopulationKurtosis(three, 2, 1); }, rsVectorG3));
    // Unlike Standardise, 1e-16 counts as a zero spread here.
    EXPECT_TRUE(Raises([&] { GetSampleSkew(three, 2, 1e-16L); }, rsStdDev));
}

// ---- Accuracy on ill-conditioned samples, against mpmath ----------------------------

template <class V>
void ExpectTwoPassDigits(const char* name, Float digits) {
    // Each line holds "x" and an element, "type" and the element type, or a statistic's
    // name and its reference value.
    std::string type;
    std::map<std::string, Float> reference;
    V X;
    ForEachLine(std::string("sample_") + name + ".tsv", [&](const std::vector<std::string>& fields) {
        if (fields[0] == "x") {
            X.SetLength(X.Length() + 1);
            X[X.High()] = typename V::value_type(ToFloat(fields[1]));
        } else if (fields[0] == "type") {
            type = fields[1];
        } else {
            reference[fields[0]] = ToFloat(fields[1]);
        }
    });
    const std::pair<const char*, Float> results[] = {
        {"mean", KorMean(X)},
        {"sample_variance", SampleVariance(X)},
        {"population_variance", PopulationVariance(X)},
        {"sample_stddev", SampleStdDev(X)},
        {"population_stddev", PopulationStdDev(X)},
    };
    Float worst = 0;
    for (const auto& [key, value] : results) {
        const Float error = RelativeError(value, reference.at(key));
        EXPECT_LE(error, std::pow(10.0L, -digits)) << name << " " << key;
        worst = std::max(worst, error);
    }
    std::printf("%s (%s, n = %d): worst relative error %.2Le\n", name, type.c_str(), X.Length(), worst);
}

TEST(Accuracy, TwoPassAgainstMpmath) {
    // 10^4 values of 10^9 + k/1000 and of 10^13 + k/10, and two random samples: 15
    // significant digits at least.
    for (const char* name : {"offset1e9", "offset1e13", "normal1e6", "lognormal"})
        ExpectTwoPassDigits<TKorFloatVector>(name, 15);
    ExpectTwoPassDigits<TKorDoubleVector>("offset1e9_double", 15);
}

// ---- The least-squares line and the sum of squared errors -------------------------

TEST(RegressionLine, LinesByHandAndOnlyTheLengthsChecked) {
    // X = 0..3, Y = 1, 3, 2, 5: Sx 6, Sy 11, Sxx 14, Sxy 22; Qxx 5, Qxy 5.5, so the slope
    // is 1.1 and the residuals 0.1, -0.8, 1.3, -0.6 square to 0.01 + 0.64 + 1.69 + 0.36.
    const TKorFloatVector X{0, 1, 2, 3}, Y{1, 3, 2, 5}, three{1, 2, 3};
    Float intercept = -1, slope = -1, both = 0, exactIntercept = -1, exactSlope = -1;
    GetRegressionLine(TKorFloatVector{1, 2, 3}, TKorFloatVector{2, 4, 6}, exactIntercept, exactSlope);
    // Slope is written first: one variable given for both ends up holding the intercept.
    GetRegressionLine(TKorFloatVector{0, 1}, TKorFloatVector{1, 3}, both, both);
    GetRegressionLine(X, Y, intercept, slope);
    EXPECT_TRUE(AllMatch({{exactSlope, 2}, {exactIntercept, 0}, {both, 1}, {slope, 1.1L},  // correctly rounded
                          {GetSSE(TKorFloatVector{1, 2}, TKorFloatVector{1, 1}, 0, 1), 1},
                          {GetSSE(TKorFloatVector{}, TKorFloatVector{}, 1, 2), 0}}));
    EXPECT_TRUE(AllMatch({{intercept, 1.1L}, {GetSSE(X, Y, intercept, slope), 2.7L}}, 1e-17L));

    std::tie(intercept, slope) = std::pair(7.0L, 8.0L);
    EXPECT_TRUE(Raises([&] { GetRegressionLine(three, X, intercept, slope); }, rsSameDimensions));
    EXPECT_TRUE(Raises([&] { GetSSE(X, three, 0, 1); }, rsSameDimensions));
    EXPECT_TRUE(AllMatch({{intercept, 7}, {slope, 8}}));  // untouched
    // A constant X, or empty vectors, reach the division (floating faults are masked).
    GetRegressionLine(TKorFloatVector{2, 2}, TKorFloatVector{1, 3}, intercept, slope);
    EXPECT_TRUE(std::isnan(slope));
    GetRegressionLine(TKorFloatVector{}, TKorFloatVector{}, intercept, slope);
    EXPECT_TRUE(std::isnan(intercept));
}

}  // namespace
