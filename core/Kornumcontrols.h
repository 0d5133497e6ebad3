// The base classes of the library's controls: TKorCustomLabel, a text label that draws
// its caption on a Platform::TCanvas.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformComponents.h>
#include <kornum/PlatformGraphics.h>

#include <functional>
#include <span>
#include <string>

namespace KORNUM_API Kornumcontrols {

using namespace Kornumglobals;

enum class TAlignment : std::uint8_t { LeftJustify, RightJustify, Center };
enum class TTextLayout : std::uint8_t { Top, Center, Bottom };
// The drawn relief of the text: none, raised (shadow below right, highlight above left)
// or sunken (the two colours exchanged).
enum class TLabelEffect : std::uint8_t { None = 0, Raised = 1, Sunken = 2 };

// A label: a caption drawn in a font into the control's rectangle. Paint draws it on a
// canvas through the virtual DoDrawLabel, which a derived label overrides to draw
// differently. Besides what drawing uses, it keeps the settings a form designer
// publishes for every control (alignment in the parent, anchors, drag and hint
// settings, event handlers); they are stored and streamed, not acted on.
class TKorCustomLabel : public Platform::TComponent {
public:
    using TNotifyEvent = std::function<void(TKorCustomLabel& Sender)>;

    explicit TKorCustomLabel(Platform::TComponent* AOwner);

    // ---- What drawing uses
    const std::string& Caption() const noexcept { return caption_; }
    void SetCaption(std::string Value) { caption_ = std::move(Value); }
    Platform::TFont& Font() noexcept { return font_; }
    const Platform::TFont& Font() const noexcept { return font_; }
    void SetFont(const Platform::TFont& Value) { font_.Assign(Value); }
    Platform::TColor Color() const noexcept { return color_; }
    void SetColor(Platform::TColor Value) noexcept { color_ = Value; }
    Boolean Enabled() const noexcept { return enabled_; }
    void SetEnabled(Boolean Value) noexcept { enabled_ = Value; }
    Boolean ShowAccelChar() const noexcept { return showAccelChar_; }
    void SetShowAccelChar(Boolean Value) noexcept { showAccelChar_ = Value; }
    Boolean WordWrap() const noexcept { return wordWrap_; }
    void SetWordWrap(Boolean Value) noexcept { wordWrap_ = Value; }
    TTextLayout Layout() const noexcept { return layout_; }
    void SetLayout(TTextLayout Value) noexcept { layout_ = Value; }
    TAlignment Alignment() const noexcept { return alignment_; }
    void SetAlignment(TAlignment Value) noexcept { alignment_ = Value; }
    Boolean Transparent() const noexcept { return transparent_; }
    void SetTransparent(Boolean Value) noexcept { transparent_ = Value; }
    TLabelEffect Effect() const noexcept { return effect_; }
    void SetEffect(TLabelEffect Value) noexcept { effect_ = Value; }
    // Whether the label sizes itself to its caption; true for a plain label.
    Boolean AutoSize() const noexcept { return autoSize_; }
    virtual void SetAutoSize(Boolean Value) { autoSize_ = Value; }

    // The control's rectangle in its parent; drawing fills (0, 0, Width, Height).
    Platform::TRect BoundsRect() const noexcept { return bounds_; }
    void SetBounds(Integer Left, Integer Top, Integer Width, Integer Height) noexcept {
        bounds_ = {Left, Top, Left + Width, Top + Height};
    }

    // Draws the caption on Canvas: the rectangle and flags follow from Alignment,
    // Layout, WordWrap and ShowAccelChar; a centred or bottom layout measures first.
    void Paint(Platform::TCanvas& Canvas);

    // ---- Settings kept for the form designer
    Integer Align = 0, Anchors = 3, BiDiMode = 0, DragCursor = -12, DragKind = 0, DragMode = 0;
    std::string Constraints, FocusControl, PopupMenu;
    Boolean ParentBiDiMode = true, ParentColor = true, ParentFont = true, ParentShowHint = true, ShowHint = false,
            Visible = true;
    TNotifyEvent OnClick, OnContextPopup, OnDblClick, OnDragDrop, OnDragOver, OnEndDock, OnEndDrag, OnMouseDown,
        OnMouseMove, OnMouseUp, OnStartDock, OnStartDrag;

    std::string_view ClassName() const override { return "TKorCustomLabel"; }
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;

    // Every property a label may publish, by name; nullptr for another name. A label
    // class lists the ones it publishes, in its own order.
    static const Platform::TPropertyInfo* LabelProperty(std::string_view Name);

protected:
    // Draws the caption into Rect with Flags (the text-drawing flags), on Canvas().
    // This one draws it whole, with the effect and, when disabled, in grey.
    virtual void DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags);
    // The canvas of the Paint in progress.
    Platform::TCanvas& Canvas() const noexcept { return *canvas_; }
    // The effect's two colours: (offset down-right, offset up-left).
    std::pair<Platform::TColor, Platform::TColor> EffectColors() const noexcept;

private:
    std::string caption_;
    Platform::TFont font_;
    Platform::TColor color_ = Platform::clBtnFace;
    Boolean enabled_ = true, showAccelChar_ = true, wordWrap_ = false, transparent_ = false, autoSize_ = true;
    TTextLayout layout_ = TTextLayout::Top;
    TAlignment alignment_ = TAlignment::LeftJustify;
    TLabelEffect effect_ = TLabelEffect::None;
    Platform::TRect bounds_{0, 0, 65, 17};
    Platform::TCanvas* canvas_ = nullptr;
};

}  // namespace Kornumcontrols
