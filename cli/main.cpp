// The kornum command-line program.
#include <kornum/KornumPackage.h>

#include <cstdio>
#include <cstring>

namespace {

constexpr const char* Usage =
    "Usage: kornum [--help | --version]\n"
    "\n"
    "kornum is a numerical component library: typed vectors and matrices,\n"
    "statistics, distribution functions and random variates in 80-bit\n"
    "extended precision.\n"
    "\n"
    "Options:\n"
    "  --help     show this text and exit\n"
    "  --version  show the library version and exit\n";

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (argc == 2 && std::strcmp(argv[1], "--version") == 0) {
        std::printf("kornum %s\n", KornumPackage::Version().c_str());
        return 0;
    }
    std::fputs(Usage, stderr);
    return 2;
}
