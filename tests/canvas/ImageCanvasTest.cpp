// The Cairo canvas: how it reads text, which characters it refuses, the sizes it makes and
// how it writes files.
#include "TestSupport.h"

#include <kornum/KornumCanvas.h>

#include <cairo.h>
#include <sys/resource.h>

#include <csignal>
#include <cstring>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace {

using namespace KornumCanvas;
using KornumTest::Raises;
constexpr auto Utf8 = Platform::TTextEncoding::Utf8;

// The characters of the text elements of an SVG, in order.
std::string SvgTexts(const std::string& svg) {
    std::string text;
    for (std::size_t at = svg.find("<text "); at != std::string::npos; at = svg.find("<text ", at + 1)) {
        const std::size_t open = svg.find('>', at) + 1;
        text += svg.substr(open, svg.find("</text>", open) - open);
    }
    return text;
}

std::string Draw(TKorImageCanvas& canvas, std::string_view text) {
    Platform::TRect rect{0, 0, 200, 40};
    canvas.DrawText(text, rect, Platform::TextFlags::NoPrefix);
    return SvgTexts(canvas.Contents());
}

TEST(ImageCanvas, ReadsLatin1OrUtf8AndSymbolBytes) {
    TKorImageCanvas latin1(TImageFormat::Svg, 200, 40, Platform::clWhite);
    EXPECT_EQ(Draw(latin1, "caf\xE9"), "caf\u00E9");  // the default: one character per byte

    TKorImageCanvas utf8(TImageFormat::Svg, 200, 40, Platform::clWhite);
    utf8.SetTextEncoding(Utf8);
    EXPECT_EQ(Draw(utf8, "\u00B5 caf\u00E9 \u20AC"), "\u00B5 caf\u00E9 \u20AC");
    // A Symbol face still reads its own encoding, one byte per character.
    utf8.Font().Name = "Symbol";
    EXPECT_EQ(Draw(utf8, "\xB9"), "\u00B5 caf\u00E9 \u20AC\u2260");
    // Two bytes of UTF-8 are one glyph, as wide as the same character read from Latin-1.
    latin1.Font().Size = utf8.Font().Size = 30;
    utf8.Font().Name = "DejaVu Sans";
    EXPECT_EQ(utf8.TextWidth("\u00E9"), latin1.TextWidth("\xE9"));
    EXPECT_TRUE(Raises<Platform::EConvertError>([&] { utf8.TextWidth("caf\xE9"); },
                                                "the text is not UTF-8: byte 0xE9 at offset 3"));
}

TEST(ImageCanvas, ACharacterWithoutAGlyphIsRefusedByName) {
    TKorImageCanvas canvas(TImageFormat::Svg, 200, 40, Platform::clWhite);
    canvas.SetTextEncoding(Utf8);
    try {
        canvas.TextWidth("ab\u4E2D");  // CJK, which DejaVu Sans does not cover
        FAIL() << "no exception";
    } catch (const EMissingGlyph& error) {
        EXPECT_EQ(error.Character(), U'\u4E2D');
        EXPECT_STREQ(error.what(), "the font 'DejaVu Sans' has no glyph for U+4E2D '\u4E2D'");
    }
    canvas.SetTextEncoding(Platform::TTextEncoding::Latin1);
    Platform::TRect rect{0, 0, 200, 40};
    EXPECT_TRUE(Raises<EMissingGlyph>([&] { canvas.DrawText("a\x01", rect, 0); },
                                      "the font 'DejaVu Sans' has no glyph for U+0001"));
    EXPECT_EQ(SvgTexts(canvas.Contents()), "");  // refused before anything was drawn
}

TEST(ImageCanvas, SizesInPixelsAndPoints) {
    EXPECT_TRUE(Raises<EImageSize>([] { TKorImageCanvas(TImageFormat::Png, MaxPngSide + 1, 1, Platform::clWhite); },
                                   "an image of 32768 x 1 pixels is too large for a PNG: at most 32767 pixels each way"));
    EXPECT_TRUE(Raises<EImageSize>([] { TKorImageCanvas(TImageFormat::Svg, 0, 10, Platform::clWhite); },
                                   "an image of 0 x 10 pixels is empty: both sides must be at least 1"));
    EXPECT_EQ(TKorImageCanvas(TImageFormat::Png, MaxPngSide, 1, Platform::clWhite).Contents().substr(1, 3), "PNG");

    // An SVG wider than any PNG still measures and places its text.
    TKorImageCanvas wide(TImageFormat::Svg, 40000, 40, Platform::clWhite);
    Platform::TRect far{39000, 0, 40000, 40};
    wide.DrawText("W", far, 0);
    EXPECT_GT(wide.DrawnRight(), 39000 + 10);

    // A font of 12 points is 12 points: in the SVG's font size, and in the PDF's text
    // matrix on a page of 0.75 points per pixel (Cairo writes its streams uncompressed
    // when CAIRO_DEBUG_PDF is set).
    TKorImageCanvas svg(TImageFormat::Svg, 200, 40, Platform::clWhite);
    svg.Font().Size = 12;
    Platform::TRect rect{0, 0, 200, 40};
    svg.DrawText("x", rect, 0);
    EXPECT_NE(svg.Contents().find("font-size=\"12pt\""), std::string::npos);
    ::setenv("CAIRO_DEBUG_PDF", "1", 1);
    TKorImageCanvas pdf(TImageFormat::Pdf, 200, 40, Platform::clWhite);
    ::unsetenv("CAIRO_DEBUG_PDF");
    pdf.Font().Size = 12;
    pdf.DrawText("x", rect, 0);
    const std::string document = pdf.Contents();
    EXPECT_NE(document.find("/MediaBox [ 0 0 150 30 ]"), std::string::npos);
    EXPECT_NE(document.find("12 0 0 -12 "), std::string::npos);
}

