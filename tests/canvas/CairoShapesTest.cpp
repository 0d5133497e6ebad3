// Rectangles, lines and clipping on the Cairo canvas: whole pixels in an image, elements
// in an SVG.
#include "TestSupport.h"

#include <kornum/KornumCanvas.h>

#include <cairo.h>

#include <cstdint>
#include <string>

namespace {

using namespace KornumCanvas;
using Platform::TColor;

const TColor Red = TColor::RGB(255, 0, 0), Blue = TColor::RGB(0, 0, 255);

// A 30 x 30 white image surface and a canvas drawing on it.
struct Pixels {
    cairo_surface_t* surface = cairo_image_surface_create(CAIRO_FORMAT_RGB24, 30, 30);
    cairo_t* cr = cairo_create(surface);
    TKorCairoCanvas canvas{cr};
    Pixels() { canvas.FillRect({0, 0, 30, 30}, Platform::clWhite); }
    ~Pixels() {
        cairo_destroy(cr);
        cairo_surface_destroy(surface);
    }
    // The colour at (x, y) as 0xRRGGBB.
    std::uint32_t At(int x, int y) {
        cairo_surface_flush(surface);
        const auto* row = cairo_image_surface_get_data(surface) + y * cairo_image_surface_get_stride(surface);
        return reinterpret_cast<const std::uint32_t*>(row)[x] & 0xFFFFFF;
    }
};

TEST(CairoShapes, CoverWholePixelsWithinTheirEdges) {
    Pixels image;
    image.canvas.FillRect({2, 3, 5, 6}, Red);
    EXPECT_EQ(image.At(2, 3), 0xFF0000u);
    EXPECT_EQ(image.At(4, 5), 0xFF0000u);
    EXPECT_EQ(image.At(5, 5), 0xFFFFFFu);  // Right and Bottom lie outside
    EXPECT_EQ(image.At(4, 6), 0xFFFFFFu);

    image.canvas.FrameRect({10, 10, 14, 14}, Blue);
    EXPECT_EQ(image.At(10, 10), 0x0000FFu);
    EXPECT_EQ(image.At(13, 13), 0x0000FFu);
    EXPECT_EQ(image.At(11, 12), 0xFFFFFFu);
    EXPECT_EQ(image.At(14, 14), 0xFFFFFFu);

    image.canvas.DrawLine(0, 20, 9, 20, Platform::clBlack);  // both ends included
    EXPECT_EQ(image.At(0, 20), 0u);
    EXPECT_EQ(image.At(9, 20), 0u);
    EXPECT_EQ(image.At(10, 20), 0xFFFFFFu);
    EXPECT_EQ(image.At(5, 21), 0xFFFFFFu);
}

TEST(CairoShapes, TheClipRectangleLimitsLaterDrawsUntilReset) {
    Pixels image;
    image.canvas.SetClipRect({0, 0, 5, 5});
    image.canvas.FillRect({0, 0, 30, 30}, Blue);
    EXPECT_EQ(image.At(4, 4), 0x0000FFu);
    EXPECT_EQ(image.At(5, 4), 0xFFFFFFu);
    image.canvas.SetClipRect({20, 20, 30, 30});  // replaces the first
    image.canvas.FillRect({0, 0, 30, 30}, Red);
    EXPECT_EQ(image.At(4, 4), 0x0000FFu);
    EXPECT_EQ(image.At(25, 25), 0xFF0000u);
    image.canvas.ResetClipRect();
    image.canvas.FillRect({0, 0, 30, 30}, Platform::clBlack);
    EXPECT_EQ(image.At(10, 10), 0u);
}

TEST(CairoShapes, AnSvgKeepsThemAsElements) {
    TKorImageCanvas svg(TImageFormat::Svg, 40, 40, Platform::clWhite);
    svg.FillRect({2, 3, 5, 6}, Red);
    svg.SetClipRect({0, 0, 10, 10});
    svg.DrawLine(0, 0, 9, 9, Platform::clBtnShadow);
    svg.ResetClipRect();
    svg.FrameRect({1, 1, 4, 4}, Blue);
    const std::string document = svg.Contents();
    EXPECT_NE(document.find("<rect x=\"2\" y=\"3\" width=\"3\" height=\"3\" fill=\"#FF0000\"/>"), std::string::npos);
    EXPECT_NE(document.find("<clipPath id=\"clip1\"><rect x=\"0\" y=\"0\" width=\"10\" height=\"10\"/></clipPath>"),
              std::string::npos);
    EXPECT_NE(document.find("<line x1=\"0.50\" y1=\"0.50\" x2=\"9.50\" y2=\"9.50\" stroke=\"#A0A0A0\" "
                            "clip-path=\"url(#clip1)\"/>"),
              std::string::npos);
    EXPECT_NE(document.find("<rect x=\"1.50\" y=\"1.50\" width=\"2\" height=\"2\" fill=\"none\" stroke=\"#0000FF\"/>"),
              std::string::npos);
}

}  // namespace
