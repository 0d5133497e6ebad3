// TKorMathLabel: a label whose caption mixes text with mathematical symbols and Greek
// letters. A caret introduces a symbol: the character after it is drawn in the Symbol
// typeface, a letter as itself (the Greek letter at its code: ^p is pi, ^W is Omega),
// the characters of a fixed table as symbol codes (^+ is not-equal, ^< less-or-equal,
// ^8 element-of, ...), ^^ as a caret in the caption's font, and any other character as
// a blank. A caret at the very end draws nothing. Drawing goes one character at a time
// and stops at the right edge of the rectangle.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumcontrols.h>

#include <memory>

namespace KORNUM_API KornumMathLabel {

using namespace Kornumglobals;

class TKorMathLabel : public Kornumcontrols::TKorCustomLabel {
public:
    // Creates the symbol font (Font's settings with the face "Symbol"), turns AutoSize
    // off and aligns left.
    explicit TKorMathLabel(Platform::TComponent* AOwner);
    ~TKorMathLabel() override;

    // The font the symbols are drawn in; drawing gives it Font's size and style.
    const Platform::TFont& SymbolFont() const noexcept { return *symbolFont_; }

    std::string_view ClassName() const override { return "TKorMathLabel"; }
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;

    // The byte drawn in the symbol font for the character after a caret: a letter
    // itself, the table's code for the table's characters, a blank for any other. (A
    // second caret is drawn as a caret in Font instead.)
    static char SymbolCode(char AfterCaret) noexcept;

protected:
    void DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags) override;

private:
    std::unique_ptr<Platform::TFont> symbolFont_;
};

}  // namespace KornumMathLabel
