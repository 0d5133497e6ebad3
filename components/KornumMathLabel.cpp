#include <kornum/KornumMathLabel.h>

#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace KornumMathLabel {
namespace {

// The characters that stand for a symbol after a caret, and the symbol's code in the
// Symbol typeface's encoding.
constexpr std::array<std::pair<char, unsigned char>, 29> EscapeTable{{
    {'!', 0xDA},  // logical or
    {'%', 0xB0},  // degree
    {'&', 0xA5},  // infinity
    {'(', 0xAB},  // left-right arrow
    {')', 0xDB},  // double left-right arrow
    {'*', 0xB4},  // multiplication sign
    {'+', 0xB9},  // not equal
    {',', 0xBC},  // ellipsis
    {'-', 0xB1},  // plus-minus
    {'.', 0xB7},  // bullet
    {'/', 0xB8},  // division sign
    {'0', 0xC6},  // empty set
    {'1', 0xC8},  // union
    {'2', 0xC7},  // intersection
    {'3', 0xC9},  // proper superset
    {'4', 0xCA},  // superset or equal
    {'5', 0xCB},  // not subset
    {'6', 0xCC},  // proper subset
    {'7', 0xCD},  // subset or equal
    {'8', 0xCE},  // element of
    {'9', 0xCF},  // not element of
    {'<', 0xA3},  // less or equal
    {'=', 0xBB},  // approximately equal
    {'>', 0xB3},  // greater or equal
    {'@', 0xD9},  // logical and
    {'[', 0xDE},  // double right arrow
    {']', 0xDC},  // double left arrow
    {'{', 0xAE},  // right arrow
    {'}', 0xAC},  // left arrow
}};

// The published properties, in this class's order.
constexpr std::array<std::string_view, 35> PublishedNames{
    "Align",          "Anchors",     "BiDiMode",    "Caption",        "Color",         "Constraints",  "DragCursor",
    "DragKind",       "DragMode",    "Enabled",     "FocusControl",   "Font",          "Layout",       "ParentBiDiMode",
    "ParentColor",    "ParentFont",  "ParentShowHint", "PopupMenu",   "ShowAccelChar", "ShowHint",     "Transparent",
    "Visible",        "WordWrap",    "OnClick",     "OnContextPopup", "OnDblClick",    "OnDragDrop",   "OnDragOver",
    "OnEndDock",      "OnEndDrag",   "OnMouseDown", "OnMouseMove",    "OnMouseUp",     "OnStartDock",  "OnStartDrag"};

const std::vector<Platform::TPropertyInfo>& MathLabelProperties() {
    static const std::vector<Platform::TPropertyInfo> properties = [] {
        std::vector<Platform::TPropertyInfo> list;
        for (std::string_view name : PublishedNames) list.push_back(*Kornumcontrols::TKorCustomLabel::LabelProperty(name));
        return list;
    }();
    return properties;
}

bool IsLetter(char c) noexcept { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

}  // namespace

TKorMathLabel::TKorMathLabel(Platform::TComponent* AOwner)
    : TKorCustomLabel(AOwner), symbolFont_(std::make_unique<Platform::TFont>()) {
    symbolFont_->Assign(Font());
    symbolFont_->Name = "Symbol";
    SetAutoSize(false);
    SetAlignment(Kornumcontrols::TAlignment::LeftJustify);
}

TKorMathLabel::~TKorMathLabel() = default;

std::span<const Platform::TPropertyInfo> TKorMathLabel::PublishedProperties() const { return MathLabelProperties(); }

char TKorMathLabel::SymbolCode(char AfterCaret) noexcept {
    if (IsLetter(AfterCaret)) return AfterCaret;
    for (auto [c, code] : EscapeTable)
        if (c == AfterCaret) return char(code);
    return ' ';
}

void TKorMathLabel::DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags) {
    std::string text = Caption();
    symbolFont_->Size = Font().Size;
    symbolFont_->Style = Font().Style;
    if ((Flags & Platform::TextFlags::CalcRect) && (text.empty() || (ShowAccelChar() && text == "&"))) text.assign(1, ' ');
    if (!ShowAccelChar()) Flags |= Platform::TextFlags::NoPrefix;
    const auto [down, up] = EffectColors();
    Platform::TCanvas& canvas = Canvas();
    // A canvas that reads UTF-8 gets whole sequences, one character per draw; the caption
    // is checked first, so that a bad one draws nothing.
    const bool utf8 = canvas.TextEncoding() == Platform::TTextEncoding::Utf8;
    if (utf8) Platform::CheckUtf8(text);
    if (text.empty()) return;

    bool escape = false;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t length = utf8 ? Platform::Utf8CharLength(std::string_view(text).substr(at)) : 1;
        const std::string_view c = std::string_view(text).substr(at, length);
        at += length;
        std::string s;
        if (escape) {
            if (c == "^") {
                canvas.Font().Assign(Font());
                s.assign(1, '^');
            } else {
                // Only a one-byte character can stand for a symbol; any longer one is "any
                // other character", a blank.
                canvas.Font().Assign(*symbolFont_);
                s.assign(1, length == 1 ? SymbolCode(c[0]) : ' ');
            }
            escape = false;
        } else if (c != "^") {
            canvas.Font().Assign(Font());
            s.assign(c);
        } else {
            escape = true;
            continue;
        }
        if (Effect() != Kornumcontrols::TLabelEffect::None) {
            Platform::TRect below = Rect.Offset(1, 1), above = Rect.Offset(-1, -1);
            canvas.Font().Color = down;
            canvas.DrawText(s, below, Flags);
            canvas.Font().Color = up;
            canvas.DrawText(s, above, Flags);
        }
        canvas.Font().Color = Enabled() ? Font().Color : Platform::clGrayText;
        canvas.DrawText(s, Rect, Flags);
        Rect.Left += canvas.TextWidth(s);
        if (Rect.Left > Rect.Right) return;  // the rest of the caption is dropped
    }
}

}  // namespace KornumMathLabel
