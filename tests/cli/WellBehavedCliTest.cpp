// The program as a well-behaved tool: no wrong answer with exit status 0, no hang, no
// crash, and messages that say which parameter or which piece of input is wrong.
#include "CliTestSupport.h"

#include <cmath>
#include <set>

namespace {

using namespace CliTest;

using WellBehavedCli = CliFiles;

std::string Kornum() { return KORNUM_CLI_PATH; }

// The lines of an output.
std::vector<std::string> Lines(const std::string& text) {
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
        lines.push_back(text.substr(start, end - start));
    return lines;
}

void ExpectUsageError(const std::string& arguments, const std::string& message) {
    const Outcome outcome = RunKornum(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_EQ(outcome.output.substr(0, outcome.output.find('\n')), message) << arguments;
}

TEST_F(WellBehavedCli, WholeNumbersAreRequiredWhereTheFunctionsTakeThem) {
    ExpectUsageError("dist t less 1 2.5", "kornum dist: degrees of freedom must be a whole number >= 1: '2.5'");
    ExpectUsageError("dist chisq inv 0.5 0", "kornum dist: degrees of freedom must be a whole number >= 1: '0'");
    ExpectUsageError("dist f less 1 3 4.5", "kornum dist: denominator degrees of freedom must be a whole number >= 1: '4.5'");
    ExpectUsageError("dist binomial less 3 10.5 0.5", "kornum dist: trials must be a whole number >= 0: '10.5'");
    ExpectUsageError("dist poisson pdf 2.5 4", "kornum dist: k must be a whole number >= 0: '2.5'");
    ExpectUsageError("dist normal table -3 3 10.5 0 1", "kornum dist: N must be a whole number >= 2: '10.5'");
    ExpectUsageError("dist t less 1 3e9",
                     "kornum dist: degrees of freedom must be a whole number from 1 to 2147483647: '3e9'");
    // A whole number may be spelt with an exponent: 1e1 degrees of freedom are 10.
    EXPECT_EQ(RunKornum("dist t less 0 1e1").output, "0.5\n");
}

TEST_F(WellBehavedCli, ParametersOutsideTheirRangeAreNamed) {
    ExpectUsageError("random binomial 10 1.5 -n 3", "kornum random: probability must be a number from 0 to 1: '1.5'");
    ExpectUsageError("random binomial1 10 -0.1 -n 3", "kornum random: probability must be a number from 0 to 1: '-0.1'");
    ExpectUsageError("random weibull -2 -n 3", "kornum random: shape A must be a finite number > 0: '-2'");
    ExpectUsageError("random poisson -1 -n 3", "kornum random: mean must be a finite number >= 0: '-1'");
    ExpectUsageError("random poisson inf -n 3", "kornum random: mean must be a finite number >= 0: 'inf'");
    ExpectUsageError("random poisson nan -n 3", "kornum random: mean must be a finite number >= 0: 'nan'");
    ExpectUsageError("random binomial -10 0.5 -n 3", "kornum random: trials must be a whole number >= 0: '-10'");
    ExpectUsageError("random invgauss nan 1 -n 3", "kornum random: index must be a finite number: 'nan'");
    ExpectUsageError("random vonmises nan -n 3", "kornum random: concentration must be a finite number >= 0: 'nan'");
    ExpectUsageError("random vonmises inf -n 3", "kornum random: concentration must be a finite number >= 0: 'inf'");
    ExpectUsageError("random normal -n 2 --seed 18446744073709551616",
                     "kornum random: --seed must be a whole number from 0 to 18446744073709551615: '18446744073709551616'");
    ExpectUsageError("random normal -n -1", "kornum random: -n must be a whole number >= 0: '-1'");
    ExpectUsageError("dist normal less 0 0 -1", "kornum dist: standard deviation must be a finite number > 0: '-1'");
    ExpectUsageError("dist normal inv 1.5 0 1", "kornum dist: P must be a number from 0 to 1: '1.5'");
    ExpectUsageError("dist exponential less 1 nan", "kornum dist: rate must be a finite number > 0: 'nan'");
}

TEST_F(WellBehavedCli, GeneratorsFinishAtTheirParameterEdges) {
    // Probability 0 and 1 have exact answers: no success, or all of them.
    EXPECT_EQ(RunKornum("random binomial1 10 0 -n 3 --seed 1").output, "0\n0\n0\n");
    EXPECT_EQ(RunKornum("random binomial1 10 1 -n 3 --seed 1").output, "10\n10\n10\n");
    EXPECT_EQ(RunKornum("random binomial 10 1 -n 2 --seed 1").output, "10\n10\n");
    EXPECT_EQ(RunKornum("random poisson 0 -n 2 --seed 1").output, "0\n0\n");
    // A mean too large for the method, and an extreme concentration: an answer or an
    // error, within the time limit, never a hang or a crash.
    for (const char* arguments : {"random poisson 1e30 -n 3 --seed 1", "random invgauss 1 1e300 -n 3 --seed 1",
                                  "random binomial 9223372036854775807 0.5 -n 3 --seed 1"}) {
        const Outcome outcome = RunKornum(arguments);
        EXPECT_TRUE(outcome.status == 0 || outcome.status == 2) << arguments << ": " << outcome.status;
    }
    const Outcome huge = RunKornum("random poisson 1e30 -n 3 --seed 1");
    if (huge.status == 2) {
        EXPECT_EQ(huge.output.rfind("kornum random: poisson 1e30: ", 0), 0u) << huge.output;
    }
}

TEST_F(WellBehavedCli, NonFiniteInputIsBadInputUnlessAllowed) {
    const Outcome matrix = RunKornum("matrix inverse -", "nan 0\n0 1\n");
    EXPECT_EQ(matrix.status, 2);
    EXPECT_EQ(matrix.output, "kornum matrix: standard input:1: field 1: not a finite number: 'nan'\n");
    const Outcome describe = RunKornum("describe", "1\n2\nNaN\n3\n");
    EXPECT_EQ(describe.status, 2);
    EXPECT_EQ(describe.output, "kornum describe: standard input:3: field 1: not a finite number: 'NaN'\n");
    const Outcome allowed = RunKornum("describe --allow-nonfinite --json", "1 inf");
    EXPECT_EQ(allowed.status, 0);
    EXPECT_NE(allowed.output.find("\"count\": 2, \"maximum\": null"), std::string::npos) << allowed.output;
}

TEST_F(WellBehavedCli, NumbersArePrintedInTheShortestFormThatReadsBack) {
    EXPECT_EQ(RunKornum("matrix transpose -", "1e-7 2.5e-9\n").output, "1e-07\n2.5e-09\n");
    EXPECT_EQ(RunKornum("matrix det -", "1e-40\n").output, "1e-40\n");
    const std::vector<std::string> big = Lines(RunKornum("describe", "1e4930").output);
    ASSERT_GE(big.size(), 2u);
    EXPECT_EQ(big[1], "Maximum:\t1e+4930");
    // The JSON form keeps every digit: the mean of 1, 2 and 4 reads back as 7 / 3.
    const std::string json = RunKornum("describe --json", "1 2 4").output;
    const std::size_t mean = json.find("\"mean\": ");
    ASSERT_NE(mean, std::string::npos);
    EXPECT_EQ(std::strtold(json.c_str() + mean + 8, nullptr), 7.0L / 3);
    // --decimals gives fixed decimals where asked.
    EXPECT_EQ(RunKornum("dist normal less 0 0 1 --decimals=3").output, "0.500\n");
    EXPECT_EQ(RunKornum("matrix det --decimals 2 -", "1e-40\n").output, "0.00\n");
}

TEST_F(WellBehavedCli, TablesStreamInConstantMemory) {
    // A billion points under a 300 MB address-space limit: the first lines come out and
    // the program ends when the reader stops.
#ifdef __SANITIZE_ADDRESS__
    const std::string limit;  // the address sanitizer reserves terabytes of address space
#else
    const std::string limit = "ulimit -v 300000; ";
#endif
    const Outcome outcome =
        RunShell(limit + "timeout 60 " + Kornum() + " dist normal table -3 3 1e9 0 1 2>&1 | head -n 2");
    EXPECT_EQ(outcome.output.substr(0, outcome.output.find('\t')), "-3");
    EXPECT_EQ(Lines(outcome.output).size(), 2u) << outcome.output;
    // The streamed points are the library table's points.
    EXPECT_EQ(RunKornum("dist beta table 0 1 5 2 2 --decimals 4").output,
              "0.0000\t0.0000\n0.2500\t1.1250\n0.5000\t1.5000\n0.7500\t1.1250\n1.0000\t0.0000\n");
    EXPECT_EQ(RunKornum("dist binomial table 1 2 0 2 0.5").output, "1\t0.5\n2\t0.25\n");
}

TEST_F(WellBehavedCli, FailedWritesAreErrorsAndNothingIsLeftHalfWritten) {
    const std::string data = File("data.txt", "1 2 3\n");
    for (const std::string& command : std::vector<std::string>{"describe " + data, "matrix transpose " + data, "dist normal less 0 0 1", "random normal -n 10 --seed 1",
          "dist normal table 0 1 100000 0 1", "describe --help"}) {
        const Outcome outcome = RunShell(Kornum() + " " + command + " 2>&1 >/dev/full");
        EXPECT_EQ(outcome.status, 1) << command;
        EXPECT_EQ(outcome.output, "kornum: write error: No space left on device\n") << command;
    }
}

TEST_F(WellBehavedCli, BadInputIsShownEscapedAndCut) {
    const std::string control = File("control.txt", "1\n\x1b[31mred\n");
    EXPECT_EQ(RunKornum("describe " + control).output,
              "kornum describe: " + control + ":2: field 1: not a number: '\\x1b[31mred'\n");
    const std::string binary = File("binary.txt", "2 \xff\xfe\x01 3\n");
    EXPECT_EQ(RunKornum("describe " + binary).output,
              "kornum describe: " + binary + ":1: field 2: not a number: '\\xff\\xfe\\x01'\n");
    const std::string utf8 = File("utf8.txt", "caf\xc3\xa9\n");  // kept as the character it is
    EXPECT_EQ(RunKornum("describe " + utf8).output, "kornum describe: " + utf8 + ":1: field 1: not a number: 'caf\xc3\xa9'\n");
    const std::string longToken(100, 'x');
    const std::string longFile = File("long.txt", longToken + "\n");
    EXPECT_EQ(RunKornum("describe " + longFile).output,
              "kornum describe: " + longFile + ":1: field 1: not a number: '" + std::string(40, 'x') + "...'\n");
    EXPECT_EQ(RunKornum("describe --delimiter ';' --field 2 -", "1;1e99999\n").output,
              "kornum describe: standard input:1: field 2: out of the range of Float: '1e99999'\n");
    // Arguments are quoted the same way.
    EXPECT_EQ(RunKornum("dist $(printf 'x\\033y') less 1").output.substr(0, 37), "kornum dist: unknown family 'x\\x1by'\n");
}

TEST_F(WellBehavedCli, OneInputLayerForCsvWithQuotesAndByteOrderMarks) {
    const std::string csv = File("quoted.csv", "\xEF\xBB\xBFname,value\n\"a, b\",\"2.5\"\n\"multi\nline\",3.5\n\"say \"\"x\"\"\",4\n");
    const Outcome outcome = RunKornum("describe --json --header --delimiter , --field 2 " + csv);
    EXPECT_EQ(outcome.status, 0) << outcome.output;
    EXPECT_EQ(outcome.output.rfind("{\"count\": 3, \"maximum\": 4, \"minimum\": 2.5, \"range\": 1.5, \"sum\": 10,", 0), 0u)
        << outcome.output;
    // Line numbers count the line ends inside quoted fields.
    const std::string bad = File("bad.csv", "\"multi\nline\",1\nx,y\n");
    EXPECT_EQ(RunKornum("describe --delimiter , --field 2 " + bad).output,
              "kornum describe: " + bad + ":3: field 2: not a number: 'y'\n");
    // A byte-order mark is skipped in white-space mode too, and the matrix reader shares all of it.
    EXPECT_EQ(Lines(RunKornum("describe " + File("bom.txt", "\xEF\xBB\xBF" "5 7\n")).output)[0], "Number of Values:\t2");
    EXPECT_EQ(RunKornum("matrix det --delimiter , " + File("m.csv", "\xEF\xBB\xBF\"2\",0\n0,\"3\"\n")).output, "6\n");
}

TEST_F(WellBehavedCli, OptionsComeFromOneTable) {
    // -h and --help, --option=value, and -- before operands that begin with a dash.
    EXPECT_EQ(RunKornum("dist -h").output.rfind("Usage: kornum dist", 0), 0u);
    EXPECT_EQ(RunKornum("-h").output.rfind("Usage: kornum COMMAND", 0), 0u);
    const std::string help = RunKornum("random --help").output;
    EXPECT_NE(help.find("  -n, --count N"), std::string::npos) << help;
    EXPECT_NE(help.find("  -h, --help"), std::string::npos);
    EXPECT_EQ(RunKornum("random normal --count=2 --seed=7").output, RunKornum("random normal -n 2 --seed 7").output);
    EXPECT_EQ(RunKornum("dist normal less -- -1 0 1").output, RunKornum("dist normal less -1 0 1").output);
    ExpectUsageError("describe --frobnicate", "kornum describe: unknown option '--frobnicate'");
    ExpectUsageError("describe --json=1", "kornum describe: --json takes no value");
    ExpectUsageError("describe --decimals", "kornum describe: --decimals needs a value (N)");
    ExpectUsageError("describe --decimals 256", "kornum describe: --decimals must be a whole number from 0 to 255: '256'");
}

TEST_F(WellBehavedCli, RandomWithoutASeedDrawsAFreshStream) {
    std::set<std::string> streams;
    for (int run = 0; run < 3; ++run) streams.insert(RunKornum("random normal -n 4").output);
    EXPECT_EQ(streams.size(), 3u);
    EXPECT_EQ(RunKornum("random gamma 2.5 -n 3 --seed 42").output, RunKornum("random gamma 2.5 --seed 42 -n 3").output);
}

}  // namespace
