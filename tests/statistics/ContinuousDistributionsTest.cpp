// The incomplete gamma function and the chi-square, Student t, F, beta and exponential
// distributions against mpmath (tools/make_continuous_distribution_references.py): both
// tails, the densities and the inverses, at the tolerance 1e-19 and at the default one.
#include "StatisticsTestSupport.h"

#include <kornum/KornumStatistics.h>
#include <kornum/Kornummath.h>

#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>

namespace {

using namespace KornumStatistics;
using namespace KornumTest;

struct Row {
    std::string kind;
    std::vector<Float> arguments;
    Float expected;
};

std::vector<Row> References() {
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/distributions_continuous.tsv");
    std::vector<Row> rows;
    for (std::string line; std::getline(in, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream cells(line);
        Row row;
        cells >> row.kind;
        std::vector<Float> numbers;
        for (std::string cell; cells >> cell;) numbers.push_back(std::strtold(cell.c_str(), nullptr));
        row.expected = numbers.back();
        numbers.pop_back();
        row.arguments = numbers;
        rows.push_back(row);
    }
    return rows;
}

using Routine = std::function<Float(const std::vector<Float>&)>;
const std::map<std::string, Routine>& Routines() {
    static const std::map<std::string, Routine> table{
        {"igamma", [](auto& a) { return IncompleteGamma(a[0], a[1]); }},
        {"chisq_less", [](auto& a) { return ChiSquareLess(a[0], Integer(a[1])); }},
        {"chisq_greater", [](auto& a) { return ChiSquareGreater(a[0], Integer(a[1])); }},
        {"chisq_pdf", [](auto& a) { return ChiSquarePDF(a[0], Integer(a[1])); }},
        {"chisq_inv", [](auto& a) { return InvChiSquareLess(a[0], Integer(a[1])); }},
        {"t_less", [](auto& a) { return StudentTLess(a[0], Integer(a[1])); }},
        {"t_greater", [](auto& a) { return StudentTGreater(a[0], Integer(a[1])); }},
        {"t_pdf", [](auto& a) { return StudentTPDF(a[0], Integer(a[1])); }},
        {"t_inv", [](auto& a) { return InvStudentTLess(a[0], Integer(a[1])); }},
        {"f_less", [](auto& a) { return FDistLess(a[0], Integer(a[1]), Integer(a[2])); }},
        {"f_greater", [](auto& a) { return FDistGreater(a[0], Integer(a[1]), Integer(a[2])); }},
        {"f_pdf", [](auto& a) { return FDistPDF(a[0], Integer(a[1]), Integer(a[2])); }},
        {"f_inv", [](auto& a) { return InvFDistLess(a[0], Integer(a[1]), Integer(a[2])); }},
        {"beta_less", [](auto& a) { return BetaDistLess(a[0], a[1], a[2]); }},
        {"beta_greater", [](auto& a) { return BetaDistGreater(a[0], a[1], a[2]); }},
        {"beta_pdf", [](auto& a) { return BetaPDF(a[0], a[1], a[2]); }},
        {"beta_inv", [](auto& a) { return InvBetaDistLess(a[0], a[1], a[2]); }},
        {"exp_less", [](auto& a) { return ExponentialLess(a[0], a[1]); }},
        {"exp_greater", [](auto& a) { return ExponentialGreater(a[0], a[1]); }},
        {"exp_pdf", [](auto& a) { return ExponentialPDF(a[0], a[1]); }},
    };
    return table;
}

// The relative error allowed for each kind of routine.
Float Allowed(const std::string& kind) {
    if (kind.ends_with("_inv")) return 1e-16L;
    if (kind.ends_with("_pdf")) return 16 * 0x1p-63L;
    return 1e-17L;
}

TEST(ContinuousDistributions, AgainstMpmathAtTheTightTolerance) {
    const ToleranceScope tight(1e-19L);
    std::map<std::string, Float> worst;
    const std::vector<Row> rows = References();
    ASSERT_GT(rows.size(), 800u);
    for (const Row& row : rows) {
        if (row.expected < 1e-300L && !row.kind.ends_with("_inv")) continue;  // below the promised range
        const Float got = Routines().at(row.kind)(row.arguments);
        const Float error = row.expected == 0 ? std::fabs(got) : std::fabs(got / row.expected - 1);
        worst[row.kind] = std::max(worst[row.kind], error);
        EXPECT_LE(error, Allowed(row.kind)) << row.kind << " " << double(row.arguments[0]) << " "
                                           << double(row.arguments[1]) << ": " << double(got) << " vs "
                                           << double(row.expected);
    }
    for (const auto& [kind, error] : worst) std::printf("  %-14s worst relative error %.3Lg\n", kind.c_str(), error);
}

TEST(ContinuousDistributions, TheDefaultToleranceGivesFourTimesIt) {
    Float worst = 0;
    for (const Row& row : References())
        if (row.kind == "igamma" && row.expected > 1e-300L)
            worst = std::max(worst, std::fabs(IncompleteGamma(row.arguments[0], row.arguments[1]) / row.expected - 1));
    EXPECT_LE(worst, 4 * Kornumglobals::KorTolerance);
}

// Only the incomplete gamma stops at the tolerance in force: the chi-square tails are
// summed to the last bit at the default tolerance too.
TEST(ContinuousDistributions, ChiSquareTailsDoNotStopAtTheTolerance) {
    for (const Row& row : References()) {
        if ((row.kind != "chisq_less" && row.kind != "chisq_greater") || row.expected <= 1e-300L) continue;
        EXPECT_LE(std::fabs(Routines().at(row.kind)(row.arguments) / row.expected - 1), Allowed(row.kind))
            << row.kind << " " << double(row.arguments[0]) << " " << double(row.arguments[1]);
    }
}

// The F and beta tails take closed forms where the shapes allow them (finite series for
// whole shapes, powers for half-whole ones, the arcsine and Cauchy laws); the public
// incomplete beta keeps the continued fraction for every shape, so each checks the other,
// far into both tails (x and 1 - x below are exact).
TEST(ContinuousDistributions, ClosedFormsAgreeWithTheContinuedFraction) {
    const auto agree = [](Float got, Float expected, const char* what, Float a, Float b, Float x) {
        if (expected < 1e-300L) return;
        EXPECT_LE(std::fabs(got / expected - 1), 1e-17L)
            << what << " (" << double(a) << ", " << double(b) << ") at " << double(x);
    };
    const std::pair<Float, Float> shapes[] = {{0.5L, 0.5L}, {1, 2.5L}, {1, 7.5L}, {3, 1},   {2.5L, 40},
                                              {40, 2.5L},   {7, 12},   {0.3L, 3}, {12, 0.7L}, {1, 1}};
    for (const auto& [a, b] : shapes)
        for (int k = 1; k <= 62; ++k)
            for (const Float x : {std::ldexp(Float(1), -k), 1 - std::ldexp(Float(1), -k), Float(k) / 63}) {
                agree(BetaDistLess(x, a, b), Kornummath::IncompleteBeta(x, a, b), "less", a, b, x);
                agree(BetaDistGreater(x, a, b), Kornummath::IncompleteBeta(1 - x, b, a), "greater", a, b, x);
            }
    // F(1, 1) on the small tail, at X = 2^-k: y = X / (1 + X) rounded is still good to
    // 2^-64 there, and the large tail is its complement.
    for (int k = 0; k <= 60; ++k) {
        const Float X = std::ldexp(Float(1), -k);
        const Float tail = Kornummath::IncompleteBeta(X / (1 + X), 0.5L, 0.5L);
        agree(FDistLess(X, 1, 1), tail, "F less", 1, 1, X);
        agree(FDistGreater(1 / X, 1, 1), tail, "F greater", 1, 1, 1 / X);
        EXPECT_LE(std::fabs(FDistLess(X, 1, 1) + FDistGreater(X, 1, 1) - 1), 0x1p-62L) << double(X);
    }
}

}  // namespace
