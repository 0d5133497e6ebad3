/// @file
/// The base classes of the library's controls: `Kornumcontrols::TKorCustomLabel`, a text
/// label that draws its caption on a `Platform::TCanvas`.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformComponents.h>
#include <kornum/PlatformGraphics.h>

#include <functional>
#include <span>
#include <string>

/// The controls module: the toolkit-neutral base of the library's controls. A control
/// keeps its state and draws only through `Platform::TCanvas`; a host application
/// translates its toolkit's events into plain calls.
KORNUM_EXPORT_BEGIN
namespace Kornumcontrols {

using namespace Kornumglobals;

/// The horizontal placement of a caption in the label's rectangle.
enum class TAlignment : std::uint8_t {
    LeftJustify,   ///< Against the left edge.
    RightJustify,  ///< Against the right edge.
    Center         ///< Centred.
};
/// The vertical placement of a caption in the label's rectangle.
enum class TTextLayout : std::uint8_t {
    Top,     ///< Against the top edge.
    Center,  ///< Centred.
    Bottom   ///< Against the bottom edge.
};
/// The drawn relief of the text: none, raised (shadow below right, highlight above left)
/// or sunken (the two colours exchanged).
enum class TLabelEffect : std::uint8_t {
    None = 0,    ///< Flat text.
    Raised = 1,  ///< A shadow one pixel below right, a highlight one pixel above left.
    Sunken = 2   ///< A highlight one pixel below right, a shadow one pixel above left.
};

/// A label: a caption drawn in a font into the control's rectangle. Paint draws it on a
/// canvas through the virtual DoDrawLabel, which a derived label overrides to draw
/// differently. Besides what drawing uses, it keeps the settings a form designer
/// publishes for every control (alignment in the parent, anchors, drag and hint
/// settings, event handlers); they are stored and streamed, not acted on.
///
/// Each property is a getter named as the property and a setter named `Set` + property;
/// `PublishedProperties` lists them for streaming (`Platform::WriteComponentText`) and
/// inspection.
class TKorCustomLabel : public Platform::TComponent {
public:
    /// An event handler: called with the label that raised the event.
    using TNotifyEvent = std::function<void(TKorCustomLabel& Sender)>;

    /// A label owned by `AOwner` (may be null), with an empty caption, the default font,
    /// 65 x 17 pixels at (0, 0).
    explicit TKorCustomLabel(Platform::TComponent* AOwner);

    // ---- What drawing uses
    /// The text drawn; empty by default.
    const std::string& Caption() const noexcept { return caption_; }
    /// Sets the text drawn.
    void SetCaption(std::string Value) { caption_ = std::move(Value); }
    /// The font the caption is drawn in; changes take effect at the next Paint.
    Platform::TFont& Font() noexcept { return font_; }
    /// The font the caption is drawn in.
    const Platform::TFont& Font() const noexcept { return font_; }
    /// Takes face, size, style and colour of `Value`.
    void SetFont(const Platform::TFont& Value) { font_.Assign(Value); }
    /// The background colour; `Platform::clBtnFace` by default. Stored and streamed;
    /// Paint draws only the text and does not fill the background.
    Platform::TColor Color() const noexcept { return color_; }
    /// Sets the background colour.
    void SetColor(Platform::TColor Value) noexcept { color_ = Value; }
    /// Whether the label is enabled; true by default. A disabled label draws its text in
    /// `Platform::clGrayText`.
    Boolean Enabled() const noexcept { return enabled_; }
    /// Enables or disables the label.
    void SetEnabled(Boolean Value) noexcept { enabled_ = Value; }
    /// Whether `&` in the caption marks an accelerator character (true by default); when
    /// false, `&` is drawn as it is.
    Boolean ShowAccelChar() const noexcept { return showAccelChar_; }
    /// Sets whether `&` marks an accelerator character.
    void SetShowAccelChar(Boolean Value) noexcept { showAccelChar_ = Value; }
    /// Whether the caption is broken between words to fit the width; false by default.
    Boolean WordWrap() const noexcept { return wordWrap_; }
    /// Sets whether the caption is broken between words.
    void SetWordWrap(Boolean Value) noexcept { wordWrap_ = Value; }
    /// The vertical placement of the caption; `TTextLayout::Top` by default.
    TTextLayout Layout() const noexcept { return layout_; }
    /// Sets the vertical placement of the caption.
    void SetLayout(TTextLayout Value) noexcept { layout_ = Value; }
    /// The horizontal placement of the caption; `TAlignment::LeftJustify` by default.
    TAlignment Alignment() const noexcept { return alignment_; }
    /// Sets the horizontal placement of the caption.
    void SetAlignment(TAlignment Value) noexcept { alignment_ = Value; }
    /// Whether the background shows through; false by default. Stored and streamed; Paint
    /// draws only the text either way.
    Boolean Transparent() const noexcept { return transparent_; }
    /// Sets whether the background shows through.
    void SetTransparent(Boolean Value) noexcept { transparent_ = Value; }
    /// The relief the text is drawn with; `TLabelEffect::None` by default.
    TLabelEffect Effect() const noexcept { return effect_; }
    /// Sets the relief the text is drawn with.
    void SetEffect(TLabelEffect Value) noexcept { effect_ = Value; }
    /// Whether the label sizes itself to its caption; true for a plain label. Stored and
    /// streamed; this class does not resize itself.
    Boolean AutoSize() const noexcept { return autoSize_; }
    /// Sets whether the label sizes itself to its caption; a derived label may override it.
    virtual void SetAutoSize(Boolean Value) { autoSize_ = Value; }

