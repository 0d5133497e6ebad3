/// @file
/// The drawing slice of the platform: rectangles, colours, fonts, the text-drawing flags
/// and an abstract canvas. A control draws only through a `Platform::TCanvas`, so an
/// application implements one over its own toolkit, tests use one that records, and
/// kornum_canvas gives one over Cairo that writes SVG, PNG and PDF.
///
/// Text is bytes. A canvas whose font face is "Symbol" reads each byte through the Adobe
/// Symbol encoding (0xB9 is U+2260 not-equal, `p` is U+03C0 pi); with any other face it
/// reads the bytes as its `TCanvas::TextEncoding` says: by default one character per
/// byte, the Latin-1 character of its value, or, when set to `TTextEncoding::Utf8`, whole
/// UTF-8 sequences.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformClasses.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

KORNUM_EXPORT_BEGIN
namespace Platform {

/// A rectangle in pixels: x grows to the right, y downwards, and Right and Bottom lie
/// just outside it, so that Width() = Right - Left.
struct TRect {
    /// @name Edges
    /// @{

    /// An edge's coordinate in pixels (all four are 0 by default).
    std::int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;
    /// @}

    /// Right - Left.
    std::int32_t Width() const noexcept { return Right - Left; }
    /// Bottom - Top.
    std::int32_t Height() const noexcept { return Bottom - Top; }
    /// The rectangle moved by (dx, dy).
    TRect Offset(std::int32_t dx, std::int32_t dy) const noexcept { return {Left + dx, Top + dy, Right + dx, Bottom + dy}; }
    /// True when all four edges agree.
    friend bool operator==(const TRect&, const TRect&) = default;
};

/// A point in pixels that need not be whole, for lines that follow a curve: x grows to
/// the right, y downwards, and (0.5, 0.5) is the centre of the top-left pixel.
struct TPointF {
    /// The horizontal coordinate in pixels.
    double X = 0;
    /// The vertical coordinate in pixels.
    double Y = 0;
    /// True when both coordinates agree.
    friend bool operator==(const TPointF&, const TPointF&) = default;
};

/// The colours a canvas resolves itself, as the desktop it draws for shows them
/// (`TCanvas::Resolve`).
enum class TSystemColor : std::uint8_t {
    WindowText,    ///< The text of windows and labels.
    BtnFace,       ///< The face of buttons and of panels.
    BtnHighlight,  ///< The lit edge of a raised surface.
    BtnShadow,     ///< The shaded edge of a raised surface.
    GrayText       ///< Disabled text.
};

/// A colour: red, green and blue, or a system colour that the canvas resolves. The
/// default colour is black.
class TColor {
public:
    /// Black.
    constexpr TColor() noexcept = default;
    /// The colour of the given red, green and blue intensities (0 to 255 each).
    static constexpr TColor RGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept {
        return TColor(std::uint32_t(red) | std::uint32_t(green) << 8 | std::uint32_t(blue) << 16);
    }
    /// A system colour, resolved by the canvas that draws with it.
    static constexpr TColor System(TSystemColor color) noexcept {
        return TColor(SystemFlag | std::uint32_t(color));
    }

    /// True for a system colour.
    constexpr bool IsSystem() const noexcept { return (value_ & SystemFlag) != 0; }
    /// The system colour; meaningful only when `IsSystem()`.
    constexpr TSystemColor SystemColor() const noexcept { return TSystemColor(value_ & 0xFF); }
    /// The red intensity of a colour that is not a system colour.
    constexpr std::uint8_t Red() const noexcept { return std::uint8_t(value_); }
    /// The green intensity of a colour that is not a system colour.
    constexpr std::uint8_t Green() const noexcept { return std::uint8_t(value_ >> 8); }
    /// The blue intensity of a colour that is not a system colour.
    constexpr std::uint8_t Blue() const noexcept { return std::uint8_t(value_ >> 16); }
    /// `#RRGGBB` (upper-case hexadecimal) of a colour that is not a system colour.
    std::string Html() const;

