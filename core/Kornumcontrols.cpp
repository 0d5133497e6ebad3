#include <kornum/Kornumcontrols.h>

#include <map>
#include <vector>

namespace Kornumcontrols {
namespace {

using Platform::TPropertyInfo;
using Platform::TPropertyType;
using Platform::TPropertyValue;

const TKorCustomLabel& Self(const Platform::TComponent& c) { return static_cast<const TKorCustomLabel&>(c); }
TKorCustomLabel& Self(Platform::TComponent& c) { return static_cast<TKorCustomLabel&>(c); }

// Sets the rectangle and the colour of a call into the canvas's font for one draw.
void DrawIn(Platform::TCanvas& canvas, std::string_view text, Platform::TRect rect, std::uint32_t flags,
            Platform::TColor color) {
    canvas.Font().Color = color;
    canvas.DrawText(text, rect, flags);
}

// The properties a label may publish. Settings of the form designer are stored plain;
// event handlers show only in inspection (a text form cannot hold code).
#define KORNUM_FIELD(Name, Kind, CppType, Default)                                                         \
    {#Name, TPropertyType::Kind, true, TPropertyValue(Default),                                            \
     [](const Platform::TComponent& c) { return TPropertyValue(Self(c).Name); },                           \
     [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).Name = decltype(Self(c).Name)(std::get<CppType>(v)); }}
#define KORNUM_ACCESSOR(Name, Kind, CppType, Default)                                                      \
    {#Name, TPropertyType::Kind, true, TPropertyValue(Default),                                            \
     [](const Platform::TComponent& c) { return TPropertyValue(CppType(Self(c).Name())); },                \
     [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).Set##Name(decltype(Self(c).Name())(std::get<CppType>(v))); }}
#define KORNUM_ENUM(Name, Type, Default)                                                                   \
    {#Name, TPropertyType::Integer, true, TPropertyValue(std::int64_t(Default)),                           \
     [](const Platform::TComponent& c) { return TPropertyValue(std::int64_t(Self(c).Name())); },           \
     [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).Set##Name(Type(std::get<std::int64_t>(v))); }}
#define KORNUM_EVENT(Name)                                                                                 \
    {#Name, TPropertyType::Text, false, TPropertyValue(std::string()),                                     \
     [](const Platform::TComponent& c) { return TPropertyValue(std::string(Self(c).Name ? "assigned" : "")); }, \
     [](Platform::TComponent&, const TPropertyValue&) {}}

const std::vector<TPropertyInfo>& AllLabelProperties() {
    static const std::vector<TPropertyInfo> properties = {
        KORNUM_FIELD(Align, Integer, std::int64_t, std::int64_t(0)),
        KORNUM_ENUM(Alignment, TAlignment, TAlignment::LeftJustify),
        KORNUM_FIELD(Anchors, Integer, std::int64_t, std::int64_t(3)),
        KORNUM_ACCESSOR(AutoSize, Boolean, bool, true),
        KORNUM_FIELD(BiDiMode, Integer, std::int64_t, std::int64_t(0)),
        KORNUM_ACCESSOR(Caption, Text, std::string, std::string()),
        {"Color", TPropertyType::Text, true, TPropertyValue(Platform::ColorToText(Platform::clBtnFace)),
         [](const Platform::TComponent& c) { return TPropertyValue(Platform::ColorToText(Self(c).Color())); },
         [](Platform::TComponent& c, const TPropertyValue& v) {
             Self(c).SetColor(Platform::ColorFromText(std::get<std::string>(v)));
         }},
        KORNUM_FIELD(Constraints, Text, std::string, std::string()),
        KORNUM_FIELD(DragCursor, Integer, std::int64_t, std::int64_t(-12)),
        KORNUM_FIELD(DragKind, Integer, std::int64_t, std::int64_t(0)),
        KORNUM_FIELD(DragMode, Integer, std::int64_t, std::int64_t(0)),
        KORNUM_ENUM(Effect, TLabelEffect, TLabelEffect::None),
        KORNUM_ACCESSOR(Enabled, Boolean, bool, true),
        KORNUM_FIELD(FocusControl, Text, std::string, std::string()),
        {"Font", TPropertyType::Text, true, TPropertyValue(Platform::TFont().ToText()),
         [](const Platform::TComponent& c) { return TPropertyValue(Self(c).Font().ToText()); },
         [](Platform::TComponent& c, const TPropertyValue& v) { Self(c).Font().FromText(std::get<std::string>(v)); }},
        KORNUM_ENUM(Layout, TTextLayout, TTextLayout::Top),
        KORNUM_FIELD(ParentBiDiMode, Boolean, bool, true),
        KORNUM_FIELD(ParentColor, Boolean, bool, true),
        KORNUM_FIELD(ParentFont, Boolean, bool, true),
        KORNUM_FIELD(ParentShowHint, Boolean, bool, true),
        KORNUM_FIELD(PopupMenu, Text, std::string, std::string()),
        KORNUM_ACCESSOR(ShowAccelChar, Boolean, bool, true),
        KORNUM_FIELD(ShowHint, Boolean, bool, false),
        KORNUM_ACCESSOR(Transparent, Boolean, bool, false),
        KORNUM_FIELD(Visible, Boolean, bool, true),
        KORNUM_ACCESSOR(WordWrap, Boolean, bool, false),
        KORNUM_EVENT(OnClick), KORNUM_EVENT(OnContextPopup), KORNUM_EVENT(OnDblClick), KORNUM_EVENT(OnDragDrop),
        KORNUM_EVENT(OnDragOver), KORNUM_EVENT(OnEndDock), KORNUM_EVENT(OnEndDrag), KORNUM_EVENT(OnMouseDown),
        KORNUM_EVENT(OnMouseMove), KORNUM_EVENT(OnMouseUp), KORNUM_EVENT(OnStartDock), KORNUM_EVENT(OnStartDrag),
    };
    return properties;
}

#undef KORNUM_FIELD
#undef KORNUM_ACCESSOR
#undef KORNUM_ENUM
#undef KORNUM_EVENT

// Resets the canvas of a paint when it ends, an exception passing included.
class CanvasInForce {
public:
    CanvasInForce(Platform::TCanvas*& slot, Platform::TCanvas& canvas) noexcept : slot_(slot) { slot_ = &canvas; }
    ~CanvasInForce() { slot_ = nullptr; }
    CanvasInForce(const CanvasInForce&) = delete;
    CanvasInForce& operator=(const CanvasInForce&) = delete;

private:
    Platform::TCanvas*& slot_;
};

}  // namespace

TKorCustomLabel::TKorCustomLabel(Platform::TComponent* AOwner) : Platform::TComponent(AOwner) {}

const Platform::TPropertyInfo* TKorCustomLabel::LabelProperty(std::string_view Name) {
    for (const TPropertyInfo& property : AllLabelProperties())
        if (property.Name == Name) return &property;
    return nullptr;
}

std::span<const Platform::TPropertyInfo> TKorCustomLabel::PublishedProperties() const { return AllLabelProperties(); }

std::pair<Platform::TColor, Platform::TColor> TKorCustomLabel::EffectColors() const noexcept {
    if (effect_ == TLabelEffect::Sunken) return {Platform::clBtnHighlight, Platform::clBtnShadow};
    return {Platform::clBtnShadow, Platform::clBtnHighlight};
}

void TKorCustomLabel::Paint(Platform::TCanvas& Canvas) {
    const CanvasInForce inForce(canvas_, Canvas);
    Canvas.Font().Assign(font_);
    Platform::TRect rect{0, 0, bounds_.Width(), bounds_.Height()};
    std::uint32_t flags = Platform::TextFlags::ExpandTabs;
    flags |= wordWrap_ ? Platform::TextFlags::WordBreak : 0;
    flags |= alignment_ == TAlignment::Center         ? Platform::TextFlags::Center
             : alignment_ == TAlignment::RightJustify ? Platform::TextFlags::Right
                                                      : Platform::TextFlags::Left;
    if (layout_ != TTextLayout::Top) {
        Platform::TRect measured = rect;
        DoDrawLabel(measured, flags | Platform::TextFlags::CalcRect);
        const Integer room = rect.Height() - measured.Height();
        rect.Top += layout_ == TTextLayout::Center ? room / 2 : room;
    }
    DoDrawLabel(rect, flags);
}

void TKorCustomLabel::DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags) {
    std::string text = caption_;
    if ((Flags & Platform::TextFlags::CalcRect) && (text.empty() || (showAccelChar_ && text == "&"))) text.assign(1, ' ');
    if (!showAccelChar_) Flags |= Platform::TextFlags::NoPrefix;
    Platform::TCanvas& canvas = Canvas();
    canvas.Font().Assign(font_);
    if (Flags & Platform::TextFlags::CalcRect) {
        canvas.DrawText(text, Rect, Flags);
        return;
    }
    if (effect_ != TLabelEffect::None) {
        const auto [down, up] = EffectColors();
        DrawIn(canvas, text, Rect.Offset(1, 1), Flags, down);
        DrawIn(canvas, text, Rect.Offset(-1, -1), Flags, up);
    }
    DrawIn(canvas, text, Rect, Flags, enabled_ ? font_.Color : Platform::clGrayText);
}

}  // namespace Kornumcontrols
