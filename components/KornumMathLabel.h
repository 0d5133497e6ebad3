/// @file
/// `KornumMathLabel::TKorMathLabel`: a label whose caption mixes text with mathematical
/// symbols and Greek letters. A caret introduces a symbol: the character after it is drawn
/// in the Symbol typeface, a letter as itself (the Greek letter at its code: `^p` is pi,
/// `^W` is Omega), the characters of a fixed table as symbol codes (`^+` is not-equal, `^<`
/// less-or-equal, `^8` element-of, ...), `^^` as a caret in the caption's font, and any
/// other character as a blank. A caret at the very end draws nothing. Drawing goes one
/// character at a time and stops at the right edge of the rectangle; a character is a
/// byte, or a whole UTF-8 sequence on a canvas that reads UTF-8.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumcontrols.h>

#include <memory>

/// The math-label module: `TKorMathLabel`, a label drawing Greek letters and mathematical
/// symbols inside ordinary text.
KORNUM_EXPORT_BEGIN
namespace KornumMathLabel {

using namespace Kornumglobals;

/// A label whose caption mixes text with symbols: `x^+y` draws x, the not-equal sign, y.
///
/// Everything but the drawing of the caption is the plain label's,
/// `Kornumcontrols::TKorCustomLabel`: `Paint` draws on a `Platform::TCanvas`, with the
/// caption, font, colours, layout and effect set there. A caret in the caption introduces
/// one symbol, drawn in `SymbolFont` (the face "Symbol", whose bytes a canvas reads through
/// the Adobe Symbol encoding):
///
/// | After `^` | Drawn |
/// |---|---|
/// | a letter `A` .. `Z`, `a` .. `z` | the letter's code: the Greek letter (`^a` alpha, `^p` pi, `^S` Sigma) |
/// | `!` `@` | logical or, logical and |
/// | `%` `&` `*` `/` | degree, infinity, multiplication sign, division sign |
/// | `+` `-` `=` `<` `>` | not equal, plus-minus, approximately equal, less or equal, greater or equal |
/// | `,` `.` | ellipsis, bullet |
/// | `0` `1` `2` | empty set, union, intersection |
/// | `3` `4` `5` `6` `7` | proper superset, superset or equal, not subset, proper subset, subset or equal |
/// | `8` `9` | element of, not element of |
/// | `{` `}` `(` | right arrow, left arrow, left-right arrow |
/// | `[` `]` `)` | double right arrow, double left arrow, double left-right arrow |
/// | `^` | a caret, in the caption's font |
/// | any other character | a blank, in the symbol font |
///
/// A caret as the last character draws nothing. The caption is drawn one character at a
/// time. A character is one byte on a canvas that reads Latin-1 (the default), or one whole
/// UTF-8 sequence on a canvas whose `Platform::TCanvas::TextEncoding` is
/// `Platform::TTextEncoding::Utf8`; there a caret takes the whole character after it (`^µ`
/// is a blank, as any other character), and a caption that is not UTF-8 raises
/// `Platform::EConvertError` (as `Platform::CheckUtf8`) before anything is drawn. Each call
/// advances the rectangle's left edge by the character's width; the first
/// character that passes the right edge is the last drawn. The alignment applies to each
/// character within what is left of the rectangle, so only left justification, which the
/// constructor sets with `AutoSize` off, lays the caption out as one line; with the raised
/// or sunken effect every character is drawn three times (shadow, highlight, text), and a
/// disabled label draws in `Platform::clGrayText`.
class TKorMathLabel : public Kornumcontrols::TKorCustomLabel {
public:
    /// A label owned by AOwner (may be null): creates the symbol font (`Font`'s settings
    /// with the face "Symbol"), turns `AutoSize` off and aligns left.
    explicit TKorMathLabel(Platform::TComponent* AOwner);
    /// Releases the symbol font.
    ~TKorMathLabel() override;

    /// The font the symbols are drawn in; drawing gives it `Font`'s size and style.
    const Platform::TFont& SymbolFont() const noexcept { return *symbolFont_; }

    /// `"TKorMathLabel"`.
    std::string_view ClassName() const override { return "TKorMathLabel"; }
    /// The published properties, in this order: Align, Anchors, BiDiMode, Caption, Color,
    /// Constraints, DragCursor, DragKind, DragMode, Enabled, FocusControl, Font, Layout,
    /// ParentBiDiMode, ParentColor, ParentFont, ParentShowHint, PopupMenu, ShowAccelChar,
    /// ShowHint, Transparent, Visible, WordWrap, and the events OnClick to OnStartDrag, all
    /// taken from `Kornumcontrols::TKorCustomLabel::LabelProperty`.
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;

    /// The byte drawn in the symbol font for the character after a caret: a letter itself,
    /// the table's code for the table's characters (`+` gives 0xB9, not-equal), a blank for
    /// any other. (A second caret is drawn as a caret in `Font` instead; this function
    /// gives a blank for it.)
    static char SymbolCode(char AfterCaret) noexcept;

protected:
    /// Draws the caption into Rect with Flags, on the canvas of the `Paint` in progress,
    /// one character at a time (a byte, or a UTF-8 sequence on a canvas that reads UTF-8,
    /// where a caption that is not UTF-8 raises `Platform::EConvertError` before any
    /// draw): plain characters in `Font`, a caret's symbol in `SymbolFont`. Rect's left
    /// edge advances by each character's width. With
    /// `Platform::TextFlags::CalcRect` an empty caption (or a lone `&` when
    /// `ShowAccelChar`) is measured as a blank; without `ShowAccelChar`,
    /// `Platform::TextFlags::NoPrefix` is added so that `&` is drawn.
    void DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags) override;

private:
    std::unique_ptr<Platform::TFont> symbolFont_;
};

}  // namespace KornumMathLabel
KORNUM_EXPORT_END
