// Accuracy of the special functions against the 60-digit tables in tests/data
// (made by tools/make_gamma_beta_function_references.py), plus identities that can be checked by hand.
#include <kornum/Kornummath.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <limits>
#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace {

using Kornummath::Float;
constexpr Float Ulp = 0x1p-63L;

struct Row {
    std::vector<Float> values;  // inputs, then the expected value
    std::string category;
};

std::vector<Row> ReadTable(const std::string& name) {
    std::ifstream in(std::string(KORNUM_TEST_DATA_DIR) + "/" + name);
    EXPECT_TRUE(in.good()) << "missing table " << name;
    std::vector<Row> rows;
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line[0] == '#') continue;
        std::istringstream fields(line);
        std::string field;
        Row row;
        while (fields >> field) {
            char* end = nullptr;
            const Float v = std::strtold(field.c_str(), &end);
            if (*end == '\0') row.values.push_back(v);
            else row.category = field;
        }
        rows.push_back(row);
    }
    EXPECT_FALSE(rows.empty()) << name;
    return rows;
}

Float RelativeError(Float got, Float expected) {
    return std::fabs((got - expected) / expected);
}

// Worst error seen per category, printed and recorded in the test's XML output.
class WorstErrors {
public:
    explicit WorstErrors(std::string function) : function_(std::move(function)) {}
    void Add(const std::string& category, Float error) {
        Float& worst = worst_[category];
        if (error > worst || std::isnan(error)) worst = error;
    }
    Float operator[](const std::string& category) const { return worst_.at(category); }
    ~WorstErrors() {
        for (const auto& [category, worst] : worst_) {
            std::printf("[ accuracy ] %s %s: %.3Lg ulps (%.3Lg relative)\n", function_.c_str(),
                        category.c_str(), worst / Ulp, worst);
            testing::Test::RecordProperty(function_ + "_" + category + "_max_ulps",
                                          std::to_string(double(worst / Ulp)));
        }
    }

private:
    std::string function_;
    std::map<std::string, Float> worst_;
};

TEST(GammaBetaFunctions, GammaMatchesReferenceTable) {
    WorstErrors worst("Gamma");
    for (const Row& r : ReadTable("gammafn_gamma.tsv")) {
        const Float x = r.values[0], expected = r.values[1];
        const Float error = RelativeError(Kornummath::Gamma(x), expected);
        worst.Add(r.category, error);
        EXPECT_LE(error, 8 * Ulp) << "Gamma(" << double(x) << ") " << r.category;
    }
}

TEST(GammaBetaFunctions, LnGammaMatchesReferenceTable) {
    WorstErrors relative("LnGamma");
    WorstErrors absolute("LnGamma_absolute");
    for (const Row& r : ReadTable("gammafn_lngamma.tsv")) {
        const Float x = r.values[0], expected = r.values[1];
        const Float got = Kornummath::LnGamma(x);
        const Float error = RelativeError(got, expected);
        // Near a zero of ln|Gamma| (x = 1, x = 2, and where |Gamma| = 1 for negative x)
        // the result is small and only its absolute error is meaningful.
        const bool nearZero = std::fabs(expected) < 1;
        (nearZero ? absolute : relative).Add(r.category, nearZero ? std::fabs(got - expected) : error);
        EXPECT_TRUE(error <= 8 * Ulp || std::fabs(got - expected) <= 1e-19L)
            << "LnGamma(" << double(x) << ") " << r.category;
    }
}

TEST(GammaBetaFunctions, BetaMatchesReferenceTable) {
    WorstErrors worst("Beta");
    for (const Row& r : ReadTable("gammafn_beta.tsv")) {
        const Float a = r.values[0], b = r.values[1], expected = r.values[2];
        const Float error = RelativeError(Kornummath::Beta(a, b), expected);
        worst.Add(r.category, error);
        EXPECT_LE(error, 16 * Ulp) << "Beta(" << double(a) << ", " << double(b) << ")";
        EXPECT_EQ(Kornummath::Beta(a, b), Kornummath::Beta(b, a));
    }
}

