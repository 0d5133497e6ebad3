// kornum describe --plot and kornum dist ... plot: the files they write, and the files they
// refuse to write.
#include "CliTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using namespace CliTest;

std::string Contents(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::size_t Occurrences(const std::string& text, const std::string& what) {
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) ++count;
    return count;
}

class PlotCli : public CliFiles {};

TEST_F(PlotCli, DescribeWritesTheReportAndAHistogramInEachFormat) {
    const std::string data = File("data.txt", "1 2 2 3 3 3 4 4 5 10\n");
    const Outcome plain = RunKornum(data);
    for (const char* extension : {".svg", ".png", ".pdf"}) {
        const std::string image = (directory / (std::string("h") + extension)).string();
        const Outcome drawn = RunKornum("describe --plot " + image + " " + data);
        EXPECT_EQ(drawn.status, 0) << drawn.output;
        EXPECT_EQ(drawn.output, RunKornum("describe " + data).output);  // the report as before
        const std::string bytes = Contents(image);
        if (std::string(extension) == ".png") {
            EXPECT_EQ(bytes.substr(0, 8), "\x89PNG\r\n\x1a\n");
        }
        if (std::string(extension) == ".pdf") {
            EXPECT_EQ(bytes.substr(0, 5), "%PDF-");
        }
    }
    // --bins 3 over [1, 10]: three bars in the SVG; mu and sigma drawn as text.
    const std::string svg = (directory / "three.svg").string();
    ASSERT_EQ(RunKornum("describe --bins 3 --plot " + svg + " " + data).status, 0);
    const std::string document = Contents(svg);
    EXPECT_NE(document.find("counts, 3 bins"), std::string::npos);
    EXPECT_NE(document.find(">\xCE\xBC</text>"), std::string::npos);  // one text per character: μ
    EXPECT_NE(document.find(">\xCF\x83</text>"), std::string::npos);  // σ
    EXPECT_EQ(Occurrences(document, "<polyline"), 2u);                 // the curve and its legend
}

TEST_F(PlotCli, DistDrawsEachFamilyWithItsSymbols) {
    const std::string svg = (directory / "t.svg").string();
    ASSERT_EQ(RunKornum("dist normal plot -4 4 0 1 -o " + svg).status, 0);
    const std::string normal = Contents(svg);
    EXPECT_NE(normal.find("<polyline"), std::string::npos);
    EXPECT_NE(normal.find(">\xCE\xBC</text>"), std::string::npos);  // "Normal density, ^m = 0, ^s = 1"
    EXPECT_NE(normal.find(">\xCF\x83</text>"), std::string::npos);

    // The pmf as bars: k = 0 to 4 of binomial(4, 0.5), five bars framed three fifths as
    // bright as their fill (160, 190, 225).
    ASSERT_EQ(RunKornum("dist binomial plot 0 4 4 0.5 -o " + svg).status, 0);
    EXPECT_EQ(Occurrences(Contents(svg), "fill=\"none\" stroke=\"#607287\""), 5u);

    // Far tails on a log axis: the density of the normal at 40 is about 1.5e-348.
    ASSERT_EQ(RunKornum("dist normal plot -40 40 0 1 --log -o " + svg).status, 0);
    EXPECT_NE(Contents(svg).find(">1e-400</text>"), std::string::npos);
    for (const char* family : {"lognormal plot 0.1 5 0 1", "chisq plot 0 20 5", "t plot -5 5 3", "f plot 0 5 5 12",
                               "beta plot 0 1 2.5 4", "exponential plot 0 3 2", "poisson plot 0 40 20 --cdf"})
        EXPECT_EQ(RunKornum(std::string("dist ") + family + " -o " + svg).status, 0) << family;
}

TEST_F(PlotCli, BadArgumentsLeaveNoFile) {
    const std::string svg = (directory / "bad.svg").string();
    const struct {
        std::string arguments, message;
    } cases[] = {
        {"dist normal plot -4 4 0 1", "plot needs -o FILE"},
        {"dist normal plot -4 4 0 1 -o x.gif", "-o takes a file ending in .svg, .png or .pdf: 'x.gif'"},
        {"dist normal plot 4 -4 0 1 -o " + svg, "XLO must be less than XHI"},
        {"dist normal plot -4 4 0 0 -o " + svg, "standard deviation must be a finite number > 0: '0'"},
        {"dist normal plot -4 4 0 -o " + svg, "takes XLO XHI and 2 parameters"},
        {"dist poisson plot 0 200000 3 -o " + svg, "at most 100000 counts"},
        {"describe --plot x.txt", "--plot takes a file ending in .svg, .png or .pdf"},
        {"describe --bins 0 --plot " + svg, "--bins"},
    };
    for (const auto& c : cases) {
        const Outcome outcome = RunKornum(c.arguments, "1 2 3");
        EXPECT_EQ(outcome.status, 2) << c.arguments << ": " << outcome.output;
        EXPECT_NE(outcome.output.find(c.message), std::string::npos) << c.arguments << ": " << outcome.output;
        EXPECT_FALSE(std::filesystem::exists(svg)) << c.arguments;
    }
    // A file that cannot be written: status 1, the system's reason, and the report kept.
    const std::string missing = (directory / "no" / "such.png").string();
    const Outcome unwritable = RunKornum("describe --plot " + missing, "1 2 3");
    EXPECT_EQ(unwritable.status, 1);
    EXPECT_NE(unwritable.output.find("Number of Values:\t3"), std::string::npos);
    EXPECT_NE(unwritable.output.find("cannot write '" + missing + "': No such file or directory"), std::string::npos)
        << unwritable.output;
}

}  // namespace
