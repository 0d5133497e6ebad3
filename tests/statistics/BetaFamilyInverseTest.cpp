// Quantiles of the beta, F and Student t distributions for both tails, over far tails
// (down to 1e-300, and 1e-4900 for upper tails), skewed shapes from 0.01 to 1e5 and degrees
// of freedom up to 1e6, and their densities at large shapes, against mpmath
// (tools/make_beta_family_inverse_references.py); then round trips over random points,
// the bounds, the mirrored interval and the checks of the upper-tail quantiles.
#include "StatisticsTestSupport.h"

#include <kornum/Kornummath.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>
#include <map>
#include <random>

namespace {

using namespace StatisticsTest;

constexpr Float Ulp = 0x1p-63L;
constexpr Float Infinity = std::numeric_limits<Float>::infinity();

struct Row {
    std::string kind;
    std::vector<Float> arguments;
    Float expected;
    Float conditioning;  // P 2^-64 / f(x) for the quantiles: what P's rounding alone causes
};

std::vector<Row> References() {
    std::vector<Row> rows;
    ForEachLine("distributions_beta_family_inverse.tsv", [&](const std::vector<std::string>& fields) {
        Row row{fields[0], {}, 0, 0};
        const bool quantile = row.kind.find("_inv_") != std::string::npos;
        const std::size_t values = fields.size() - (quantile ? 2 : 1);
        for (std::size_t i = 1; i < values; ++i) row.arguments.push_back(ToFloat(fields[i]));
        row.expected = ToFloat(fields[values]);
        if (quantile) row.conditioning = ToFloat(fields[values + 1]);
        rows.push_back(row);
    });
    return rows;
}

using Routine = std::function<Float(const std::vector<Float>&)>;

// Every routine that a row's kind checks.
const std::multimap<std::string, Routine>& Routines() {
    static const std::multimap<std::string, Routine> table{
        {"beta_inv_less", [](auto& a) { return InvBetaDistLess(a[0], a[1], a[2]); }},
        {"beta_inv_less", [](auto& a) { return Kornummath::InverseIncompleteBeta(a[0], a[1], a[2]); }},
        {"beta_inv_greater", [](auto& a) { return InvBetaDistGreater(a[0], a[1], a[2]); }},
        {"f_inv_less", [](auto& a) { return InvFDistLess(a[0], Integer(a[1]), Integer(a[2])); }},
        {"f_inv_greater", [](auto& a) { return InvFDistGreater(a[0], Integer(a[1]), Integer(a[2])); }},
        {"t_inv_less", [](auto& a) { return InvStudentTLess(a[0], Integer(a[1])); }},
        {"t_inv_greater", [](auto& a) { return InvStudentTGreater(a[0], Integer(a[1])); }},
        {"beta_pdf", [](auto& a) { return BetaPDF(a[0], a[1], a[2]); }},
        {"f_pdf", [](auto& a) { return FDistPDF(a[0], Integer(a[1]), Integer(a[2])); }},
        {"t_pdf", [](auto& a) { return StudentTPDF(a[0], Integer(a[1])); }},
    };
    return table;
}

// The row's call, the result and the reference, for a failure's message.
std::string Describe(const Row& row, Float got) {
    std::string text = row.kind + "(";
    char number[64];
    for (std::size_t i = 0; i < row.arguments.size(); ++i) {
        std::snprintf(number, sizeof number, "%s%.6Lg", i > 0 ? ", " : "", row.arguments[i]);
        text += number;
    }
    std::snprintf(number, sizeof number, "): %.21Lg", got);
    text += number;
    std::snprintf(number, sizeof number, ", expected %.21Lg", row.expected);
    return text + number;
}

// Quantiles: within 1e-16 relative or the conditioning, whichever is larger (plus the
// spacing of the subnormals, where the quantile lies below the normal range). Densities:
// within 16 ulps.
TEST(BetaFamilyInverse, AgainstMpmathOverTheTailsAndShapes) {
    const std::vector<Row> rows = References();
    ASSERT_GT(rows.size(), 3000u);
    std::map<std::string, std::pair<Float, Float>> worst;  // relative error, error / allowed
    for (const Row& row : rows) {
        const bool quantile = row.kind.find("_inv_") != std::string::npos;
        const auto [first, last] = Routines().equal_range(row.kind);
        ASSERT_NE(first, last) << row.kind;
        for (auto routine = first; routine != last; ++routine) {
            const Float got = routine->second(row.arguments);
            const Float error = std::fabs(got - row.expected);
            const Float allowed = quantile ? std::max({1e-16L * std::fabs(row.expected), row.conditioning, 0x1p-16440L})
                                           : 16 * Ulp * std::fabs(row.expected);
            auto& [relative, share] = worst[row.kind];
            if (row.expected != 0) relative = std::max(relative, error / std::fabs(row.expected));
            share = std::max(share, error / allowed);
            EXPECT_LE(error, allowed) << Describe(row, got);
        }
    }
    for (const auto& [kind, errors] : worst)
        std::printf("  %-17s worst relative error %.3Lg, worst error / allowed %.3Lg\n", kind.c_str(),
                    errors.first, errors.second);
}

// F(F^-1(p)) = p over random shapes and probabilities: the quantile's own rounding moves F
// by about f(x) x 2^-64, the rest must come from F's evaluation.
TEST(BetaFamilyInverse, RoundTripsOverRandomPoints) {
    std::mt19937_64 random(20);
    std::uniform_real_distribution<double> uniform(0, 1);
    const auto logUniform = [&](Float lo, Float hi) { return lo * std::pow(hi / lo, Float(uniform(random))); };
    for (int i = 0; i < 400; ++i) {
        const Float a = logUniform(0.01L, 1e5L), b = logUniform(0.01L, 1e5L);
        const Float p = logUniform(1e-300L, 0.5L);
        const bool upper = i % 2 != 0;
        const Float x = upper ? InvBetaDistGreater(p, a, b) : InvBetaDistLess(p, a, b);
        if (x <= 0x1p-16382L || 1 - x <= 0x1p-64L) continue;  // x or 1 - x beyond the Float's resolution
        const Float back = upper ? BetaDistGreater(x, a, b) : BetaDistLess(x, a, b);
        const Float allowed = 1e-16L + 4 * Ulp * x * BetaPDF(x, a, b) / p;
        EXPECT_LE(std::fabs(back / p - 1), allowed) << (upper ? "upper " : "lower ") << double(p) << " "
                                                     << double(a) << " " << double(b) << " " << double(x);
    }
    for (int i = 0; i < 200; ++i) {
        const Integer n1 = Integer(logUniform(1, 1e6L)), n2 = Integer(logUniform(1, 1e6L));
        const Integer df = Integer(logUniform(1, 1e6L));
        const Float p = logUniform(1e-300L, 0.5L);
        const Float x = InvFDistGreater(p, n1, n2);
        if (std::isfinite(x)) {
            const Float allowed = 1e-16L + 4 * Ulp * x * FDistPDF(x, n1, n2) / p;
            EXPECT_LE(std::fabs(FDistGreater(x, n1, n2) / p - 1), allowed) << double(p) << " " << n1 << " " << n2;
        }
        const Float y = InvFDistLess(p, n1, n2);
        const Float allowedLower = 1e-16L + 4 * Ulp * y * FDistPDF(y, n1, n2) / p;
        EXPECT_LE(std::fabs(FDistLess(y, n1, n2) / p - 1), allowedLower) << double(p) << " " << n1 << " " << n2;
        const Float t = InvStudentTLess(p, df);
        const Float allowedT = 1e-16L + 4 * Ulp * std::fabs(t) * StudentTPDF(t, df) / p;
        EXPECT_LE(std::fabs(StudentTLess(t, df) / p - 1), allowedT) << double(p) << " " << df;
    }
}

TEST(BetaFamilyInverse, BoundsSymmetryAndTheInterval) {
    // Q = 0 and Q = 1 give the ends; Q = 1/2 of a symmetric distribution its centre.
    EXPECT_TRUE(AllMatch({{InvBetaDistGreater(0, 2, 3, -1, 5), 5}, {InvBetaDistGreater(1, 2, 3, -1, 5), -1},
                          {InvBetaDistGreater(0.5L, 4, 4), 0.5L}, {InvFDistGreater(1, 3, 4), 0},
                          {InvStudentTGreater(0, 3), Infinity}, {InvStudentTGreater(1, 3), -Infinity},
                          {InvStudentTGreater(0.5L, 3), 0}}));
    EXPECT_FALSE(std::signbit(InvStudentTGreater(0.5L, 3)));
    // The two-sided 5% critical values of t(10) and the 5% critical value of F(3, 12).
    EXPECT_NEAR(double(InvStudentTGreater(0.025L, 10)), 2.2281388519862747, 1e-15);
    EXPECT_NEAR(double(InvFDistGreater(0.05L, 3, 12)), 3.4902948194976057, 1e-15);
    // The upper quantile of t is the lower one negated, bit for bit.
    for (Float q : {1e-200L, 0.01L, 0.3L, 0.7L})
        for (Integer df : {1, 5, 61, 5000}) EXPECT_EQ(InvStudentTGreater(q, df), -InvStudentTLess(q, df));
    // On [Lo, Hi] and mirrored on [Hi, Lo]: the uniform distribution (A = B = 1) is linear.
    EXPECT_TRUE(AllMatch({{InvBetaDistLess(0.25L, 1, 1, 2, 6), 3}, {InvBetaDistGreater(0.25L, 1, 1, 2, 6), 5},
                          {InvBetaDistGreater(0.25L, 1, 1, 6, 2), 3}, {InvBetaDistLess(0.25L, 1, 1, 6, 2), 5}}));
    // A quantile next to Hi is formed from Hi and its own distance from it, which a tiny
    // upper tail gives to full precision (Lo + (Hi - Lo) (1 - w) would lose it): for
    // Beta(1, 1) and Beta(2, 1) on [-1, 0], -Q and -(1 - sqrt(1 - Q)) = -Q / 2 (1 + Q / 4 ...).
    EXPECT_LE(RelativeError(InvBetaDistGreater(1e-30L, 1, 1, -1, 0), -1e-30L), Ulp);
    EXPECT_LE(RelativeError(InvBetaDistGreater(1e-30L, 2, 1, -1, 0), -0.5e-30L), Ulp);
    // Beyond the range of Float: F's upper quantile is infinite, and a tiny x underflows to 0.
    EXPECT_EQ(InvFDistGreater(1e-4000L, 1, 1), Infinity);
    EXPECT_EQ(InvBetaDistLess(1e-300L, 0.01L, 3), 0);
}

// F(1, 1) has the density 1 / (pi sqrt(x) (1 + x)): far out on either side its parts leave
// the range of Float while the density does not.
TEST(BetaFamilyInverse, DensitiesAtTheEndsOfTheRange) {
    const Float pi = 3.141592653589793238462643383279502884L;
    EXPECT_LE(RelativeError(FDistPDF(0x1p+10000L, 1, 1), 0x1p-15000L / pi), 8 * Ulp);
    EXPECT_LE(RelativeError(FDistPDF(0x1p-10000L, 1, 1), 0x1p+5000L / pi), 8 * Ulp);
    // Beta(1, b) has the density b (1 - x)^(b - 1); near x = 1 from the exact 1 - x.
    EXPECT_LE(RelativeError(BetaPDF(1 - 0x1p-60L, 1, 3), 3 * 0x1p-120L), 8 * Ulp);
    EXPECT_LE(RelativeError(BetaPDF(-0x1p-60L, 1, 3, -1, 0), 3 * 0x1p-120L), 8 * Ulp);
}

TEST(BetaFamilyInverse, UpperQuantilesCheckAsTheLowerOnes) {
    const Float nan = std::numeric_limits<Float>::quiet_NaN();
    EXPECT_TRUE(Raises([] { InvBetaDistGreater(2, 0, 1, 3, 3); }, rsValueGZero));
    EXPECT_TRUE(Raises([] { InvBetaDistGreater(2, 1, 1, 3, 3); }, rsSameValue));
    EXPECT_TRUE(Raises([&] { InvBetaDistGreater(nan, 1, 1); }, rsValue01Inc));
    EXPECT_TRUE(Raises([] { InvFDistGreater(-0.5L, 0, 1); }, rsValue01Inc));
    EXPECT_TRUE(Raises([] { InvFDistGreater(0.5L, 1, 0); }, rsDF));
    EXPECT_TRUE(Raises([] { InvFDistGreater(0, 0, 1); }, rsDF));
    EXPECT_TRUE(Raises([] { InvFDistGreater(0, 1, 1); }, rsInvalidValue));
    EXPECT_TRUE(Raises([] { InvStudentTGreater(2, 0); }, rsDF));
    EXPECT_TRUE(Raises([] { InvStudentTGreater(1.5L, 1); }, rsValue01Inc));
}

}  // namespace
