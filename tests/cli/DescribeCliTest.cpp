// `kornum describe` end to end: the program is run as a user runs it.
#include "CliTestSupport.h"

namespace {

using namespace CliTest;

using DescribeCli = CliFiles;

TEST_F(DescribeCli, ReportsFilesAndStandardInputAndRejectsBadInputAndOptions) {
    const std::string a = File("a.txt", "2 4\t4\n4\n");
    const std::string b = File("b.txt", "  5\r\n5 7 \n\n9");  // any white space separates
    const Outcome outcome = RunKornum("describe --population " + a + " " + b);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output,
              "Number of Values:\t8\nMaximum:\t9.0000\nMinimum:\t2.0000\nRange:\t7.0000\n"
              "Sum:\t40.0000\nSum of Squares:\t232.0000\nMean:\t5.0000\nMode:\t4.0000\n"
              "Median:\t4.5000\nVariance:\t4.0000\nStandard Deviation:\t2.0000\n"
              "Kurtosis:\t-0.2188\nSkew:\t0.6562\nFirst Quartile:\t4.0000\n"
              "Third Quartile:\t6.0000\nInter-Quartile Range:\t2.0000\n");

    const Outcome piped = RunKornum("describe --decimals 1", "1.5 2.5");
    EXPECT_EQ(piped.status, 0);
    EXPECT_NE(piped.output.find("Mean:\t2.0\n"), std::string::npos) << piped.output;
    EXPECT_NE(piped.output.find("Variance:\t0.5\n"), std::string::npos);  // a sample by default
    EXPECT_EQ(RunKornum("describe -", "").output, "The vector is empty\n");

    // Bad input names the file, the line and the text, and prints no report.
    const std::string file = File("bad.txt", "1 2\n3 x4 5\n");
    const Outcome bad = RunKornum("describe " + file);
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.output, "kornum describe: " + file + ":2: 'x4' is not a valid number\n");
    const Outcome missing = RunKornum("describe " + (directory / "none.txt").string());
    EXPECT_EQ(missing.status, 2);
    EXPECT_NE(missing.output.find("No such file or directory"), std::string::npos);
    for (const char* arguments : {"describe --decimals 300", "describe --decimals", "describe --frobnicate", "frobnicate"})
        EXPECT_EQ(RunKornum(arguments).status, 2) << arguments;
    const Outcome help = RunKornum("describe --help");
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.output.rfind("Usage: kornum describe", 0), 0u);
    EXPECT_EQ(RunKornum("--version").output.rfind("kornum ", 0), 0u);
}

}  // namespace
