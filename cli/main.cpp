// The kornum command-line program.
#include "DescribeCommand.h"
#include "DistCommand.h"
#include "LabelCommand.h"
#include "MatrixCommand.h"
#include "RandomCommand.h"

#include <kornum/KornumPackage.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr const char* Usage =
    "Usage: kornum COMMAND [ARGUMENTS]\n"
    "       kornum --help | --version\n"
    "\n"
    "kornum is a numerical component library: typed vectors and matrices,\n"
    "statistics, distribution functions and random variates in 80-bit\n"
    "extended precision. This program puts some of it on the command line.\n"
    "\n"
    "Commands:\n"
    "  describe   descriptive statistics of the numbers in files\n"
    "             (kornum describe --help for its options)\n"
    "  dist       distribution functions, inverses and density tables\n"
    "             (kornum dist --help)\n"
    "  label      draw a caption with Greek letters and mathematical symbols\n"
    "             into an SVG, PNG or PDF file (kornum label --help)\n"
    "  matrix     determinant, inverse, rank, echelon form, transpose and\n"
    "             product of matrices in files (kornum matrix --help)\n"
    "  random     variates of fourteen distributions (kornum random --help)\n"
    "\n"
    "Options:\n"
    "  --help     show this text and exit\n"
    "  --version  show the library version and exit\n";

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && arguments[0] == "--help") {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (arguments.size() == 1 && arguments[0] == "--version") {
        std::printf("kornum %s\n", KornumPackage::Version().c_str());
        return 0;
    }
    if (!arguments.empty() && arguments[0] == "describe")
        return KornumCli::RunDescribe({arguments.begin() + 1, arguments.end()});
    if (!arguments.empty() && arguments[0] == "dist")
        return KornumCli::RunDist({arguments.begin() + 1, arguments.end()});
    if (!arguments.empty() && arguments[0] == "label")
        return KornumCli::RunLabel({arguments.begin() + 1, arguments.end()});
    if (!arguments.empty() && arguments[0] == "random")
        return KornumCli::RunRandom({arguments.begin() + 1, arguments.end()});
    if (!arguments.empty() && arguments[0] == "matrix")
        return KornumCli::RunMatrix({arguments.begin() + 1, arguments.end()});
    if (arguments.empty()) {
        std::fputs(Usage, stderr);
    } else {
        std::fprintf(stderr, "kornum: unknown command '%s'\nTry 'kornum --help'.\n", arguments[0].c_str());
    }
    return 2;
}
