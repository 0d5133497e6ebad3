// kornum-edit: edits a vector or matrix file in a grid, or draws the grid to an image.
#include "EditDocument.h"
#include "EditWindow.h"

#include "cli/Input.h"

#include <kornum/KornumPackage.h>

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr const char* Usage =
    "usage: kornum-edit FILE\n"
    "       kornum-edit --render OUT FILE\n"
    "       kornum-edit --help | --version\n"
    "\n"
    "Edits FILE in a grid: a vector (one number a line) or a matrix (rows of numbers).\n"
    "Ctrl+S saves; a matrix also offers Inverse and Transpose.\n"
    "  --render OUT  draw the grid into the image OUT (.png, .svg or .pdf) and exit;\n"
    "                needs no display\n";

int Fail(const std::string& message) {
    std::fprintf(stderr, "kornum-edit: %s\n", message.c_str());
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    if (arguments.size() == 1 && (arguments[0] == "--help" || arguments[0] == "-h")) {
        std::fputs(Usage, stdout);
        return 0;
    }
    if (arguments.size() == 1 && arguments[0] == "--version") {
        std::printf("kornum-edit %s\n", KornumPackage::Version().c_str());
        return 0;
    }
    const bool render = arguments.size() == 3 && arguments[0] == "--render";
    if (!render && (arguments.size() != 1 || arguments[0].starts_with("-"))) {
        std::fputs(Usage, stderr);
        return 2;
    }
    try {
        KornumEdit::EditDocument document(std::string(arguments.back()));
        if (!render) return KornumEdit::RunEditWindow(document);
        document.Render(std::string(arguments[1]));
        return 0;
    } catch (const KornumCli::InputError& error) {
        return Fail(error.what());
    } catch (const std::exception& error) {
        return Fail(error.what());
    }
}
