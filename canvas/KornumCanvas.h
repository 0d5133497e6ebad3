/// @file
/// A canvas over Cairo that draws text into an image and writes it as SVG, PNG or PDF, with
/// the widths of real fonts (found through fontconfig). Part of the library kornum_canvas,
/// the only one with a third-party dependency; the runtime libraries never link it.
///
/// The SVG keeps text as text: one `<text>` element per draw, naming its font and holding
/// the Unicode characters drawn, so that the picture stays searchable and readable by
/// assistive tools. A "Symbol" font's bytes are drawn as the characters the Adobe Symbol
/// encoding gives them, in DejaVu Sans, which has the Greek letters and the symbols; other
/// faces read Latin-1 or UTF-8 as the canvas's `Platform::TCanvas::TextEncoding` says.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformGraphics.h>

#include <bitset>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct _cairo;  // Cairo's context, cairo_t, seen only through a pointer

/// The Cairo canvas module (library kornum_canvas): `TKorImageCanvas`, an implementation of
/// `Platform::TCanvas` that writes SVG, PNG or PDF, and its helpers.
KORNUM_EXPORT_BEGIN
namespace KornumCanvas {

/// The file formats of a `TKorImageCanvas`.
enum class TImageFormat {
    Svg,  ///< SVG, written by the canvas itself: text stays text, one element per draw.
    Png,  ///< PNG, rendered by Cairo.
    Pdf   ///< PDF, written by Cairo with the fonts embedded.
};

/// The largest width and height of a PNG, in pixels: the limit of Cairo's images.
inline constexpr std::int32_t MaxPngSide = 32767;

/// Raised by the `TKorImageCanvas` constructor for a size it cannot make: a side below 1
/// pixel, a PNG side beyond `MaxPngSide`, or a surface Cairo refuses (out of memory). The
/// message gives the size asked for and the limit or Cairo's reason.
class EImageSize : public Platform::Exception {
public:
    /// An exception carrying `message`.
    using Platform::Exception::Exception;
};

/// Raised when text holds a character that the font drawing it has no glyph for (Cairo
/// would draw the font's empty box). The message names the face and the character, as
/// `U+4E2D` followed by the character itself unless it is a control character:
/// "the font 'DejaVu Sans' has no glyph for U+4E2D '中'".
class EMissingGlyph : public Platform::Exception {
public:
    /// The exception for Character missing from the face Face.
    EMissingGlyph(char32_t Character, const std::string& Face);
    /// The character that has no glyph.
    char32_t Character() const noexcept { return character_; }

private:
    char32_t character_;
};

/// Raised by `TKorImageCanvas::SaveToFile` when the file cannot be opened, written or
/// closed. The message is "cannot write the image to 'PATH': REASON", REASON being the
/// system's (`std::strerror`), which `Reason` gives alone.
class EWriteError : public Platform::Exception {
public:
    /// The exception for the file at Path and the system's error number Error.
    EWriteError(const std::string& Path, int Error);
    /// The path of the file that could not be written.
    const std::string& Path() const noexcept { return path_; }
    /// The system's reason: "No space left on device", "Permission denied", ...
    const std::string& Reason() const noexcept { return reason_; }
    /// The system's error number (an `errno` value such as `ENOSPC`).
    int Error() const noexcept { return error_; }

private:
    std::string path_, reason_;
    int error_;
};

/// The format a file name's extension asks for (`.svg`, `.png`, `.pdf`, lower case, after
/// at least one other character), or none.
std::optional<TImageFormat> FormatOfPath(std::string_view Path);

/// The face that draws a font's characters: DejaVu Sans for "Symbol" (whose bytes the
/// canvas has already turned into Unicode characters), else the face itself.
std::string RenderingFace(std::string_view Face);

/// A `Platform::TCanvas` that draws on a Cairo context the caller owns: a window's
/// drawing area, or the image of a `TKorImageCanvas`.
///
/// Text is measured with Cairo and the fonts fontconfig finds, at 96 pixels per inch (a
/// font of 10 points is set at 13.33 pixels); a character the font has no glyph for
/// raises `EMissingGlyph` when it is measured or drawn, and text that is not UTF-8 on a
/// canvas reading UTF-8 raises `Platform::EConvertError`. System colours are resolved by
/// `Platform::TCanvas::Resolve` (a light desktop theme). `Platform::TextFlags::Center`
/// and `Platform::TextFlags::Right` align the text within the rectangle,
/// `Platform::TextFlags::CalcRect` measures without drawing, and `&` is an accelerator
/// mark unless `Platform::TextFlags::NoPrefix` is given; the other flags are accepted and
/// ignored (a draw is one line at the rectangle's top). Rectangles, frames and lines are
/// drawn on whole pixels, and the clip rectangle is the context's clip.
class TKorCairoCanvas : public Platform::TCanvas {
public:
    /// A canvas drawing on Context (a `cairo_t*`), which must outlive it. The context's
    /// clip and source are changed by drawing; its other state is left as it is.
    explicit TKorCairoCanvas(_cairo* Context);
    /// Leaves the context to its owner.
    ~TKorCairoCanvas() override;

