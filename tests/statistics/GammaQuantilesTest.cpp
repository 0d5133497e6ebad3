// The chi-square and exponential quantiles of either tail, and the incomplete gamma at
// large shapes, against mpmath (tools/make_gamma_inverse_references.py); the quantiles'
// round trips through their own tails on random points.
#include "StatisticsTestSupport.h"

#include <kornum/KornumStatistics.h>

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <random>

namespace {

using namespace StatisticsTest;

constexpr Float Ulp64 = 0x1p-64L;  // the rounding error of a probability, relative

struct Quantile {
    std::string kind;
    Float probability, parameter, expected, density;
};

std::vector<Quantile> Quantiles() {
    std::vector<Quantile> rows;
    ForEachLine("distributions_gamma_inverse.tsv", [&](const std::vector<std::string>& f) {
        if (f[0] != "igamma") rows.push_back({f[0], ToFloat(f[1]), ToFloat(f[2]), ToFloat(f[3]), ToFloat(f[4])});
    });
    return rows;
}

Float Evaluate(const Quantile& q) {
    static const std::map<std::string, std::function<Float(Float, Float)>> routines{
        {"chisq_inv_less", [](Float p, Float df) { return InvChiSquareLess(p, Integer(df)); }},
        {"chisq_inv_greater", [](Float p, Float df) { return InvChiSquareGreater(p, Integer(df)); }},
        {"exp_inv_less", [](Float p, Float rate) { return InvExponentialLess(p, rate); }},
        {"exp_inv_greater", [](Float p, Float rate) { return InvExponentialGreater(p, rate); }},
    };
    return routines.at(q.kind)(q.probability, q.parameter);
}

// Within 1e-16 relative, or the error that the probability's own rounding causes,
// P 2^-64 / f(x), where that is larger (a lower quantile near P = 1).
Float Allowed(const Quantile& q) { return std::fmax(1e-16L, q.probability * Ulp64 / (q.density * q.expected)); }

// The quantiles sum their tails to the last bit whatever the tolerance in force.
TEST(GammaQuantiles, MatchMpmathFromBothTailsAtAnyTolerance) {
    const std::vector<Quantile> rows = Quantiles();
    ASSERT_GT(rows.size(), 400u);
    for (const Float tolerance : {1e-15L, 1e-19L, 1e-6L}) {
        const ToleranceScope scope(tolerance);
        std::map<std::string, Float> worst;
        for (const Quantile& q : rows) {
            const Float error = RelativeError(Evaluate(q), q.expected);
            worst[q.kind] = std::fmax(worst[q.kind], error);
            EXPECT_LE(error, Allowed(q)) << q.kind << "(" << double(q.probability) << ", " << double(q.parameter)
                                         << ") at tolerance " << double(tolerance);
        }
        if (tolerance == 1e-15L)
            for (const auto& [kind, error] : worst) std::printf("  %-18s worst relative error %.3Lg\n", kind.c_str(), error);
    }
}

// Near X = A, and at the switch between series and fraction at A + 1, the sums converge
// slowly: the bound on what is left, not the last term, decides when they stop, and at
// large shapes their rounding and that of A ln X would show at the tight tolerance.
TEST(GammaQuantiles, IncompleteGammaHoldsFourTimesTheToleranceUpToAMillion) {
    std::vector<std::vector<Float>> rows;
    ForEachLine("distributions_gamma_inverse.tsv", [&](const std::vector<std::string>& f) {
        if (f[0] == "igamma") rows.push_back({ToFloat(f[1]), ToFloat(f[2]), ToFloat(f[3])});
    });
    ASSERT_GT(rows.size(), 150u);
    for (const Float tolerance : {1e-15L, 1e-19L}) {
        const ToleranceScope scope(tolerance);
        Float worst = 0;
        for (const auto& row : rows) {
            const Float error = RelativeError(IncompleteGamma(row[0], row[1]), row[2]);
            worst = std::fmax(worst, error);
            EXPECT_LE(error, 4 * tolerance) << "A = " << double(row[0]) << ", X = " << double(row[1]);
        }
        std::printf("  tolerance %.0Lg: worst relative error %.3Lg\n", tolerance, worst);
    }
}

// F(F^-1(p)) = p within the conditioning: the quantile's 1e-16 moves the tail by at most
// 1e-16 x f(x), the tail itself is good to 1e-17 at the tight tolerance.
TEST(GammaQuantiles, RoundTripThroughTheirOwnTails) {
    const ToleranceScope tight(1e-19L);
    std::mt19937_64 random(19);
    std::uniform_real_distribution<double> uniform(0, 1);
    for (int i = 0; i < 400; ++i) {
        const Integer df = Integer(std::pow(10.0, 4 * uniform(random)));
        const Float p = std::pow(10.0L, -300 * uniform(random) * uniform(random));
        const Float x = InvChiSquareLess(p, df), y = InvChiSquareGreater(p, df);
        const auto bound = [&](Float at) { return 1e-17L * p + 1.2e-16L * at * ChiSquarePDF(at, df); };
        EXPECT_LE(std::fabs(ChiSquareLess(x, df) - p), bound(x)) << "less " << double(p) << ", " << df;
        EXPECT_LE(std::fabs(ChiSquareGreater(y, df) - p), bound(y)) << "greater " << double(p) << ", " << df;

        const Float rate = std::pow(10.0L, 6 * uniform(random) - 3);
        const Float e = InvExponentialLess(p, rate), f = InvExponentialGreater(p, rate);
        EXPECT_LE(std::fabs(ExponentialLess(e, rate) - p), 4e-19L * p + 2e-19L * e * ExponentialPDF(e, rate));
        EXPECT_LE(std::fabs(ExponentialGreater(f, rate) - p), 4e-19L * p + 2e-19L * f * ExponentialPDF(f, rate));
    }
}

TEST(GammaQuantiles, FailInTheirOrderAndMeetTheEnds) {
    const Float inf = std::numeric_limits<Float>::infinity(), nan = std::numeric_limits<Float>::quiet_NaN();
    const std::vector<std::pair<std::function<void()>, Platform::ResourceString>> failures = {
        {[] { InvChiSquareGreater(1.5L, 0); }, rsDF},
        {[=] { InvChiSquareGreater(nan, 1); }, rsValue01Inc},
        {[] { InvChiSquareGreater(-0.1L, 3); }, rsValue01Inc},
        {[] { InvChiSquareLess(-1e-30L, 3); }, rsValue01Inc},
        {[] { InvExponentialLess(2, 0); }, rsExpDistInvalid},
        {[=] { InvExponentialLess(0.5L, nan); }, rsExpDistInvalid},
        {[=] { InvExponentialLess(nan, 1); }, rsValue01Inc},
        {[] { InvExponentialGreater(-1, -2); }, rsExpDistInvalid},
        {[] { InvExponentialGreater(1.0000001L, 2); }, rsValue01Inc},
    };
    for (const auto& [call, message] : failures) EXPECT_TRUE(Raises(call, message)) << message.Name;

    EXPECT_TRUE(AllMatch({
        {InvChiSquareGreater(0, 3), inf}, {InvChiSquareGreater(1, 3), 0}, {InvExponentialLess(0, 2), 0},
        {InvExponentialLess(1, 2), inf}, {InvExponentialGreater(0, 2), inf}, {InvExponentialGreater(1, 2), 0},
        {InvChiSquareLess(1e-4000L, 1), 0},  // below the least subnormal
    }, 0));
    EXPECT_FALSE(std::signbit(InvExponentialGreater(1, 2)));
    // With two degrees of freedom the chi-square is the exponential of rate 1/2: -2 ln Q.
    const Float ln2 = 0.693147180559945309417232121458176568L;
    EXPECT_LE(RelativeError(InvChiSquareLess(0.75L, 2), 4 * ln2), 1e-18L);
    EXPECT_LE(RelativeError(InvChiSquareGreater(0x1p-16000L, 2), 32000 * ln2), 1e-18L);
}

}  // namespace
