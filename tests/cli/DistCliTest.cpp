// `kornum dist` end to end.
#include "CliTestSupport.h"

#include <cmath>

namespace {

using namespace CliTest;

long double Value(const std::string& output) { return std::strtold(output.c_str(), nullptr); }

TEST(DistCli, FunctionsInversesAndTables) {
    // t with 1 degree of freedom is the Cauchy: P(T < 1) = 3/4, its 97.5% point tan(0.475 pi).
    EXPECT_NEAR(double(Value(RunKornum("dist t less 1 1").output)), 0.75, 1e-15);
    EXPECT_NEAR(double(Value(RunKornum("dist t inv 0.975 1").output)), 12.706204736174707, 1e-12);
    // Chi-square with 2 degrees of freedom: P(X > 6) = e^-3.
    EXPECT_NEAR(double(Value(RunKornum("dist chisq greater 6 2").output)), std::exp(-3.0), 1e-17);
    EXPECT_NEAR(double(Value(RunKornum("dist binomial pdf 2 10 0.5").output)), 45.0 / 1024, 1e-17);
    EXPECT_EQ(RunKornum("dist beta table 0 1 3 2 2").output, "0\t0\n0.5\t1.5\n1\t0\n");
    const Outcome bad = RunKornum("dist t less 1 0");
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.output, "kornum dist: degrees of freedom must be a whole number >= 1: '0'\nTry 'kornum dist --help'.\n");
    for (const char* arguments : {"dist", "dist normal", "dist gauss less 1 0 1", "dist normal median 1 0 1",
                                  "dist normal less 1 0", "dist normal less x 0 1", "dist poisson inv 1.5 3"})
        EXPECT_EQ(RunKornum(arguments).status, 2) << arguments;
    EXPECT_EQ(RunKornum("dist --help").output.rfind("Usage: kornum dist", 0), 0u);
}

// Small tails on either side and upper-tail inverses keep their digits; references from
// mpmath at 40 digits.
TEST(DistCli, SmallTailsAndUpperInversesKeepTheirDigits) {
    const auto expectRelative = [](const std::string& arguments, long double reference) {
        const long double value = Value(RunKornum(arguments).output);
        EXPECT_LE(std::fabs(value - reference), 1e-17L * std::fabs(reference)) << arguments;
    };
    expectRelative("dist normal less -10 0 1", 7.619853024160526065973343251599308e-24L);
    expectRelative("dist binomial greater 90 100 0.3", 2.097401166523127853201216302594445e-37L);
    expectRelative("dist poisson greater 30 4", 1.173243543146434522471781567700639e-17L);
    expectRelative("dist chisq isf 1e-300 5", 1400.640585653026869929412019827579L);
    expectRelative("dist exponential isf 1e-300 2", 345.3877639491068526026987182026546L);
    expectRelative("dist t isf 0.025 10", 2.228138851986274748395490663L);
    // Discrete quantiles are counts: Binomial(10, 0.3) has P(X <= 2) = 0.3828 and
    // P(X <= 3) = 0.6496; Poisson(4) has P(X > 8) = 0.0214 and P(X > 9) = 0.0081.
    EXPECT_EQ(RunKornum("dist binomial inv 0.5 10 0.3").output, "3\n");
    EXPECT_EQ(RunKornum("dist poisson isf 0.01 4").output, "9\n");
}

}  // namespace
