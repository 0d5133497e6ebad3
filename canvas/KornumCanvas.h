/// @file
/// A canvas over Cairo that draws text into an image and writes it as SVG, PNG or PDF, with
/// the widths of real fonts (found through fontconfig). Part of the library kornum_canvas,
/// the only one with a third-party dependency; the runtime libraries never link it.
///
/// The SVG keeps text as text: one `<text>` element per draw, naming its font and holding
/// the Unicode characters drawn, so that the picture stays searchable and readable by
/// assistive tools. A "Symbol" font's bytes are drawn as the characters the Adobe Symbol
/// encoding gives them, in DejaVu Sans, which has the Greek letters and the symbols.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformGraphics.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// The Cairo canvas module (library kornum_canvas): `TKorImageCanvas`, an implementation of
/// `Platform::TCanvas` that writes SVG, PNG or PDF, and its helpers.
namespace KORNUM_API KornumCanvas {

/// The file formats of a `TKorImageCanvas`.
enum class TImageFormat {
    Svg,  ///< SVG, written by the canvas itself: text stays text, one element per draw.
    Png,  ///< PNG, rendered by Cairo.
    Pdf   ///< PDF, written by Cairo with the fonts embedded.
};

/// The format a file name's extension asks for (`.svg`, `.png`, `.pdf`, lower case, after
/// at least one other character), or none.
std::optional<TImageFormat> FormatOfPath(std::string_view Path);

/// The face that draws a font's characters: DejaVu Sans for "Symbol" (whose bytes the
/// canvas has already turned into Unicode characters), else the face itself.
std::string RenderingFace(std::string_view Face);

/// A `Platform::TCanvas` that draws text into an image of a fixed size and gives it as
/// the bytes of an SVG, PNG or PDF file.
///
/// Text is measured with Cairo and the fonts fontconfig finds, at 96 pixels per inch (a
/// font of 10 points is set at 13.33 pixels). System colours are resolved by
/// `Platform::TCanvas::Resolve` (a light desktop theme). `Platform::TextFlags::Center` and
/// `Platform::TextFlags::Right` align the text within the rectangle,
/// `Platform::TextFlags::CalcRect` measures without drawing, and `&` is an accelerator
/// mark unless `Platform::TextFlags::NoPrefix` is given; the other flags are accepted and
/// ignored (a draw is one line at the rectangle's top). Underline and strike-out are drawn
/// in PNG and PDF only.
class TKorImageCanvas : public Platform::TCanvas {
public:
    /// An image of Width x Height pixels (points in a PDF), filled with Background.
    TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height, Platform::TColor Background);
    /// Releases the Cairo surface.
    ~TKorImageCanvas() override;

    /// The advance width of the text in the current font, in whole pixels (rounded).
    std::int32_t TextWidth(std::string_view Text) override;
    /// Draws the text on one line with its top at Rect's top, left-aligned unless Flags ask
    /// for centred or right alignment, and returns `LineHeight`. With
    /// `Platform::TextFlags::CalcRect` nothing is drawn: Rect's right and bottom edges are
    /// set to the text's width and line height from its left and top.
    std::int32_t DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) override;

    /// The right edge of everything drawn so far (0 before the first draw).
    std::int32_t DrawnRight() const noexcept;
    /// The height of a line of text in the current font, in whole pixels (rounded up).
    std::int32_t LineHeight();

    /// The image as the file's bytes. For a PDF this finishes the document: later draws do
    /// not reach it.
    std::string Contents();
    /// Writes `Contents` to the file at Path. A file that cannot be written raises
    /// `Platform::Exception` naming it.
    void SaveToFile(const std::string& Path);

private:
    struct Impl;
    std::unique_ptr<Impl> impl_;
};

}  // namespace KornumCanvas
