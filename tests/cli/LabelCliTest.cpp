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

// The characters of the SVG's text elements, in order, with XML's escapes read back.
std::string SvgText(const std::string& svg) {
    std::string text;
    const std::regex element("<text[^>]*>([^<]*)</text>");
    for (auto it = std::sregex_iterator(svg.begin(), svg.end(), element); it != std::sregex_iterator(); ++it)
        text += (*it)[1].str();
    for (auto [escape, c] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
        text = std::regex_replace(text, std::regex(escape), c);
    return text;
}

std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
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

TEST_F(LabelCli, DrawsUtf8AndAmpersandsAsWritten) {
    const std::string svg = (directory / "u.svg").string(), png = (directory / "u.png").string();
    ASSERT_EQ(RunKornum("label '\u00B5 caf\u00E9 ^a R&D && ^&' -o " + svg).status, 0);
    const std::string text = Read(svg);
    EXPECT_EQ(SvgText(text), "\u00B5 caf\u00E9 \u03B1 R&D && \u221E");
    EXPECT_EQ(Count(text, "<text "), 17u);  // one element per character, not per byte
    ASSERT_EQ(RunKornum("label '\u00B5 caf\u00E9' -o " + png).status, 0);
    EXPECT_EQ(Read(png).substr(1, 3), "PNG");
}

TEST_F(LabelCli, CaptionsThatCannotBeDrawnAreUsageErrors) {
    const std::string svg = (directory / "bad.svg").string();
    // Latin-1 e-acute (octal 351) is not UTF-8; the message shows it escaped.
    const Outcome latin1 = RunKornum("label \"$(printf 'caf\\351')\" -o " + svg);
    EXPECT_EQ(latin1.status, 2);
    EXPECT_EQ(latin1.output.rfind("kornum label: the caption is not UTF-8 text: 'caf\\xe9'\n", 0), 0u) << latin1.output;
    const Outcome cjk = RunKornum("label 'a\u4E2Db' -o " + svg);
    EXPECT_EQ(cjk.status, 2);
    EXPECT_EQ(cjk.output.rfind("kornum label: the caption cannot be drawn: the font 'DejaVu Sans' has no glyph for "
                               "U+4E2D '\u4E2D'\n", 0), 0u) << cjk.output;
    const Outcome tab = RunKornum("label \"$(printf 'a\\tb')\" -o " + svg);
    EXPECT_EQ(tab.status, 2);
    EXPECT_NE(tab.output.find("no glyph for U+0009\n"), std::string::npos) << tab.output;
    EXPECT_FALSE(std::filesystem::exists(svg));
}

TEST_F(LabelCli, TextHasThePointSizeAskedForInSvgAndPdf) {
    const std::string svg = (directory / "s.svg").string(), pdf = (directory / "s.pdf").string();
    ASSERT_EQ(RunKornum("label 'x^+y' --size 16 -o " + svg).status, 0);
    const std::string text = Read(svg);
    EXPECT_EQ(Count(text, "font-size=\"16pt\""), 3u);
    // Cairo writes the PDF's streams uncompressed when CAIRO_DEBUG_PDF is set, so that the
    // text's size can be read: its text matrices scale fonts of size 1 by 16 points, on a
    // page of 0.75 points per pixel of the SVG.
    ASSERT_EQ(RunShell("CAIRO_DEBUG_PDF=1 " KORNUM_CLI_PATH " label 'x^+y' --size 16 -o " + pdf).status, 0);
    const std::string document = Read(pdf);
    const std::regex matrix("([-0-9.]+) 0 0 ([-0-9.]+) [-0-9.]+ [-0-9.]+ Tm"), size(" ([-0-9.]+) Tf");
    std::size_t matrices = 0;
    for (auto it = std::sregex_iterator(document.begin(), document.end(), matrix); it != std::sregex_iterator(); ++it) {
        EXPECT_EQ((*it)[1].str() + " " + (*it)[2].str(), "16 -16");
        ++matrices;
    }
    EXPECT_GE(matrices, 1u);
    for (auto it = std::sregex_iterator(document.begin(), document.end(), size); it != std::sregex_iterator(); ++it)
        EXPECT_EQ((*it)[1].str(), "1");
    std::smatch svgSize, pageSize;
    ASSERT_TRUE(std::regex_search(text, svgSize, std::regex("width=\"(\\d+)\" height=\"(\\d+)\"")));
    ASSERT_TRUE(std::regex_search(document, pageSize, std::regex("/MediaBox \\[ 0 0 ([0-9.]+) ([0-9.]+) \\]")));
    EXPECT_DOUBLE_EQ(std::stod(pageSize[1]), 0.75 * std::stod(svgSize[1]));
    EXPECT_DOUBLE_EQ(std::stod(pageSize[2]), 0.75 * std::stod(svgSize[2]));
}

TEST_F(LabelCli, ImagesTooLargeOrUnwritableLeaveNoFile) {
    // 2,600 alphas are about 36,000 pixels wide at 16 points: too wide for a PNG, and the
    // file that was there is left as it was. The same caption fits in an SVG.
    std::string alphas;
    for (int i = 0; i < 2600; ++i) alphas += "^a";
    const std::string png = File("long.png", "before");
    const Outcome tooLarge = RunKornum("label '" + alphas + "' -o " + png);
    EXPECT_EQ(tooLarge.status, 2);
    EXPECT_NE(tooLarge.output.find("is too large for a PNG: at most 32767 pixels"), std::string::npos) << tooLarge.output;
    EXPECT_EQ(Read(png), "before");
    EXPECT_EQ(RunKornum("label '" + alphas + "' -o " + (directory / "long.svg").string()).status, 0);

    // A full device, a path under a file, a file size limit that cuts the image short.
    const std::string full = (directory / "full.png").string();
    std::filesystem::create_symlink("/dev/full", full);
    const Outcome noSpace = RunKornum("label x -o " + full);
    EXPECT_EQ(noSpace.status, 1);
    EXPECT_EQ(noSpace.output.rfind("kornum label: cannot write '" + full + "': No space left on device\n", 0), 0u) << noSpace.output;
    const Outcome notDirectory = RunKornum("label x -o /dev/full/x.png");
    EXPECT_EQ(notDirectory.status, 1);
    EXPECT_EQ(notDirectory.output.rfind("kornum label: cannot write '/dev/full/x.png': Not a directory\n", 0), 0u)
        << notDirectory.output;
    const std::string part = (directory / "part.png").string();
    const Outcome cut = RunShell("trap '' XFSZ; ulimit -f 1; " KORNUM_CLI_PATH " label '" + std::string(900, 'x') +
                                 "' -o " + part + " 2>&1");
    EXPECT_EQ(cut.status, 1);
    EXPECT_EQ(cut.output.rfind("kornum label: cannot write '" + part + "': File too large\n", 0), 0u) << cut.output;
    EXPECT_FALSE(std::filesystem::exists(part));
}

}  // namespace