// The file size limit of the process, lowered while it lives; writing past it fails with
// EFBIG instead of a signal.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &saved_);
        rlimit lowered = saved_;
        lowered.rlim_cur = bytes;
        ::setrlimit(RLIMIT_FSIZE, &lowered);
        handler_ = std::signal(SIGXFSZ, SIG_IGN);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &saved_);
        std::signal(SIGXFSZ, handler_);
    }

private:
    rlimit saved_{};
    void (*handler_)(int);
};

TEST(ImageCanvas, SavesTheWholeImageOrNoFile) {
    const std::filesystem::path directory = std::filesystem::temp_directory_path() / ("kornum-canvas-" + std::to_string(::getpid()));
    std::filesystem::create_directories(directory);
    TKorImageCanvas canvas(TImageFormat::Svg, 200, 40, Platform::clWhite);
    Platform::TRect rect{0, 0, 200, 40};
    canvas.DrawText(std::string(2000, 'x'), rect, 0);

    const std::string whole = (directory / "whole.svg").string();
    canvas.SaveToFile(whole);
    std::ostringstream bytes;
    bytes << std::ifstream(whole, std::ios::binary).rdbuf();
    EXPECT_EQ(bytes.str(), canvas.Contents());

    try {
        canvas.SaveToFile("/dev/full");
        ADD_FAILURE() << "no exception";
    } catch (const EWriteError& error) {
        EXPECT_EQ(error.Path(), "/dev/full");
        EXPECT_EQ(error.Reason(), "No space left on device");
        EXPECT_STREQ(error.what(), "cannot write the image to '/dev/full': No space left on device");
    }
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));  // a device is never removed
    EXPECT_TRUE(Raises<EWriteError>([&] { canvas.SaveToFile(whole + "/under-a-file.svg"); },
                                    "cannot write the image to '" + whole + "/under-a-file.svg': Not a directory"));
    // Cut short after 512 bytes: the part written is removed, and so is the file replaced;
    // through a link, the file linked to goes and the link stays. (Outcomes are checked once
    // the limit is lifted, so that a failure's report is not cut short too.)
    const std::string target = (directory / "target.svg").string(), link = (directory / "link.svg").string();
    std::ofstream(target) << "before";
    std::filesystem::create_symlink(target, link);
    ::testing::AssertionResult direct = ::testing::AssertionSuccess(), linked = direct;
    {
        const FileSizeLimit limit(512);
        direct = Raises<EWriteError>([&] { canvas.SaveToFile(whole); }, "cannot write the image to '" + whole + "': File too large");
        linked = Raises<EWriteError>([&] { canvas.SaveToFile(link); }, "cannot write the image to '" + link + "': File too large");
    }
    EXPECT_TRUE(direct);
    EXPECT_TRUE(linked);
    EXPECT_FALSE(std::filesystem::exists(whole));
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_TRUE(std::filesystem::is_symlink(link));
    std::filesystem::remove_all(directory);
}

// A PNG read back by Cairo has every pixel drawn: 256 x 256 pixels of scattered colours,
// whose compressed rows outgrow any one buffer of the encoder.
TEST(ImageCanvas, APngReadsBackPixelForPixel) {
    constexpr int Side = 256;
    TKorImageCanvas canvas(TImageFormat::Png, Side, Side, Platform::clWhite);
    const auto colour = [](int x, int y) {
        const std::uint32_t h = (std::uint32_t(x) * 73856093u ^ std::uint32_t(y) * 19349663u) * 2654435761u;
        return Platform::TColor::RGB(std::uint8_t(h >> 24), std::uint8_t(h >> 16), std::uint8_t(h >> 8));
    };
    for (int y = 0; y < Side; ++y)
        for (int x = 0; x < Side; ++x) canvas.FillRect({x, y, x + 1, y + 1}, colour(x, y));
    const std::string png = canvas.Contents();
    ASSERT_GT(png.size(), std::size_t(65536));
    struct Reader {
        const std::string& bytes;
        std::size_t at = 0;
    } reader{png};
    cairo_surface_t* image = cairo_image_surface_create_from_png_stream(
        [](void* closure, unsigned char* data, unsigned int length) {
            auto& r = *static_cast<Reader*>(closure);
            if (r.bytes.size() - r.at < length) return CAIRO_STATUS_READ_ERROR;
            std::memcpy(data, r.bytes.data() + r.at, length);
            r.at += length;
            return CAIRO_STATUS_SUCCESS;
        },
        &reader);
    ASSERT_EQ(cairo_surface_status(image), CAIRO_STATUS_SUCCESS);
    EXPECT_EQ(cairo_image_surface_get_format(image), CAIRO_FORMAT_RGB24);  // opaque: written as RGB
    const unsigned char* data = cairo_image_surface_get_data(image);
    const int stride = cairo_image_surface_get_stride(image);
    int wrong = 0;
    for (int y = 0; y < Side; ++y)
        for (int x = 0; x < Side; ++x) {
            std::uint32_t word;
            std::memcpy(&word, data + y * stride + x * 4, 4);
            const Platform::TColor c = colour(x, y);
            wrong += (word & 0xFFFFFF) != (std::uint32_t(c.Red()) << 16 | std::uint32_t(c.Green()) << 8 | c.Blue());
        }
    EXPECT_EQ(wrong, 0);
    cairo_surface_destroy(image);
}

}  // namespace
