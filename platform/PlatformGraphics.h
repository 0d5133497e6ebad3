// The drawing slice of the platform: rectangles, colours, fonts, the text-drawing flags
// and an abstract canvas. A control draws only through a TCanvas, so an application
// implements one over its own toolkit, tests use one that records, and kornum_canvas
// gives one over Cairo that writes SVG, PNG and PDF.
//
// Text is bytes, one character each. A canvas whose font face is "Symbol" reads each
// byte through the Adobe Symbol encoding (0xB9 is U+2260 not-equal, 'p' is U+03C0 pi);
// with any other face a byte is the Latin-1 character of its value.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/PlatformClasses.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace KORNUM_API Platform {

struct TRect {
    std::int32_t Left = 0, Top = 0, Right = 0, Bottom = 0;

    std::int32_t Width() const noexcept { return Right - Left; }
    std::int32_t Height() const noexcept { return Bottom - Top; }
    // The rectangle moved by (dx, dy).
    TRect Offset(std::int32_t dx, std::int32_t dy) const noexcept { return {Left + dx, Top + dy, Right + dx, Bottom + dy}; }
    friend bool operator==(const TRect&, const TRect&) = default;
};

// The colours a canvas resolves itself, as the desktop it draws for shows them.
enum class TSystemColor : std::uint8_t { WindowText, BtnFace, BtnHighlight, BtnShadow, GrayText };

// A colour: red, green and blue, or a system colour that the canvas resolves.
class TColor {
public:
    constexpr TColor() noexcept = default;
    static constexpr TColor RGB(std::uint8_t red, std::uint8_t green, std::uint8_t blue) noexcept {
        return TColor(std::uint32_t(red) | std::uint32_t(green) << 8 | std::uint32_t(blue) << 16);
    }
    static constexpr TColor System(TSystemColor color) noexcept {
        return TColor(SystemFlag | std::uint32_t(color));
    }

    constexpr bool IsSystem() const noexcept { return (value_ & SystemFlag) != 0; }
    constexpr TSystemColor SystemColor() const noexcept { return TSystemColor(value_ & 0xFF); }
    constexpr std::uint8_t Red() const noexcept { return std::uint8_t(value_); }
    constexpr std::uint8_t Green() const noexcept { return std::uint8_t(value_ >> 8); }
    constexpr std::uint8_t Blue() const noexcept { return std::uint8_t(value_ >> 16); }
    // #RRGGBB of a colour that is not a system colour.
    std::string Html() const;

    friend constexpr bool operator==(TColor, TColor) = default;

private:
    static constexpr std::uint32_t SystemFlag = 0x80000000u;
    constexpr explicit TColor(std::uint32_t value) noexcept : value_(value) {}
    std::uint32_t value_ = 0;
};

// A colour as text: #RRGGBB, or the name of a system colour (clBtnFace, ...); and back,
// raising EConvertError for other text.
std::string ColorToText(TColor Color);
TColor ColorFromText(std::string_view Text);

inline constexpr TColor clBlack = TColor::RGB(0, 0, 0);
inline constexpr TColor clWhite = TColor::RGB(255, 255, 255);
inline constexpr TColor clWindowText = TColor::System(TSystemColor::WindowText);
inline constexpr TColor clBtnFace = TColor::System(TSystemColor::BtnFace);
inline constexpr TColor clBtnHighlight = TColor::System(TSystemColor::BtnHighlight);
inline constexpr TColor clBtnShadow = TColor::System(TSystemColor::BtnShadow);
inline constexpr TColor clGrayText = TColor::System(TSystemColor::GrayText);

// Font styles, combined as bits.
enum TFontStyle : std::uint8_t { fsBold = 1, fsItalic = 2, fsUnderline = 4, fsStrikeOut = 8 };

// A font: face name, size in points, style bits and colour.
class TFont : public TPersistent {
public:
    std::string Name = "DejaVu Sans";
    std::int32_t Size = 10;
    std::uint8_t Style = 0;
    TColor Color = clWindowText;

    // Takes face, size, style and colour of another font.
    void Assign(const TPersistent& Source) override;
    std::string_view ClassName() const override { return "TFont"; }

    // The font as text, "Face;Size;Styles;Colour" (styles as the letters B, I, U and S;
    // the colour as #RRGGBB or a system colour's name), and back; FromText raises
    // EConvertError for text of another form.
    std::string ToText() const;
    void FromText(std::string_view Text);
};

// The flags of DrawText, combined as bits.
namespace TextFlags {
inline constexpr std::uint32_t Left = 0x0000;
inline constexpr std::uint32_t Center = 0x0001;
inline constexpr std::uint32_t Right = 0x0002;
inline constexpr std::uint32_t VerticalCenter = 0x0004;
inline constexpr std::uint32_t Bottom = 0x0008;
inline constexpr std::uint32_t WordBreak = 0x0010;
inline constexpr std::uint32_t SingleLine = 0x0020;
inline constexpr std::uint32_t ExpandTabs = 0x0040;
inline constexpr std::uint32_t CalcRect = 0x0400;  // measure only: Rect receives the text's extent
inline constexpr std::uint32_t NoPrefix = 0x0800;  // '&' is drawn, not taken as an accelerator mark
}  // namespace TextFlags

// The Unicode character of a byte of the Adobe Symbol encoding; 0 for a byte that the
// encoding leaves undefined or a control code.
char32_t SymbolEncodingToUnicode(unsigned char Byte) noexcept;

// The characters that bytes of text stand for in a font of the given face.
std::u32string DecodeText(std::string_view Text, std::string_view Face);
// The same characters as UTF-8.
std::string TextToUtf8(std::string_view Text, std::string_view Face);

// A surface to draw text on. The canvas's Font is what the next call draws with.
class TCanvas {
public:
    virtual ~TCanvas() = default;

    TFont& Font() noexcept { return font_; }
    const TFont& Font() const noexcept { return font_; }

    // The width of the text in the current font, in pixels.
    virtual std::int32_t TextWidth(std::string_view Text) = 0;
    // Draws the text into Rect with Flags (or, with TextFlags::CalcRect, only sets Rect's
    // right and bottom edges to the text's extent); returns the height of the text.
    virtual std::int32_t DrawText(std::string_view Text, TRect& Rect, std::uint32_t Flags) = 0;

    // A system colour as this canvas shows it; other colours as they are. The default
    // is a light desktop theme.
    virtual TColor Resolve(TColor Color) const;

private:
    TFont font_;
};

}  // namespace Platform