    /// The advance width of the text in the current font, in whole pixels (rounded).
    std::int32_t TextWidth(std::string_view Text) override;
    /// Draws the text on one line with its top at Rect's top, left-aligned unless Flags ask
    /// for centred or right alignment, and returns `LineHeight`. With
    /// `Platform::TextFlags::CalcRect` nothing is drawn: Rect's right and bottom edges are
    /// set to the text's width and line height from its left and top.
    std::int32_t DrawText(std::string_view Text, Platform::TRect& Rect, std::uint32_t Flags) override;
    /// Fills Rect with Color.
    void FillRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// A one-pixel frame along the inside of Rect in Color.
    void FrameRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// A one-pixel line through the pixels from (X1, Y1) to (X2, Y2) in Color.
    void DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2, Platform::TColor Color) override;
    /// Connected segments through Points, Width pixels wide in Color, with round joins.
    void Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width = 1) override;
    /// Limits later draws to Rect.
    void SetClipRect(const Platform::TRect& Rect) override;
    /// Removes the clip rectangle.
    void ResetClipRect() override;

    /// The right edge of everything drawn so far (0 before the first draw).
    std::int32_t DrawnRight() const noexcept { return drawnRight_; }
    /// The height of a line of text in the current font, in whole pixels (rounded up).
    std::int32_t LineHeight();

protected:
    /// Draws UTF-8 text already laid out: its left end at X, its baseline at Baseline,
    /// Width pixels wide, in the canvas font and the resolved Color.
    virtual void ShowText(const std::string& Utf8, double X, double Baseline, std::int32_t Width,
                          Platform::TColor Color);
    /// The Cairo context drawn on.
    _cairo* Context() const noexcept { return cr_; }

private:
    void UseFont();
    _cairo* cr_;
    // The font Cairo is set to, with its extents, and the text measured last: a control
    // that measures a text and then draws it has it measured once.
    Platform::TFont usedFont_;
    bool fontSet_ = false;
    double ascent_ = 0, descent_ = 0, height_ = 0;
    std::string measured_;
    Platform::TTextEncoding measuredEncoding_ = Platform::TTextEncoding::Latin1;
    std::int32_t measuredWidth_ = -1;
    std::bitset<128> glyphsChecked_;  // the ASCII characters the font is known to have
    std::int32_t drawnRight_ = 0;
};

/// A `Platform::TCanvas` that draws text into an image of a fixed size and gives it as
/// the bytes of an SVG, PNG or PDF file.
///
/// It is a `TKorCairoCanvas` over an image surface of its own (a PDF surface for PDF),
/// and measures and draws as that one does. Coordinates are pixels in every format: a PNG
/// has one pixel per unit, while a PDF page is 0.75 points per pixel (72 points per inch
/// over 96 pixels) and an SVG gives its font sizes in points, so that in both a font of 10
/// points is 10 points on the page. Underline and strike-out are drawn in PNG and PDF
/// only. An SVG keeps rectangles, lines and polylines as `<rect>`, `<line>` and `<polyline>` elements and a clip
/// rectangle as a `<clipPath>` that the later elements refer to.
class TKorImageCanvas : public TKorCairoCanvas {
public:
    /// An image of Width x Height pixels (a PDF page of 0.75 Width x 0.75 Height points),
    /// filled with Background. A size the canvas cannot make (a side below 1, a PNG side
    /// beyond `MaxPngSide`) raises `EImageSize`.
    TKorImageCanvas(TImageFormat Format, std::int32_t Width, std::int32_t Height, Platform::TColor Background);
    /// Releases the Cairo surface.
    ~TKorImageCanvas() override;

    /// Fills Rect with Color.
    void FillRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// A one-pixel frame along the inside of Rect in Color.
    void FrameRect(const Platform::TRect& Rect, Platform::TColor Color) override;
    /// A one-pixel line through the pixels from (X1, Y1) to (X2, Y2) in Color.
    void DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2, Platform::TColor Color) override;
    /// Connected segments through Points: in an SVG one `<polyline>` element.
    void Polyline(std::span<const Platform::TPointF> Points, Platform::TColor Color, double Width = 1) override;
    /// Limits later draws to Rect.
    void SetClipRect(const Platform::TRect& Rect) override;
    /// Removes the clip rectangle.
    void ResetClipRect() override;

    /// The image as the file's bytes. For a PDF this finishes the document: later draws do
    /// not reach it. A PNG or PDF that Cairo fails to write raises `Platform::Exception`
    /// with Cairo's reason.
    std::string Contents();
    /// Writes `Contents` to the file at Path, created or replaced. A file that cannot be
    /// opened, written or closed raises `EWriteError` naming it with the system's reason; a
    /// regular file left partly written is removed first, so that Path holds either the
    /// whole image or nothing.
    void SaveToFile(const std::string& Path);

protected:
    /// In an SVG, a `<text>` element; else drawn by Cairo.
    void ShowText(const std::string& Utf8, double X, double Baseline, std::int32_t Width,
                  Platform::TColor Color) override;

private:
    struct Impl;
    // Made before the Cairo canvas that draws on its context.
    TKorImageCanvas(std::unique_ptr<Impl> Surface, Platform::TColor Background);
    std::unique_ptr<Impl> impl_;
};

}  // namespace KornumCanvas
KORNUM_EXPORT_END
