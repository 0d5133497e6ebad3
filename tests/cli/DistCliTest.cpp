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
                                  "dist normal less 1 0", "dist normal less x 0 1", "dist poisson inv 0.5 3"})
        EXPECT_EQ(RunKornum(arguments).status, 2) << arguments;
    EXPECT_EQ(RunKornum("dist --help").output.rfind("Usage: kornum dist", 0), 0u);
}

}  // namespace