TEST(GammaBetaFunctions, IncompleteBetaMatchesReferenceTable) {
    WorstErrors worst("IncompleteBeta");
    for (const Row& r : ReadTable("gammafn_ibeta.tsv")) {
        const Float x = r.values[0], a = r.values[1], b = r.values[2], expected = r.values[3];
        const Float error = RelativeError(Kornummath::IncompleteBeta(x, a, b), expected);
        worst.Add(r.category, error);
        // Deep tails and shapes up to 1e4 included: the prefix's exponent is formed in two
        // Floats or cancelled analytically, and the continued fraction is free of the
        // cancellation near the centre.
        EXPECT_LE(error, 64 * Ulp) << "I(" << double(x) << "; " << double(a) << ", " << double(b)
                                   << ") " << r.category;
    }
}

TEST(GammaBetaFunctions, InverseIncompleteBetaMatchesReferenceTable) {
    WorstErrors worst("InverseIncompleteBeta");
    for (const Row& r : ReadTable("gammafn_ibeta_inv.tsv")) {
        const Float p = r.values[0], a = r.values[1], b = r.values[2], expected = r.values[3];
        const Float error = RelativeError(Kornummath::InverseIncompleteBeta(p, a, b), expected);
        worst.Add(r.category, error);
        EXPECT_LE(error, 1e-16L) << "inverse(" << double(p) << "; " << double(a) << ", "
                                 << double(b) << ")";
    }
}

TEST(GammaBetaFunctions, GammaAndBetaIdentities) {
    Float factorial = 1;  // (n - 1)!, exact up to 20!
    for (int n = 1; n <= 21; ++n) {
        EXPECT_LE(RelativeError(Kornummath::Gamma(n), factorial), 2 * Ulp) << n;
        factorial *= n;
    }
    const Float pi = 3.141592653589793238462643383279502884L;
    const Float half = Kornummath::Gamma(0.5L);
    EXPECT_LE(RelativeError(half * half, pi), 4 * Ulp);
    EXPECT_LE(RelativeError(Kornummath::Gamma(-0.5L), -2 * std::sqrt(pi)), 4 * Ulp);
    EXPECT_EQ(Kornummath::LnGamma(1), 0);
    EXPECT_EQ(Kornummath::LnGamma(2), 0);
    EXPECT_LE(RelativeError(Kornummath::LnGamma(0.5L), std::log(pi) / 2), 2 * Ulp);
    // B(1, b) = 1 / b; B(1/2, 1/2) = pi; B(2, 3) = 1/12.
    for (Float b : {0.25L, 1.0L, 3.0L, 77.5L, 1000.0L, 5000.0L})
        EXPECT_LE(RelativeError(Kornummath::Beta(1, b), 1 / b), 4 * Ulp) << double(b);
    EXPECT_LE(RelativeError(Kornummath::Beta(0.5L, 0.5L), pi), 8 * Ulp);
    EXPECT_LE(RelativeError(Kornummath::Beta(2, 3), 1.0L / 12), 8 * Ulp);
    // Poles, overflow and underflow of Gamma; Beta far beyond the range of Gamma.
    EXPECT_EQ(Kornummath::Gamma(0), std::numeric_limits<Float>::infinity());
    EXPECT_TRUE(std::isnan(Kornummath::Gamma(-3)));
    EXPECT_EQ(Kornummath::Gamma(1800.5L), std::numeric_limits<Float>::infinity());
    EXPECT_EQ(Kornummath::Gamma(-2000.5L), 0);
    // Beta(1/2, b) -> sqrt(pi / b) for b -> infinity.
    EXPECT_LE(RelativeError(Kornummath::Beta(0.5L, 0x1p+14000L), std::sqrt(pi) * 0x1p-7000L),
              1e-15L);
    EXPECT_TRUE(std::isnan(Kornummath::Beta(0, 1)));
    EXPECT_TRUE(std::isnan(Kornummath::Beta(1, -2)));
}