    /// The control's rectangle in its parent; drawing fills (0, 0, Width, Height).
    /// (0, 0, 65, 17) by default.
    Platform::TRect BoundsRect() const noexcept { return bounds_; }
    /// Places the control at (Left, Top) in its parent with the given width and height.
    void SetBounds(Integer Left, Integer Top, Integer Width, Integer Height) noexcept {
        bounds_ = {Left, Top, Left + Width, Top + Height};
    }

    /// Draws the caption on Canvas: the rectangle and flags follow from Alignment,
    /// Layout, WordWrap and ShowAccelChar; a centred or bottom layout measures first.
    /// The canvas's font is set to the label's. Tabs are expanded. The drawing goes
    /// through `DoDrawLabel`, once to measure (centred or bottom layout) and once to draw.
    void Paint(Platform::TCanvas& Canvas);

    // ---- Settings kept for the form designer
    /// @name Settings kept for the form designer
    /// @{

    /// A setting kept for the form designer, initialised to its designer default. One of
    /// those a designer publishes for every control (alignment in the parent, anchors,
    /// bidirectional mode, constraints, drag settings, focus control, parent settings,
    /// pop-up menu, hints, visibility): stored and streamed, not acted on.
    Integer Align = 0, Anchors = 3, BiDiMode = 0, DragCursor = -12, DragKind = 0, DragMode = 0;
    std::string Constraints, FocusControl, PopupMenu;
    Boolean ParentBiDiMode = true, ParentColor = true, ParentFont = true, ParentShowHint = true, ShowHint = false,
            Visible = true;
    /// @}

    /// @name Event handlers
    /// @{

    /// An event handler kept for the form designer; empty by default. The label never
    /// calls it; inspection shows whether it is assigned, and streaming does not store it.
    TNotifyEvent OnClick, OnContextPopup, OnDblClick, OnDragDrop, OnDragOver, OnEndDock, OnEndDrag, OnMouseDown,
        OnMouseMove, OnMouseUp, OnStartDock, OnStartDrag;
    /// @}

    /// `"TKorCustomLabel"`.
    std::string_view ClassName() const override { return "TKorCustomLabel"; }
    /// Every property that `LabelProperty` knows: the stored ones in alphabetical order, then the
    /// event handlers (shown in inspection, not stored).
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;

    /// Every property a label may publish, by name; nullptr for another name. A label
    /// class lists the ones it publishes, in its own order. Colour and font are published
    /// as text (`Platform::ColorToText`, `Platform::TFont::ToText`), the enumerations as
    /// integers.
    static const Platform::TPropertyInfo* LabelProperty(std::string_view Name);

protected:
    /// Draws the caption into Rect with Flags (the text-drawing flags), on Canvas().
    /// This one draws it whole, with the effect and, when disabled, in grey. With
    /// `Platform::TextFlags::CalcRect` it only measures (an empty caption, or a lone `&`
    /// that marks an accelerator, measures as one space); without ShowAccelChar it adds
    /// `Platform::TextFlags::NoPrefix`.
    virtual void DoDrawLabel(Platform::TRect& Rect, std::uint32_t Flags);
    /// The canvas of the Paint in progress; only valid during Paint.
    Platform::TCanvas& Canvas() const noexcept { return *canvas_; }
    /// The effect's two colours: (offset down-right, offset up-left). Shadow then
    /// highlight, exchanged for `TLabelEffect::Sunken`.
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
KORNUM_EXPORT_END
