// `kornum label` end to end: the images it writes, and the text an SVG keeps.
#include "CliTestSupport.h"

#include <regex>
#include <sstream>

namespace {

using namespace CliTest;

using LabelCli = CliFiles;

std::string Read(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream bytes;
    bytes << in.rdbuf();
    return bytes.str();
}

// The characters of the SVG's text elements, in order.
std::string SvgText(const std::string& svg) {
    std::string text;
    const std::regex element("<text[^>]*>([^<]*)</text>");
    for (auto it = std::sregex_iterator(svg.begin(), svg.end(), element); it != std::sregex_iterator(); ++it)
        text += (*it)[1].str();
    return text;
}

TEST_F(LabelCli, TheSvgNamesEveryGreekLetterAndSymbolInOrder) {
    const std::string svg = (directory / "all.svg").string();
    const Outcome outcome = RunKornum(
        "label 'x^+y: ^a^b^g^d^p^s^W ^!^%^&^(^)^*^,^-^.^/^0^1^2^3^4^5^6^7^8^9^<^=^>^@^[^]^{^}^^' -o " + svg);
    ASSERT_EQ(outcome.status, 0) << outcome.output;
    // Expected characters from the Unicode standard's names of the symbols.
    EXPECT_EQ(SvgText(Read(svg)),
              "x\u2260y: \u03B1\u03B2\u03B3\u03B4\u03C0\u03C3\u03A9 "
              "\u2228\u00B0\u221E\u2194\u21D4\u00D7\u2026\u00B1\u2022\u00F7\u2205\u222A\u2229\u2283\u2287\u2284"
              "\u2282\u2286\u2208\u2209\u2264\u2248\u2265\u2227\u21D2\u21D0\u2192\u2190^");
    const std::string text = Read(svg);
    EXPECT_NE(text.find("font-family=\"DejaVu Sans\""), std::string::npos);
    EXPECT_EQ(text.rfind("<?xml", 0), 0u);
}

TEST_F(LabelCli, WritesPngAndPdfAndRejectsBadOptions) {
    const std::string png = (directory / "f.png").string(), pdf = (directory / "f.pdf").string();
    ASSERT_EQ(RunKornum("label '^a ^< ^b' --size 20 --color '#204080' --effect 2 -o " + png).status, 0);
    ASSERT_EQ(RunKornum("label '^S x ^8 A' --disabled --font 'DejaVu Serif' -o " + pdf).status, 0);
    EXPECT_EQ(Read(png).substr(1, 3), "PNG");
    EXPECT_EQ(Read(pdf).substr(0, 5), "%PDF-");
    // A narrow label drops what passes its right edge.
    const std::string narrow = (directory / "narrow.svg").string();
    ASSERT_EQ(RunKornum("label 'abcdefghij' --width 30 -o " + narrow).status, 0);
    EXPECT_LT(SvgText(Read(narrow)).size(), 10u);
    for (const char* arguments : {"label", "label x", "label x -o f.gif", "label x -o f.svg --size 0",
                                  "label x -o f.svg --color red", "label x -o f.svg --effect 3", "label x y -o f.svg"})
        EXPECT_EQ(RunKornum(arguments).status, 2) << arguments;
    EXPECT_EQ(RunKornum("label x -o /nonexistent/dir/f.svg").status, 1);
    EXPECT_EQ(RunKornum("label --help").output.rfind("Usage: kornum label", 0), 0u);
}

}  // namespace