    /// True for the same intensities, or the same system colour.
    friend constexpr bool operator==(TColor, TColor) = default;

private:
    static constexpr std::uint32_t SystemFlag = 0x80000000u;
    constexpr explicit TColor(std::uint32_t value) noexcept : value_(value) {}
    std::uint32_t value_ = 0;
};

/// A colour as text: the name of a system colour (`clBtnFace`, ...), else `#RRGGBB`.
std::string ColorToText(TColor Color);
/// The colour of a text that `ColorToText` writes: a system colour's name, or `#RRGGBB`
/// with hexadecimal digits of either case. Other text raises `Platform::EConvertError`
/// quoting it.
TColor ColorFromText(std::string_view Text);

/// Black, (0, 0, 0).
inline constexpr TColor clBlack = TColor::RGB(0, 0, 0);
/// White, (255, 255, 255).
inline constexpr TColor clWhite = TColor::RGB(255, 255, 255);
/// The system colour of window text.
inline constexpr TColor clWindowText = TColor::System(TSystemColor::WindowText);
/// The system colour of button faces.
inline constexpr TColor clBtnFace = TColor::System(TSystemColor::BtnFace);
/// The system colour of the lit edge of a raised surface.
inline constexpr TColor clBtnHighlight = TColor::System(TSystemColor::BtnHighlight);
/// The system colour of the shaded edge of a raised surface.
inline constexpr TColor clBtnShadow = TColor::System(TSystemColor::BtnShadow);
/// The system colour of disabled text.
inline constexpr TColor clGrayText = TColor::System(TSystemColor::GrayText);

/// Font styles, combined as bits in `TFont::Style`.
enum TFontStyle : std::uint8_t {
    fsBold = 1,       ///< Bold (letter B in the font's text form).
    fsItalic = 2,     ///< Italic (I).
    fsUnderline = 4,  ///< Underlined (U).
    fsStrikeOut = 8   ///< Struck out (S).
};

/// A font: face name, size in points, style bits and colour.
class TFont : public TPersistent {
public:
    /// The face name; "Symbol" selects the Adobe Symbol encoding of text bytes.
    std::string Name = "DejaVu Sans";
    /// The size in points.
    std::int32_t Size = 10;
    /// The style: `TFontStyle` bits, 0 for a plain font.
    std::uint8_t Style = 0;
    /// The colour text is drawn in.
    TColor Color = clWindowText;

    /// Takes face, size, style and colour of another font. Any other source raises
    /// `Platform::EConvertError`, as `TPersistent::Assign` does.
    void Assign(const TPersistent& Source) override;
    /// `"TFont"`.
    std::string_view ClassName() const override { return "TFont"; }

    /// The font as text, "Face;Size;Styles;Colour" (styles as the letters B, I, U and S;
    /// the colour as `#RRGGBB` or a system colour's name): `DejaVu Sans;10;;clWindowText`
    /// for a new font.
    std::string ToText() const;
    /// Sets the font from its text form (`ToText`). Text of another form (an empty face, a
    /// size that is not a positive integer, an unknown style letter or colour) raises
    /// `Platform::EConvertError` quoting it, and leaves the font unchanged.
    void FromText(std::string_view Text);
};

/// The flags of `TCanvas::DrawText`, combined as bits.
namespace TextFlags {
inline constexpr std::uint32_t Left = 0x0000;            ///< Left-aligned (no bit: the default).
inline constexpr std::uint32_t Center = 0x0001;          ///< Centred horizontally.
inline constexpr std::uint32_t Right = 0x0002;           ///< Right-aligned.
inline constexpr std::uint32_t VerticalCenter = 0x0004;  ///< Centred vertically.
inline constexpr std::uint32_t Bottom = 0x0008;          ///< At the bottom of the rectangle.
inline constexpr std::uint32_t WordBreak = 0x0010;       ///< Lines broken between words to fit.
inline constexpr std::uint32_t SingleLine = 0x0020;      ///< One line, line ends not breaking it.
inline constexpr std::uint32_t ExpandTabs = 0x0040;      ///< Tabs expanded to tab stops.
inline constexpr std::uint32_t CalcRect = 0x0400;  ///< Measure only: Rect receives the text's extent.
inline constexpr std::uint32_t NoPrefix = 0x0800;  ///< `&` is drawn, not taken as an accelerator mark.
}  // namespace TextFlags

/// How a canvas reads the bytes of a text drawn in any face but "Symbol" (a "Symbol"
/// face always reads one byte per character, through the Adobe Symbol encoding).
enum class TTextEncoding : std::uint8_t {
    Latin1,  ///< One character per byte: the Latin-1 character of its value. The default.
    Utf8     ///< UTF-8: a character is one whole sequence of one to four bytes.
};

/// The Unicode character of a byte of the Adobe Symbol encoding; 0 for a byte that the
/// encoding leaves undefined or a control code.
char32_t SymbolEncodingToUnicode(unsigned char Byte) noexcept;

/// The length in bytes (1 to 4) of the UTF-8 character that Text begins with; 0 when Text
/// is empty or does not begin with a well-formed sequence (a continuation byte, a
/// sequence cut short, an overlong form, a surrogate or a code point beyond U+10FFFF).
std::size_t Utf8CharLength(std::string_view Text) noexcept;
/// True when Text is well-formed UTF-8 from end to end; the empty text is.
bool IsUtf8(std::string_view Text) noexcept;
/// Raises `Platform::EConvertError` when Text is not well-formed UTF-8; the message gives
/// the value and offset of the first byte that does not belong to a character ("the text
/// is not UTF-8: byte 0xE9 at offset 3"), so that it never carries the bad bytes.
void CheckUtf8(std::string_view Text);

/// The characters that the bytes of `Text` stand for in a font of the face `Face`: for
/// the face "Symbol" one character per byte, 0 where the byte is undefined; for any other
/// face one character per byte with `TTextEncoding::Latin1` (the default), or one per
/// UTF-8 sequence with `TTextEncoding::Utf8`, where text that is not UTF-8 raises
/// `Platform::EConvertError` as `CheckUtf8` does.
std::u32string DecodeText(std::string_view Text, std::string_view Face,
                          TTextEncoding Encoding = TTextEncoding::Latin1);
/// The same characters as `DecodeText` in UTF-8, without the zeros.
std::string TextToUtf8(std::string_view Text, std::string_view Face,
                       TTextEncoding Encoding = TTextEncoding::Latin1);

/// A surface to draw text on. The canvas's Font is what the next call draws with.
/// Implementations provide `TextWidth` and `DrawText`, and may override `Resolve`.
class TCanvas {
public:
    /// Virtual, so that a canvas is destroyed through a base reference.
    virtual ~TCanvas() = default;