TEST(GammaBetaFunctions, IncompleteBetaIdentitiesAndEdges) {
    for (Float x : {0.0L, 1e-30L, 0.125L, 0.3L, 0.5L, 0.9L, 1.0L}) {
        EXPECT_LE(std::fabs(Kornummath::IncompleteBeta(x, 1, 1) - x), 2 * Ulp * x) << double(x);
        // I_x(a, 1) = x^a, I_x(1, b) = 1 - (1 - x)^b.
        EXPECT_LE(std::fabs(Kornummath::IncompleteBeta(x, 3.5L, 1) - std::pow(x, 3.5L)),
                  8 * Ulp * std::pow(x, 3.5L));
    }
    EXPECT_LE(RelativeError(Kornummath::IncompleteBeta(0.25L, 1, 2), 0.4375L), 8 * Ulp);
    // A subnormal x: I_x(1/2, 1/2) = (2 / pi) asin(sqrt x), here (2 / pi) 2^-8220.
    EXPECT_LE(RelativeError(Kornummath::IncompleteBeta(0x1p-16440L, 0.5L, 0.5L),
                            0x1p-8220L / 1.570796326794896619231321691639751442L),
              8 * Ulp);
    // I_x(a, b) = 1 - I_{1-x}(b, a), over both sides of the crossover and large shapes.
    const Float cases[][3] = {{0.2L, 2, 5},    {0.75L, 0.5L, 0.5L}, {0.4L, 30, 40},
                              {0.51L, 800, 700}, {0.01L, 0.5L, 90},   {0.96L, 3000, 100}};
    for (const auto& c : cases) {
        const Float lower = Kornummath::IncompleteBeta(c[0], c[1], c[2]);
        const Float upper = Kornummath::IncompleteBeta(1 - c[0], c[2], c[1]);
        EXPECT_NEAR(double(lower + upper), 1.0, 1e-17) << double(c[0]);
    }
    // I_{1/2}(a, a) = 1/2 exactly: the crossover itself, reached through the centre form
    // of the prefix from a = 15 on, for shapes well past the reference tables.
    for (Float a : {15.0L, 100.5L, 3000.0L, 1e6L})
        EXPECT_LE(std::fabs(Kornummath::IncompleteBeta(0.5L, a, a) - 0.5L), 8 * Ulp) << double(a);
    EXPECT_EQ(Kornummath::IncompleteBeta(0, 2, 3), 0);
    EXPECT_EQ(Kornummath::IncompleteBeta(1, 2, 3), 1);
    EXPECT_TRUE(std::isnan(Kornummath::IncompleteBeta(1.5L, 2, 3)));
    EXPECT_TRUE(std::isnan(Kornummath::IncompleteBeta(0.5L, 0, 3)));
    EXPECT_TRUE(std::isnan(Kornummath::IncompleteBeta(0.5L, 2, -1)));
}

TEST(GammaBetaFunctions, InverseIncompleteBetaEdgesAndRoundTrips) {
    EXPECT_EQ(Kornummath::InverseIncompleteBeta(0, 2, 3), 0);
    EXPECT_EQ(Kornummath::InverseIncompleteBeta(1, 2, 3), 1);
    // I_x(1, 1) = x: the quantile carries the few ulps of the incomplete beta it inverts.
    EXPECT_LE(RelativeError(Kornummath::InverseIncompleteBeta(0.3L, 1, 1), 0.3L), 4 * Ulp);
    EXPECT_TRUE(std::isnan(Kornummath::InverseIncompleteBeta(-0.1L, 2, 3)));
    EXPECT_TRUE(std::isnan(Kornummath::InverseIncompleteBeta(0.5L, 2, 0)));
    // Round trips where the inverse is well conditioned, including large shapes.
    const Float shapes[][2] = {{0.5L, 0.5L}, {2, 9}, {40, 3}, {250, 4000}, {1e4L, 1e4L}};
    for (const auto& s : shapes) {
        for (Float p : {1e-10L, 0.01L, 0.5L, 0.99L, 1 - 1e-10L}) {
            const Float x = Kornummath::InverseIncompleteBeta(p, s[0], s[1]);
            ASSERT_TRUE(x >= 0 && x <= 1) << double(p);
            if (x == 1) continue;  // 1 - x below the resolution of a Float near 1
            EXPECT_LE(RelativeError(Kornummath::IncompleteBeta(x, s[0], s[1]), p), 1e-14L)
                << double(p) << " " << double(s[0]) << " " << double(s[1]);
        }
    }
}

}  // namespace
