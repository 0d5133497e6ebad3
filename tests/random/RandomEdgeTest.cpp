// The generators at the edges of their parameters: exact answers where a method would
// divide by zero, the failure raised (before any draw) for every NaN, infinite or
// out-of-range parameter, and extreme valid parameters that must come back with a value.
#include "TestSupport.h"

#include <kornum/KornumRandom.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/PlatformRandom.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

namespace {

using namespace KornumRandom;
using namespace KornumTest;
using namespace Kornum_RS_Math;

constexpr Float Inf = std::numeric_limits<Float>::infinity();
constexpr Float NaN = std::numeric_limits<Float>::quiet_NaN();
constexpr Float BelowOne = 1 - 0x1p-64L;  // the largest Float below 1
constexpr Float Pi = 3.14159265358979323846264338L;

// Plays a script of uniforms once, then splitmix64 outputs over 2^64 for as long as a
// rejection loop asks; counts its draws.
struct Source {
    static inline std::vector<Float> script;
    static inline std::size_t drawn = 0;
    static inline std::uint64_t state = 0;
    static Float Draw() {
        if (drawn < script.size()) return script[drawn++];
        ++drawn;
        std::uint64_t z = state += 0x9E3779B97F4A7C15ull;
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ull;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBull;
        return Float(z ^ (z >> 31)) * 0x1p-64L;
    }
    static void Play(std::vector<Float> values) {
        script = std::move(values);
        drawn = 0;
    }
};

TEST(RandomEdges, CertainOutcomesAreExact) {
    Source::Play({});
    // Modal inversion decides p = 0 and p = 1 without a draw (its logarithms give 0 times infinity).
    EXPECT_EQ(Random_Binomial1(10, 0, Source::Draw), 0);
    EXPECT_EQ(Random_Binomial1(10, 1, Source::Draw), 10);
    EXPECT_EQ(Random_Binomial1(INT_MAX, 1, Source::Draw), INT_MAX);
    EXPECT_EQ(Source::drawn, 0u);
    // BTPE's inversion works on min(pp, 1 - pp) = 0, where q^n = 1 covers the one uniform.
    EXPECT_EQ(Random_Binomial2(10, 0, Source::Draw), 0);
    EXPECT_EQ(Random_Binomial2(10, 1, Source::Draw), 10);
    EXPECT_EQ(Random_Binomial2(INT64_MAX, 0, Source::Draw), 0);  // g = p (n + 1) without n + 1 in Int64
    EXPECT_EQ(Random_Binomial2(INT64_MAX, 1, Source::Draw), INT64_MAX);
    EXPECT_EQ(Random_Binomial2(0, 0.3L, Source::Draw), 0);
    EXPECT_EQ(Random_Poisson(0, Source::Draw), 0);  // e^0 = 1 covers u
    EXPECT_EQ(Source::drawn, 6u);
    // n = 2^31 - 1 with p an ulp from 0 or 1: the mode 0 or n has probability
    // (1 - 2^-64)^n = 1 - 1.2e-10, which covers u = 0.5.
    Source::Play({0.5L, 0.5L});
    EXPECT_EQ(Random_Binomial1(INT_MAX, 0x1p-64L, Source::Draw), 0);
    EXPECT_EQ(Random_Binomial1(INT_MAX, BelowOne, Source::Draw), INT_MAX);
}

TEST(RandomEdges, BadParametersRaiseBeforeAnyDraw) {
    Source::Play({});
    const auto g = Source::Draw;
    const std::vector<std::function<void()>> invalidShape = {[g] { Random_Gamma(NaN, g); },
                                                             [g] { Random_Gamma(Inf, g); }};
    const std::vector<std::function<void()>> invalidValue = {
        [g] { Random_Weibull(NaN, g); }, [g] { Random_Weibull(-Inf, g); },
        [g] { Random_Beta(NaN, 1, g); }, [g] { Random_Beta(2, Inf, g); },
        [g] { Random_Beta(1e-4901L, 1, g); },         // the logit over b would overflow
        [g] { Random_Beta(1e4000L, 1e-1000L, g); },   // a / b overflows
        [g] { Random_Inv_Gauss(NaN, 1, g); }, [g] { Random_Inv_Gauss(1, NaN, g); },
        [g] { Random_Inv_Gauss(1, Inf, g); }, [g] { Random_Inv_Gauss(1, 1e300L, g); },
        [g] { Random_Inv_Gauss(2e14L, 1e14L, g); },   // some 10^7 trials a variate
        [g] { Random_Inv_Gauss(0, 9e-9L, g); },       // 1 > 1e32 (9e-9)^4 = 0.66
        [g] { Random_Inv_Gauss(1e4L, 1e-4L, g); },    // 10^20 > 1e32 10^-16
        [g] { Random_von_Mises(NaN, g); }, [g] { Random_von_Mises(Inf, g); },
        [g] { Random_Binomial1(10, NaN, g); }, [g] { Random_Binomial1(10, -0.1L, g); },
        [g] { Random_Binomial1(-1, 0.5L, g); }, [g] { Random_Binomial2(10, NaN, g); },
        [g] { Random_Binomial2(10, 1.5L, g); }, [g] { Random_Binomial2(INT64_MIN, 0, g); },
        [g] { Random_Neg_Binomial(1, NaN, g); }, [g] { Random_Neg_Binomial(Inf, 0.9L, g); },
        [g] { Random_Neg_Binomial(1e7L, 0.8L, g); },        // mean 4e7 > 1e7
        [g] { Random_Neg_Binomial(0.5L, 1 - 1e-8L, g); },   // odds 1e8 > 1e7
        [g] { Random_Poisson(NaN, g); }, [g] { Random_Poisson(-1, g); },
        [g] { Random_Poisson(Inf, g); }, [g] { Random_Poisson(9.3e18L, g); },
    };
    for (std::size_t i = 0; i < invalidShape.size(); ++i) EXPECT_TRUE(Raises(invalidShape[i], rsInvalidShape)) << i;
    for (std::size_t i = 0; i < invalidValue.size(); ++i) EXPECT_TRUE(Raises(invalidValue[i], rsInvalidValue)) << i;
    EXPECT_EQ(Source::drawn, 0u);

    // A non-finite mean or covariance leaves F and X as they were; D's surplus is not read.
    TKorFloatVector H{1, 2}, F{7}, X{7, 7};
    Integer ier = 5;
    EXPECT_TRUE(Raises([&] { Random_MVNorm(TKorFloatVector{1, NaN}, TKorFloatVector{4, 0, 9}, F, X, ier, g); },
                       rsInvalidValue));
    EXPECT_TRUE(Raises([&] { Random_MVNorm(H, TKorFloatVector{4, 0, Inf}, F, X, ier, g); }, rsInvalidValue));
    EXPECT_EQ(Float(F[0]), 7);
    EXPECT_EQ(std::vector<Float>(X.begin(), X.end()), (std::vector<Float>{7, 7}));
    EXPECT_EQ(ier, 5);
    Source::Play({0.5L, 0.5L, 0.5L, 0.5L});  // two normals of 0
    Random_MVNorm(H, TKorFloatVector{4, 0, 9, NaN}, F, X, ier, Source::Draw);
    EXPECT_EQ(std::vector<Float>(X.begin(), X.end()), (std::vector<Float>{1, 2}));

    // The overloads on the default source fail the same way, leaving its stream untouched.
    Platform::RandSeed(11);
    const Float first = DefaultRandom();
    Platform::RandSeed(11);
    EXPECT_TRUE(Raises([] { Random_Poisson(Inf); }, rsInvalidValue));
    EXPECT_TRUE(Raises([] { Random_von_Mises(NaN); }, rsInvalidValue));
    EXPECT_TRUE(Raises([] { Random_Gamma(Inf); }, rsInvalidShape));
    EXPECT_EQ(Random_Binomial1(7, 1), 7);
    EXPECT_EQ(DefaultRandom(), first);
    Platform::RandSeed(Platform::DefaultRandSeed);
}

TEST(RandomEdges, ExtremeValidParametersGiveTheirValues) {
    // BTPE for n = 1000, p = 0.4: p1 = 31.5, p2 = 43.05, p3 = 44.44, p4 = 45.86, xm = 400.5.
    // u = 0.95 (43.57) lands in the left tail and 0.99 (45.40) in the right one; with v = 0
    // the tail's logarithm is infinite and the candidate is rejected; u = v = 0 then gives
    // the triangle's trunc(xm) = 400.
    for (const Float tail : {0.95L, 0.99L}) {
        Source::Play({tail, 0, 0, 0});
        EXPECT_EQ(Random_Binomial2(1000, 0.4L, Source::Draw), 400) << tail;
        EXPECT_EQ(Source::drawn, 4u);
    }
    // The largest Poisson mean: a normal of 0 (u = v = 0.5) gives the candidate
    // trunc(9.2e18), above l = trunc(mu - 1.1484), and it is returned.
    Source::Play({0.5L, 0.5L});
    EXPECT_EQ(Random_Poisson(9.2e18L, Source::Draw), 9200000000000000000);
    // Shape LDBL_MAX: d = 1 / sqrt(9 c) = 0, v = 1, and u = 0.5 accepts c = s - 1/3 = s.
    Source::Play({0.5L, 0.5L, 0.5L});
    EXPECT_EQ(Random_Gamma(LDBL_MAX, Source::Draw), LDBL_MAX);
    // Shape KorVSmall: a = 1, p = 1 and uf = vsmall^vsmall = 1, so every r < 1 gives 0.
    Source::Play({0.5L});
    EXPECT_EQ(Random_Gamma(KorVSmall, Source::Draw), 0);
    // k = 1 - 2^-64: 2k + 1 rounds to 3, yet there are trunc(2k) + 1 = 2 pieces, split at
    // theta1 = arccos(1 - 1/k) = pi/2. r = 0 takes the end of piece 1, th = pi/2, where
    // lambda = 1; 0.5, 0.25 fall, 0.75 rises: n = 3 is odd, and (0.75 - 0.25) / 0.75 > 0.5.
    Source::Play({0, 0.5L, 0.25L, 0.75L});
    EXPECT_NEAR(double(Random_von_Mises(BelowOne, Source::Draw)), double(Pi / 2), 1e-15);
    EXPECT_EQ(Source::drawn, 4u);
    // u = 1 - 2^-64 may lie above the rounded sum of the negative binomial's terms: the
    // walk either ends far out in the tail (P(S > 300) = 6e-16 dwarfs the rounding of the
    // sum) or starts again, where u = 0.25 is below the first term 0.1^0.3 = 0.50: 0.
    Source::Play({BelowOne, 0.25L});
    const Int64 k = Random_Neg_Binomial(0.3L, 0.9L, Source::Draw);
    EXPECT_TRUE(k == 0 || k > 300) << k;
}

TEST(RandomEdges, ExtremeValidParametersFinishInRange) {
    Source::Play({});
    const auto g = Source::Draw;
    const std::vector<std::pair<std::function<bool()>, const char*>> calls = {
        {[g] { const Int64 k = Random_Binomial1(INT_MAX, 0.5L, g); return k >= 0 && k <= INT_MAX; }, "binomial1"},
        {[g] { return Random_Binomial2(INT64_MAX, 0.5L, g) >= 0; }, "binomial2 2^63-1 0.5"},  // at most n
        {[g] { return Random_Binomial2(INT64_MAX, 0x1p-64L, g) >= 0; }, "binomial2 2^63-1 2^-64"},
        {[g] { return Random_Poisson(1e18L, g) > 0; }, "poisson 1e18"},
        {[g] { return Random_Neg_Binomial(1e4L, 0.75L, g) >= 0; }, "negbinomial 1e4 0.75"},
        {[g] { return Random_Neg_Binomial(0.5L, 1 - 1e-5L, g) >= 0; }, "negbinomial 0.5 1-1e-5"},
        {[g] { return Random_Inv_Gauss(1e6L, 1e6L, g) > 0; }, "invgauss 1e6 1e6"},
        {[g] { return Random_Inv_Gauss(0, 1e-4L, g) > 0; }, "invgauss 0 1e-4"},
        {[g] { return std::fabs(Random_von_Mises(10 - 0x1p-60L, g)) <= Pi; }, "vonmises 10-2^-60"},
        {[g] { return std::fabs(Random_von_Mises(2 - 0x1p-63L, g)) <= Pi; }, "vonmises 2-2^-63"},
        {[g] { const Float x = Random_Beta(1e4800L, 1e4800L, g); return x >= 0 && x <= 1; }, "beta 1e4800 1e4800"},
        {[g] { const Float x = Random_Beta(1e-4800L, 1e-4800L, g); return x >= 0 && x <= 1; }, "beta 1e-4800"},
        {[g] { const Float x = Random_Beta(1e4000L, 1e-800L, g); return x >= 0 && x <= 1; }, "beta 1e4000 1e-800"},
    };
    for (const auto& [call, name] : calls)
        for (int i = 0; i < 5; ++i) EXPECT_TRUE(call()) << name;
}

}  // namespace