    /// The font the next call draws with; changes take effect at once.
    TFont& Font() noexcept { return font_; }
    /// The font the next call draws with.
    const TFont& Font() const noexcept { return font_; }

    /// How the canvas reads text in any face but "Symbol": `TTextEncoding::Latin1`, one
    /// character per byte, unless set otherwise. A control that draws its text one
    /// character at a time reads it to find where each character ends.
    TTextEncoding TextEncoding() const noexcept { return encoding_; }
    /// Sets how the canvas reads text in any face but "Symbol". With
    /// `TTextEncoding::Utf8`, `TextWidth` and `DrawText` read UTF-8, and the library's
    /// canvases raise `Platform::EConvertError` for text that is not UTF-8.
    void SetTextEncoding(TTextEncoding Value) noexcept { encoding_ = Value; }

    /// The width of the text in the current font, in pixels.
    virtual std::int32_t TextWidth(std::string_view Text) = 0;
    /// Draws the text into Rect with Flags (or, with TextFlags::CalcRect, only sets Rect's
    /// right and bottom edges to the text's extent); returns the height of the text.
    /// Unless `TextFlags::NoPrefix` is given, `&` marks the next character as an
    /// accelerator and is not drawn (`&&` draws one `&`).
    virtual std::int32_t DrawText(std::string_view Text, TRect& Rect, std::uint32_t Flags) = 0;

    /// @name Shapes and clipping
    /// What grids and plots draw besides text. Coordinates are pixels, as for `TRect`. A canvas
    /// that only draws text may leave these as they are: they then draw nothing.
    /// @{

    /// Fills Rect (Right and Bottom excluded) with Color.
    virtual void FillRect(const TRect& Rect, TColor Color);
    /// Draws a frame one pixel wide along the inside of Rect in Color.
    virtual void FrameRect(const TRect& Rect, TColor Color);
    /// Draws a line one pixel wide in Color through the pixels from (X1, Y1) to (X2, Y2),
    /// both ends included.
    virtual void DrawLine(std::int32_t X1, std::int32_t Y1, std::int32_t X2, std::int32_t Y2, TColor Color);
    /// Draws connected straight segments through Points, in order, Width pixels wide in
    /// Color, with round joins; fewer than two points draw nothing.
    virtual void Polyline(std::span<const TPointF> Points, TColor Color, double Width = 1);
    /// Limits every later draw to Rect, replacing any earlier clip rectangle.
    virtual void SetClipRect(const TRect& Rect);
    /// Removes the clip rectangle: later draws reach the whole surface.
    virtual void ResetClipRect();
    /// @}

    /// A system colour as this canvas shows it; other colours as they are. The default
    /// is a light desktop theme: black text, faces (240, 240, 240), white highlights,
    /// shadows (160, 160, 160), grey text (109, 109, 109).
    virtual TColor Resolve(TColor Color) const;

private:
    TFont font_;
    TTextEncoding encoding_ = TTextEncoding::Latin1;
};

}  // namespace Platform
KORNUM_EXPORT_END
