// The kornum command-line program.
#include "DescribeCommand.h"
#include "DistCommand.h"
#include "LabelCommand.h"
#include "MatrixCommand.h"
#include "RandomCommand.h"
#include "Output.h"

#include <kornum/KornumPackage.h>

#include <cstdio>
#include <map>
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
    "  -h, --help  show this text and exit\n"
    "  --version   show the library version and exit\n";

int Run(const std::vector<std::string>& arguments, KornumCli::Output& out) {
    using Command = int (*)(const std::vector<std::string>&, KornumCli::Output&);
    static const std::map<std::string, Command> commands{{"describe", KornumCli::RunDescribe},
                                                         {"dist", KornumCli::RunDist},
                                                         {"label", KornumCli::RunLabel},
                                                         {"matrix", KornumCli::RunMatrix},
                                                         {"random", KornumCli::RunRandom}};
    if (arguments.size() == 1 && (arguments[0] == "--help" || arguments[0] == "-h")) {
        out.Write(Usage);
        return 0;
    }
    if (arguments.size() == 1 && arguments[0] == "--version") {
        out.Write("kornum " + KornumPackage::Version() + "\n");
        return 0;
    }
    if (arguments.empty()) {
        std::fputs(Usage, stderr);
        return 2;
    }
    const auto command = commands.find(arguments[0]);
    if (command == commands.end()) {
        std::fprintf(stderr, "kornum: unknown command %s\nTry 'kornum --help'.\n", KornumCli::Quoted(arguments[0]).c_str());
        return 2;
    }
    return command->second({arguments.begin() + 1, arguments.end()}, out);
}

}  // namespace

// Every command writes through one checked output; whatever it wrote is flushed and the
// output closed at the end, and a failure there is a failure of the command.
int main(int argc, char** argv) {
    try {
        KornumCli::Output out;
        const int status = Run(std::vector<std::string>(argv + 1, argv + argc), out);
        out.Finish();
        return status;
    } catch (const KornumCli::WriteError& error) {
        std::fprintf(stderr, "kornum: write error: %s\n", error.what());
        return 1;
    }
}
