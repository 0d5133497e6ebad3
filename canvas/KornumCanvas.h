// A canvas over Cairo that draws text into an image and writes it as SVG, PNG or PDF,
// with the widths of real fonts (found through fontconfig).
//
// The SVG keeps text as text: one <text> element per draw, naming its font and holding
// the Unicode characters drawn, so that the picture stays searchable and readable by
// assistive tools. A "Symbol" font's bytes are drawn as the characters the Adobe Symbol
// encoding gives them, in DejaVu Sans, which has the Greek letters and the symbols.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformGraphics.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace KORNUM_API KornumCanvas {

enum class TImageFormat { Svg, Png, Pdf };

// The format a file name's extension asks for (.svg, .png, .pdf), or none.
std::optional<TImageFormat> FormatOfPath(std::string_view Path);

// The face that draws a font's characters: DejaVu Sans for "Symbol", else the face.
std::string RenderingFace(std::string_view Face);

class TKorImageCanvas : public Platform::TCanvas {
public:
    // An image of Width x Height pixels (points in a PDF), filled with Background.
    TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height, Platform::TColor Background);
    ~TKorImageCanvas() override;

    std::int32_t TextWidth(std::string_view Text) override;
    std::int32_t DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) override;

    // The right edge of everything drawn so far (0 before the first draw).
    std::int32_t DrawnRight() const noexcept;
    // The height of a line of text in the current font.
    std::int32_t LineHeight();

    // The image as the file's bytes; SaveToFile writes them, raising Platform::Exception
    // naming the file when it cannot.
    std::string Contents();
    void SaveToFile(const std::string& Path);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace KornumCanvas
