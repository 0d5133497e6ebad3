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
              "Number of Values:\t8\nMaximum:\t9\nMinimum:\t2\nRange:\t7\n"
              "Sum:\t40\nSum of Squares:\t232\nMean:\t5\nMode:\t4\n"
              "Median:\t4.5\nVariance:\t4\nStandard Deviation:\t2\n"
              "Kurtosis:\t-0.21875\nSkew:\t0.65625\nFirst Quartile:\t4\n"
              "Third Quartile:\t6\nInter-Quartile Range:\t2\n");  // every value exact in binary
    // --decimals gives the component's own report, fixed decimals.
    EXPECT_NE(RunKornum("describe --population --decimals 4 " + a + " " + b).output.find("Kurtosis:\t-0.2188\nSkew:\t0.6562\n"),
              std::string::npos);

    const Outcome piped = RunKornum("describe --decimals 1", "1.5 2.5");
    EXPECT_EQ(piped.status, 0);
    EXPECT_NE(piped.output.find("Mean:\t2.0\n"), std::string::npos) << piped.output;
    EXPECT_NE(piped.output.find("Variance:\t0.5\n"), std::string::npos);  // a sample by default
    const Outcome empty = RunKornum("describe -", " \n");
    EXPECT_EQ(empty.status, 2);
    EXPECT_EQ(empty.output, "kornum describe: no numbers in the input\n");

    // Bad input names the file, the line and the text, and prints no report.
    const std::string file = File("bad.txt", "1 2\n3 x4 5\n");
    const Outcome bad = RunKornum("describe " + file);
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.output, "kornum describe: " + file + ":2: field 2: not a number: 'x4'\n");
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

TEST_F(DescribeCli, ReadsOneFieldOfEachRecordAfterAHeader) {
    // CSV with a header, a blank line, blanks around a field and CRLF line ends.
    const std::string csv = File("data.csv", "id,flow,note\r\n1,2.5,x\r\n2, 4.5 ,y\r\n\r\n3,6.5,z\r\n");
    const Outcome outcome = RunKornum("describe --header --delimiter , --field 2 --decimals 2 " + csv);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_NE(outcome.output.find("Number of Values:\t3\nMaximum:\t6.50\n"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("Mean:\t4.50\n"), std::string::npos);
    // A delimiter alone reads field 1; a tab is written \t; white space separates fields
    // when only --field is given.
    EXPECT_NE(RunKornum("describe --delimiter , -", "7,x\n9,y\n").output.find("Sum:\t16\n"), std::string::npos);
    EXPECT_NE(RunKornum("describe --delimiter '\\t' --field 2 -", "a\t1\nb\t3\n").output.find("Mean:\t2\n"),
              std::string::npos);
    EXPECT_NE(RunKornum("describe --field 2 -", "  a   10\nb 20 c\n").output.find("Sum:\t30\n"), std::string::npos);

    const Outcome missing = RunKornum("describe --field 3 --delimiter , " + csv);
    EXPECT_EQ(missing.status, 2);
    EXPECT_EQ(missing.output, "kornum describe: " + csv + ":1: field 3: not a number: 'note'\n");
    const Outcome short_line = RunKornum("describe --field 2 -", "1 2\n3\n");
    EXPECT_EQ(short_line.status, 2);
    EXPECT_EQ(short_line.output, "kornum describe: standard input:2: field 2: the record has only 1 field\n");
    for (const char* arguments : {"describe --field 0", "describe --field x", "describe --field", "describe --delimiter ab",
                                  "describe --delimiter"})
        EXPECT_EQ(RunKornum(arguments, "1").status, 2) << arguments;
}

// A file larger than one read block: lines cut by a block's end are read whole, and
// line numbers run on across blocks.
TEST_F(DescribeCli, ReadsLargeFilesInBlocksOfWholeLines) {
    std::string text;
    for (int i = 0; i < 3'000'000; ++i) text += "12\n";
    const std::string good = File("large.txt", text);
    const Outcome outcome = RunKornum("describe --decimals 0 " + good);
    EXPECT_NE(outcome.output.find("Number of Values:\t3000000\nMaximum:\t12\n"), std::string::npos) << outcome.output;
    EXPECT_NE(outcome.output.find("Sum:\t36000000\n"), std::string::npos);
    const std::string bad = File("bad.txt", text + "1x\n");
    EXPECT_EQ(RunKornum("describe " + bad).output, "kornum describe: " + bad + ":3000001: field 1: not a number: '1x'\n");
    // A large block is read in two halves at once: the first failure in the text is named.
    for (const int line : {1'000'000, 2'000'000}) {
        std::string flawed = text;
        flawed.replace(std::size_t(line - 1) * 3, 2, "x0");
        flawed.replace(std::size_t(2'500'000) * 3, 2, "yy");
        const std::string path = File("flawed.txt", flawed);
        EXPECT_EQ(RunKornum("describe " + path).output,
                  "kornum describe: " + path + ":" + std::to_string(line) + ": field 1: not a number: 'x0'\n");
    }
}

TEST_F(DescribeCli, JsonHoldsTheReportWithNullsForMissingStatistics) {
    const Outcome outcome = RunKornum("describe --json --decimals 1 -", "1 2 4");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output,
              "{\"count\": 3, \"maximum\": 4.0, \"minimum\": 1.0, \"range\": 3.0, \"sum\": 7.0, "
              "\"sum_of_squares\": 21.0, \"mean\": 2.3, \"mode\": null, \"median\": 2.0, \"variance\": 2.3, "
              "\"standard_deviation\": 1.5, \"kurtosis\": null, \"skew\": 0.9, \"first_quartile\": 1.2, "
              "\"third_quartile\": 3.5, \"interquartile_range\": 2.2}\n");  // quartiles at n / 4 + 1/2: 1.25, 3.5
}

}  // namespace
