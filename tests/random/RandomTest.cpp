// The generators on scripted uniform sources: hand-worked results, the checks made
// before any draw, and the plumbing of the two overloads.
#include "TestSupport.h"

#include <kornum/KornumRandom.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/PlatformRandom.h>

#include <cmath>
#include <functional>
#include <vector>

namespace {

using namespace KornumRandom;
using namespace KornumTest;
using namespace Kornum_RS_Math;

// A source that plays a script of uniforms (cycling) and counts its calls.
struct Script {
    static inline std::vector<Float> values;
    static inline std::size_t next = 0;
    static Float Draw() { return values[next++ % values.size()]; }
    static void Play(std::vector<Float> script) {
        values = std::move(script);
        next = 0;
    }
};

TEST(RandomBasics, HandWorkedNormalAndExponential) {
    Script::Play({0.5L});
    EXPECT_EQ(Random_Normal(Script::Draw), 0);  // v = 0, q = 0.0269 < 0.27597: accepted at once
    EXPECT_EQ(Script::next, 2u);
    Script::Play({0, 0.25L});
    EXPECT_EQ(Random_Exponential(Script::Draw), 1.38629436111989061883L);  // -ln 0.25 = ln 4
    Script::Play({0.3L, 0.7L, 0.1L});
    const Float e = Random_Exponential(Script::Draw);
    Script::Play({0.3L, 0.7L, 0.1L});
    EXPECT_EQ(Random_Gamma(1, Script::Draw), e);  // shape 1: the exponential, same source
}

TEST(RandomBasics, ChecksComeBeforeTheFirstDraw) {
    Script::Play({0.5L});
    const std::vector<std::pair<std::function<void()>, Platform::ResourceString>> failures = {
        {[] { Random_Gamma(0, Script::Draw); }, rsInvalidShape},
        {[] { Random_ChiSq(0, Script::Draw); }, rsInvalidShape},
        {[] { Random_Gamma(1e-4940L, Script::Draw); }, rsShapeTooSmall},
        {[] { Random_Weibull(0, Script::Draw); }, rsInvalidValue},
        {[] { Random_Beta(0, 1, Script::Draw); }, rsInvalidValue},
        {[] { Random_Beta(1, -1, Script::Draw); }, rsInvalidValue},
        {[] { Random_T(0, Script::Draw); }, rsInvalidValue},
        {[] { Random_Inv_Gauss(-0.1L, 1, Script::Draw); }, rsInvalidValue},
        {[] { Random_Inv_Gauss(1, 0, Script::Draw); }, rsInvalidValue},
        {[] { Random_Inv_Gauss(1e300L, 1e-10L, Script::Draw); }, rsInvalidValue},  // h : b too small
        {[] { Random_von_Mises(10, Script::Draw); }, rsInvalidValue},              // nk = 21
        {[] { Random_von_Mises(-0.01L, Script::Draw); }, rsInvalidValue},
        {[] { Random_Neg_Binomial(0, 0.5L, Script::Draw); }, rsInvalidValue},
        {[] { Random_Neg_Binomial(1, 1, Script::Draw); }, rsInvalidValue},
    };
    for (const auto& [call, message] : failures) EXPECT_TRUE(Raises(call, message)) << message.Name;
    EXPECT_EQ(Script::next, 0u);
    Script::Play({0.25L, 0.5L, 0.75L, 0.9L});
    EXPECT_NO_THROW(Random_von_Mises(9.99L, Script::Draw));  // nk = 20
    EXPECT_GT(Random_Weibull(-2, Script::Draw), 0);          // a negative shape is accepted
}

TEST(RandomBasics, BothOverloadsDrawTheSameStream) {
    const std::vector<std::function<Float(TKorUniformFunc)>> withSource = {
        [](TKorUniformFunc g) { return Random_Normal(g); }, [](TKorUniformFunc g) { return Random_Gamma(0.4L, g); },
        [](TKorUniformFunc g) { return Random_Beta(2, 3, g); }, [](TKorUniformFunc g) { return Random_T(4, g); },
        [](TKorUniformFunc g) { return Float(Random_Poisson(12.5L, g)); },
        [](TKorUniformFunc g) { return Float(Random_Binomial2(500, 0.3L, g)); }};
    const std::vector<std::function<Float()>> withoutSource = {
        [] { return Random_Normal(); }, [] { return Random_Gamma(0.4L); }, [] { return Random_Beta(2, 3); },
        [] { return Random_T(4); }, [] { return Float(Random_Poisson(12.5L)); },
        [] { return Float(Random_Binomial2(500, 0.3L)); }};
    for (std::size_t i = 0; i < withSource.size(); ++i) {
        Platform::RandSeed(77);
        const Float a = withSource[i](DefaultRandom), b = withSource[i](DefaultRandom);
        Platform::RandSeed(77);
        EXPECT_EQ(withoutSource[i](), a) << i;
        EXPECT_EQ(withoutSource[i](), b) << i;
    }
}

TEST(RandomBasics, MirrorImagesOfBetaAndBinomial) {
    const std::vector<Float> script = {0.31L, 0.77L, 0.52L, 0.12L, 0.93L, 0.44L, 0.68L, 0.05L};
    Script::Play(script);
    const Float x = Random_Beta(2, 5, Script::Draw);
    Script::Play(script);
    EXPECT_EQ(Random_Beta(5, 2, Script::Draw), 1 - x);
    Script::Play(script);
    const Int64 k = Random_Binomial2(80, 0.3L, Script::Draw);
    Script::Play(script);
    EXPECT_EQ(Random_Binomial2(80, 0.7L, Script::Draw), 80 - k);
    Script::Play(script);
    const Int64 big = Random_Binomial2(1000, 0.3L, Script::Draw);  // BTPE
    Script::Play(script);
    EXPECT_EQ(Random_Binomial2(1000, 0.7L, Script::Draw), 1000 - big);
}

TEST(RandomMVNorm, PackedLayoutsAndTheSingularPath) {
    TKorFloatVector H{1, 2}, D{4, 0, 9}, F, X{7, 7, 7};
    Integer ier = 5;
    Script::Play({0.5L});
    Random_MVNorm(H, D, F, X, ier, Script::Draw);
    EXPECT_EQ(ier, 0);
    EXPECT_EQ(std::vector<Float>(F.begin(), F.end()), (std::vector<Float>{2, 0, 3}));
    EXPECT_EQ(std::vector<Float>(X.begin(), X.end()), (std::vector<Float>{1, 2}));  // normals of 0
    TKorFloatVector bad{-1, 0, 9}, untouched{7, 7};
    Script::Play({0.5L});
    Random_MVNorm(H, bad, F, untouched, ier, Script::Draw);
    EXPECT_EQ(ier, 1);
    EXPECT_EQ(Script::next, 0u);
    EXPECT_EQ(std::vector<Float>(untouched.begin(), untouched.end()), (std::vector<Float>{7, 7}));
    EXPECT_TRUE(Raises([&] { Random_MVNorm(TKorFloatVector{}, D, F, X, ier); }, rsVectorEmpty));
    EXPECT_TRUE(Raises([&] { Random_MVNorm(H, TKorFloatVector{4, 0}, F, X, ier); }, rsVectorTooSmall));

    // Covariance [[4, 1.2], [1.2, 9]] (D = 4, 1.2, 9): 10^5 draws, every moment within 5
    // standard errors.
    const TKorFloatVector cov{4, 1.2L, 9};
    Platform::RandSeed(3);
    const int n = 100000;
    Float s1 = 0, s2 = 0, s11 = 0, s22 = 0, s12 = 0;
    for (int i = 0; i < n; ++i) {
        Random_MVNorm(H, cov, F, X, ier);
        const Float a = Float(X[0]) - 1, b = Float(X[1]) - 2;
        s1 += a, s2 += b, s11 += a * a, s22 += b * b, s12 += a * b;
    }
    EXPECT_NEAR(double(s1 / n), 0, 5 * 2 / std::sqrt(n));
    EXPECT_NEAR(double(s2 / n), 0, 5 * 3 / std::sqrt(n));
    EXPECT_NEAR(double(s11 / n), 4, 5 * 4 * std::sqrt(2.0 / n));
    EXPECT_NEAR(double(s22 / n), 9, 5 * 9 * std::sqrt(2.0 / n));
    EXPECT_NEAR(double(s12 / n), 1.2, 5 * std::sqrt((4 * 9 + 1.44) / n));
}

// xoshiro256** seeded through splitmix64, against the generator's published reference
// code run by hand for seed 0: the first outputs of splitmix64(0) are the state words.
TEST(PlatformRandom, SeedsGiveOneStreamAndValuesUseAll64Bits) {
    Platform::RandSeed(12345);
    std::vector<std::uint64_t> first;
    for (int i = 0; i < 4; ++i) first.push_back(Platform::RandomBits());
    Platform::RandSeed(12345);
    for (int i = 0; i < 4; ++i) EXPECT_EQ(Platform::RandomBits(), first[std::size_t(i)]);
    Platform::RandSeed(12345);
    EXPECT_EQ(Platform::Random(), Float(first[0]) / 18446744073709551616.0L);
    Platform::RandSeed(0);
    EXPECT_EQ(Platform::RandomBits(), 0x99EC5F36CB75F2B4ull);
    Platform::RandSeed(Platform::DefaultRandSeed);
}

// A stream of its own gives the global generator's values for the same seed and leaves
// the global generator where it was.
TEST(PlatformRandom, OwnStreamsRepeatTheGlobalStreamWithoutTouchingIt) {
    Platform::RandSeed(99);
    const std::uint64_t globalFirst = Platform::RandomBits();
    const long double globalSecond = Platform::Random();
    Platform::RandSeed(7);
    Platform::TRandomStream a(99), b(99);
    EXPECT_EQ(a.Bits(), globalFirst);
    EXPECT_EQ(a.Random(), globalSecond);
    EXPECT_EQ(b.Bits(), globalFirst);  // b did not move when a did
    Platform::TRandomStream seven(7);
    EXPECT_EQ(Platform::RandomBits(), seven.Bits());
    Platform::RandSeed(Platform::DefaultRandSeed);
}

}  // namespace
