// `kornum matrix` end to end.
#include "CliTestSupport.h"

namespace {

using namespace CliTest;

using MatrixCli = CliFiles;

TEST_F(MatrixCli, EveryOperationPrintsRows) {
    const std::string a = File("a.txt", "4 7\n\n2\t6\n");
    EXPECT_EQ(RunKornum("matrix det " + a).output, "10\n");
    EXPECT_EQ(RunKornum("matrix det --decimals 3 " + a).output, "10.000\n");
    EXPECT_EQ(RunKornum("matrix inverse --decimals 2 " + a).output, "0.60\t-0.70\n-0.20\t0.40\n");
    EXPECT_EQ(RunKornum("matrix transpose --decimals 0 -", "1 2 3\n4 5 6\n").output, "1\t4\n2\t5\n3\t6\n");
    EXPECT_EQ(RunKornum("matrix echelon --decimals 1 " + a).output, "1.0\t1.8\n0.0\t1.0\n");
    EXPECT_EQ(RunKornum("matrix rank -", "1 2\n2 4\n").output, "1\n");
    const std::string b = File("b.txt", "1\n0\n");
    EXPECT_EQ(RunKornum("matrix multiply --decimals 0 " + a + " " + b).output, "4\n2\n");
}

TEST_F(MatrixCli, BadInputAndSingularMatricesAreReported) {
    const Outcome singular = RunKornum("matrix inverse -", "1 2\n2 4\n");
    EXPECT_EQ(singular.status, 1);
    EXPECT_EQ(singular.output, "kornum matrix: the matrix is singular: it has no inverse\n");

    const std::string ragged = File("ragged.txt", "1 2\n3 4\n5\n");
    const Outcome bad = RunKornum("matrix det " + ragged);
    EXPECT_EQ(bad.status, 2);
    EXPECT_EQ(bad.output, "kornum matrix: " + ragged + ":3: a row of 1 values where the first row has 2\n");
    const Outcome number = RunKornum("matrix rank -", "1 2\n3 x\n");
    EXPECT_EQ(number.status, 2);
    EXPECT_EQ(number.output, "kornum matrix: standard input:2: field 2: not a number: 'x'\n");
    const Outcome library = RunKornum("matrix det -", "1 2 3\n4 5 6\n");
    EXPECT_EQ(library.status, 2);
    EXPECT_EQ(library.output, "kornum matrix: The matrix must be square\n");
    EXPECT_EQ(RunKornum("matrix det -", "\n").status, 2);
    for (const char* arguments : {"matrix", "matrix frobnicate x", "matrix det", "matrix multiply -", "matrix det --x -"})
        EXPECT_EQ(RunKornum(arguments).status, 2) << arguments;
    EXPECT_EQ(RunKornum("matrix --help").output.rfind("Usage: kornum matrix", 0), 0u);
}

}  // namespace
