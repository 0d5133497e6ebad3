#include "MatrixCommand.h"

#include "Input.h"
#include "Options.h"
#include "Output.h"
#include "Parameters.h"

#include <kornum/KornumMatrix.h>
#include <kornum/PlatformExceptions.h>

#include <map>

namespace KornumCli {
namespace {

using namespace KornumMatrix;

struct MatrixSettings {
    int decimals = -1;
    ReadOptions read;
};

CommandTable MatrixTable(MatrixSettings& s) {
    return {
        "matrix",
        "Usage: kornum matrix OPERATION [OPTIONS] FILE [FILE2]",
        "Reads a matrix from FILE (standard input for '-'): one row a line, the numbers of\n"
        "a row separated by white space (or by --delimiter, with CSV quoting), every row\n"
        "as long as the first; blank lines are skipped. Works in 80-bit extended precision\n"
        "and prints the result as rows.\n"
        "\n"
        "Operations:\n"
        "  det        the determinant of a square matrix\n"
        "  inverse    the inverse of a square matrix (exit status 1 when it is singular)\n"
        "  rank       the rank, from the row echelon form\n"
        "  echelon    the row echelon form (leading entries 1, rows above not cleared)\n"
        "  transpose  the transpose\n"
        "  multiply   the product of the matrices in FILE and FILE2\n",
        {
            DecimalsOption(s.decimals),
            {"--delimiter", "", "C", "the numbers of a row are separated by the character C",
             [&s](const std::string& v) { s.read.delimiter = Delimiter(v); }},
            {"--header", "", "", "skip the first line of each file", [&s](const std::string&) { s.read.header = true; }},
        },
        "A bad number (NaN and infinities included) or a row of another length stops the\n"
        "command with exit status 2 and a message naming the file, the line, the field\n"
        "and the text.\n"};
}

void WriteRows(Output& out, const TKorFloatMatrix& M, int decimals) {
    for (const TKorFloatVector& row : M) {
        for (Integer j = 0; j < row.Length(); ++j) {
            if (j > 0) out.Write('\t');
            out.Write(NumberText(row[j], decimals));
        }
        out.Write('\n');
    }
}

int Run(const MatrixSettings& s, const std::vector<std::string>& operands, Output& out) {
    static const std::map<std::string, std::size_t> files{{"det", 1},     {"inverse", 1},   {"rank", 1},
                                                          {"echelon", 1}, {"transpose", 1}, {"multiply", 2}};
    if (operands.empty()) throw UsageError("an operation is needed");
    const auto operation = files.find(operands[0]);
    if (operation == files.end()) throw UsageError("unknown operation " + Quoted(operands[0]));
    if (operands.size() != operation->second + 1)
        throw UsageError(Quoted(operands[0]) + " takes " + (operation->second == 1 ? "one file" : "two files"));
    const auto read = [&](const std::string& path) { return ReadMatrix(ReadSource(path), path, s.read); };

    try {
        TKorFloatMatrix M = read(operands[1]);
        const std::string& op = operands[0];
        if (op == "det") {
            out.Write(NumberText(MatrixDeterminant(M), s.decimals) + "\n");
        } else if (op == "rank") {
            LongWord rank = 0;
            RowEchelonFormRank(M, rank);
            out.Write(std::to_string(rank) + "\n");
        } else if (op == "echelon") {
            RowEchelonForm(M);
            WriteRows(out, M, s.decimals);
        } else if (op == "transpose") {
            WriteRows(out, TransposeMatrix(M), s.decimals);
        } else if (op == "multiply") {
            WriteRows(out, MultiplyMatrices(M, read(operands[2])), s.decimals);
        } else {
            TKorFloatMatrix inverse;
            if (!MatrixInverse(M, inverse)) {
                std::fputs("kornum matrix: the matrix is singular: it has no inverse\n", stderr);
                return 1;
            }
            WriteRows(out, inverse, s.decimals);
        }
    } catch (const InputError& error) {
        std::fprintf(stderr, "kornum matrix: %s\n", error.what());
        return 2;
    } catch (const Platform::Exception& error) {
        std::fprintf(stderr, "kornum matrix: %s\n", error.what());
        return 2;
    }
    return 0;
}

}  // namespace

int RunMatrix(const std::vector<std::string>& arguments, Output& out) {
    MatrixSettings settings;
    return RunCommand(MatrixTable(settings), arguments, out,
                      [&](const std::vector<std::string>& operands) { return Run(settings, operands, out); });
}

}  // namespace KornumCli
