#include "MatrixCommand.h"

#include "CommandOptions.h"
#include "NumberReader.h"

#include <kornum/KornumMatrix.h>
#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include <cctype>
#include <cstdio>
#include <map>

namespace KornumCli {
namespace {

using namespace KornumMatrix;

constexpr const char* Usage =
    "Usage: kornum matrix OPERATION [--decimals N] FILE [FILE2]\n"
    "\n"
    "Reads a matrix from FILE (standard input for '-'): one row a line, the numbers of\n"
    "a row separated by blanks or tabs, every row as long as the first; blank lines\n"
    "are skipped. Works in 80-bit extended precision and prints the result as rows.\n"
    "\n"
    "Operations:\n"
    "  det        the determinant of a square matrix\n"
    "  inverse    the inverse of a square matrix (exit status 1 when it is singular)\n"
    "  rank       the rank, from the row echelon form\n"
    "  echelon    the row echelon form (leading entries 1, rows above not cleared)\n"
    "  transpose  the transpose\n"
    "  multiply   the product of the matrices in FILE and FILE2\n"
    "\n"
    "Options:\n"
    "  --decimals N  decimals in the output, 0 to 255 (default 6)\n"
    "  --help        show this text\n"
    "\n"
    "A bad number or a row of another length stops the command with exit status 2 and\n"
    "a message naming the file, the line and the text.\n";

int UsageError(const std::string& message) { return KornumCli::UsageError("matrix", message); }

std::string Describe(const std::string& source) { return source == "-" ? "standard input" : source; }

// The rows of the text, one a line (blank lines skipped); every row must be as long as
// the first.
TKorFloatMatrix ReadMatrix(const std::string& path) {
    const std::string text = ReadSource(path);
    TKorFloatMatrix M;
    std::size_t line = 0, start = 0;
    const auto fail = [&](const std::string& what) {
        throw InputError(Describe(path) + ":" + std::to_string(line) + ": " + what);
    };
    while (start < text.size()) {
        std::size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        ++line;
        TKorFloatVector row;
        for (std::size_t p = start; p < end;) {
            if (std::isspace(static_cast<unsigned char>(text[p]))) {
                ++p;
                continue;
            }
            std::size_t q = p;
            while (q < end && !std::isspace(static_cast<unsigned char>(text[q]))) ++q;
            try {
                const Float x = Kornumconvert::Str2Float(std::string_view(text).substr(p, q - p));
                row.SetLength(row.Length() + 1);
                row[row.High()] = x;
            } catch (const Platform::Exception& error) {
                fail(error.Message());
            }
            p = q;
        }
        start = end + 1;
        if (row.Length() == 0) continue;
        if (M.Length() > 0 && row.Length() != M[0].Length())
            fail("a row of " + std::to_string(row.Length()) + " values where the first row has " +
                 std::to_string(M[0].Length()));
        M.SetLength(M.Length() + 1);
        M[M.High()] = row;
    }
    if (M.Length() == 0) throw InputError(Describe(path) + ": no numbers");
    return M;
}

void PrintRows(const TKorFloatMatrix& M, int decimals) {
    std::string out;
    for (const TKorFloatVector& row : M) {
        for (Integer j = 0; j < row.Length(); ++j) {
            if (j > 0) out += '\t';
            out += Kornumconvert::Float2EStr(row[j], Byte(decimals));
        }
        out += '\n';
    }
    std::fputs(out.c_str(), stdout);
}

}  // namespace

int RunMatrix(const std::vector<std::string>& arguments) {
    int decimals = 6;
    std::vector<std::string> words;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (argument == "--help") {
            std::fputs(Usage, stdout);
            return 0;
        } else if (argument == "--decimals") {
            const std::string problem = ReadDecimals(arguments, i, decimals);
            if (!problem.empty()) return UsageError(problem);
        } else if (argument.size() > 1 && argument[0] == '-') {
            return UsageError("unknown option '" + argument + "'");
        } else {
            words.push_back(argument);
        }
    }
    static const std::map<std::string, std::size_t> files{{"det", 1},     {"inverse", 1},   {"rank", 1},
                                                          {"echelon", 1}, {"transpose", 1}, {"multiply", 2}};
    if (words.empty()) return UsageError("an operation is needed");
    const auto operation = files.find(words[0]);
    if (operation == files.end()) return UsageError("unknown operation '" + words[0] + "'");
    if (words.size() != operation->second + 1)
        return UsageError("'" + words[0] + "' takes " + (operation->second == 1 ? "one file" : "two files"));

    try {
        TKorFloatMatrix M = ReadMatrix(words[1]);
        const std::string& op = words[0];
        if (op == "det") {
            std::printf("%s\n", Kornumconvert::Float2EStr(MatrixDeterminant(M), Byte(decimals)).c_str());
        } else if (op == "rank") {
            LongWord rank = 0;
            RowEchelonFormRank(M, rank);
            std::printf("%u\n", rank);
        } else if (op == "echelon") {
            RowEchelonForm(M);
            PrintRows(M, decimals);
        } else if (op == "transpose") {
            PrintRows(TransposeMatrix(M), decimals);
        } else if (op == "multiply") {
            PrintRows(MultiplyMatrices(M, ReadMatrix(words[2])), decimals);
        } else {
            TKorFloatMatrix inverse;
            if (!MatrixInverse(M, inverse)) {
                std::fputs("kornum matrix: the matrix is singular: it has no inverse\n", stderr);
                return 1;
            }
            PrintRows(inverse, decimals);
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

}  // namespace KornumCli
