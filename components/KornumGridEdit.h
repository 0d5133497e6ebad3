/// @file
/// `KornumGridEdit::TKorCustomGridEdit`: the grid of numeric edit cells that the vector
/// and matrix edit controls share. It keeps the current cell, the selection, the scroll
/// position and the edit in progress, draws through a `Platform::TCanvas` and takes input
/// as plain calls; what the cells hold comes from the control built on it.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/Kornumglobals.h>
#include <kornum/PlatformComponents.h>
#include <kornum/PlatformGraphics.h>
#include <kornum/PlatformInput.h>

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

/// The grid-edit module: the toolkit-neutral grid under `KornumVectorEdit` and
/// `KornumMatrixEdit`.
KORNUM_EXPORT_BEGIN
namespace KornumGridEdit {

using namespace Kornumglobals;

/// A block of cells, its edges included: rows Top to Bottom, columns Left to Right.
struct TGridRect {
    /// @name Edges
    /// @{

    /// A row or column index of the block's edge.
    Integer Left = 0, Top = 0, Right = 0, Bottom = 0;
    /// @}

    /// True when both blocks have the same edges.
    friend bool operator==(const TGridRect&, const TGridRect&) = default;
};

/// A scrollable grid of numeric edit cells: a header row of column titles, a header
/// column of row titles (the row indices), optionally a column of labels, and the value
/// cells, rows and columns numbered from 0.
///
/// **Showing values.** A value is shown in the shortest text that reads back as the same
/// Float (`Decimals` -1, the default) or with that many decimals; NaN is the null value
/// and shows as `Kornumglobals::KorNullStr`.
///
/// **Keys** (`KeyDown`, which sets the key to 0 when it has handled it). The arrows move
/// the current cell, Tab and Shift+Tab to the next and previous cell along the rows, Page
/// Up and Page Down by a screenful, Home and End to the first and last column (with Ctrl,
/// to the first and last cell); the view scrolls to keep the current cell visible, and
/// Shift with any of these (but Tab) extends the selection from where it began. Ctrl+A
/// selects every cell. Typing (`TextInput`), F2 (keeping the cell's text) or Backspace
/// (with an empty text) starts an edit; Delete sets the selected cells to null.
///
/// **Editing.** While an edit is open, Left, Right, Home and End move the caret and
/// Backspace and Delete remove a character; Enter commits and moves down, Tab and the
/// vertical keys commit and move, Escape cancels. A commit reads the text with
/// `Kornumconvert::Str2Float`; an empty text or `KorNullStr` stores NaN. A text that is
/// not a number stores nothing: the edit stays open and `EditError` (drawn under the
/// cell) says why. A read-only grid opens no edit and changes nothing on input.
///
/// **Mouse.** A left click makes a cell current (with Shift, extends the selection), a
/// click on a column title selects the column, on a row title the row, on the corner
/// every cell. The wheel scrolls three rows a notch (`Platform::WheelDelta`).
///
/// **Clipboard as text.** `CopyText` and `PasteText` exchange tab-separated lines.
///
/// **Cost.** Painting asks only for the cells in view, so it costs the same for ten rows
/// and for 2^31 - 1.
class TKorCustomGridEdit : public Platform::TComponent {
public:
    /// A grid owned by AOwner (may be null), 200 x 150 pixels at (0, 0), with rows 20
    /// pixels high and value columns 96 pixels wide.
    explicit TKorCustomGridEdit(Platform::TComponent* AOwner);
    ~TKorCustomGridEdit() override;

    // ---- Settings
    /// The decimals values are shown with; -1 (the default) for the shortest text that
    /// reads back as the same Float.
    Integer Decimals() const noexcept { return decimals_; }
    /// Sets the decimals values are shown with: -1 for the shortest exact text, else 0 to
    /// 255 (a value below -1 counts as -1, above 255 as 255).
    void SetDecimals(Integer Value) noexcept;
    /// Whether input leaves the values alone; false by default. The element accessors
    /// still write.
    Boolean ReadOnly() const noexcept { return readOnly_; }
    /// Sets whether input leaves the values alone; closes an open edit unsaved.
    void SetReadOnly(Boolean Value);
    /// Whether the values come from events instead of a bound vector or matrix; false by
    /// default.
    Boolean VirtualMode() const noexcept { return virtualMode_; }
    /// Switches virtual mode on or off; the current cell stays within the new shape.
    void SetVirtualMode(Boolean Value);
    /// The font of the cells and titles.
    Platform::TFont& Font() noexcept { return font_; }
    /// The font of the cells and titles.
    const Platform::TFont& Font() const noexcept { return font_; }
    /// The height of every row, titles included, in pixels; 20 by default.
    Integer RowHeight() const noexcept { return rowHeight_; }
    /// Sets the height of every row (at least 1 pixel).
    void SetRowHeight(Integer Value) noexcept;
    /// The width of every value column, in pixels; 96 by default.
    Integer ColWidth() const noexcept { return colWidth_; }
    /// Sets the width of every value column (at least 1 pixel).
    void SetColWidth(Integer Value) noexcept;

    /// The control's rectangle in its parent; painting fills (0, 0, Width, Height).
    Platform::TRect BoundsRect() const noexcept { return bounds_; }
    /// Places the control at (Left, Top) with the given width and height; when they
    /// change, the view scrolls to keep the current cell visible.
    void SetBounds(Integer Left, Integer Top, Integer Width, Integer Height);

    // ---- Cells, selection and view
    /// The row of the current cell.
    Integer CurrentRow() const noexcept { return row_; }
    /// The column of the current cell.
    Integer CurrentCol() const noexcept { return col_; }
    /// Makes (Row, Col), kept within the grid, the current cell and the selection, and
    /// scrolls it into view; an open edit is closed unsaved.
    void SetCurrentCell(Integer Row, Integer Col);
    /// The selected block: from where the selection began to the current cell.
    TGridRect Selection() const noexcept;
    /// Selects every cell.
    void SelectAll();
    /// The first row in view.
    Integer TopRow() const noexcept { return topRow_; }
    /// The first value column in view.
    Integer LeftCol() const noexcept { return leftCol_; }
    /// The text a value cell shows (its value as `Decimals` says, or `KorNullStr`); the
    /// cell must exist.
    std::string CellText(Integer Row, Integer Col);

    // ---- The edit in progress
    /// Whether an edit is open in the current cell.
    Boolean Editing() const noexcept { return editing_; }
    /// The text of the open edit.
    const std::string& EditText() const noexcept { return editText_; }
    /// Why the last commit stored nothing (the text is not a number); empty otherwise.
    const std::string& EditError() const noexcept { return editError_; }
    /// Opens an edit in the current cell holding its text (as F2 does); does nothing on a
    /// read-only or empty grid.
    void BeginEdit();
    /// Stores the open edit's value and closes it; returns false (with `EditError` set and
    /// the edit open) when the text is not a number. True when no edit is open.
    Boolean CommitEdit();
    /// Closes the open edit without storing it.
    void CancelEdit();

    // ---- Input
    /// Draws the grid on Canvas in the control's own coordinates, (0, 0) to (Width,
    /// Height), asking only for the cells in view.
    void Paint(Platform::TCanvas& Canvas);
    /// A key pressed with the modifiers Shift; sets Key to 0 when the grid handled it.
    void KeyDown(Word& Key, Platform::TShiftState Shift);
    /// Text typed (UTF-8, as an input method commits it): starts an edit, or goes into the
    /// open one at the caret. Text with control characters is ignored.
    void TextInput(std::string_view Utf8);
    /// A mouse button pressed at (X, Y) in the control's coordinates.
    void MouseDown(Platform::TMouseButton Button, Platform::TShiftState Shift, Integer X, Integer Y);
    /// The wheel turned by Delta (`Platform::WheelDelta` a notch, positive away from the
    /// user): scrolls three rows a notch without moving the current cell.
    void MouseWheel(Integer Delta);

    // ---- Clipboard as text
    /// The selection as text: one line per row, values separated by tabs, each line ended
    /// by a line feed; every value in the shortest text that reads back as the same Float
    /// (whatever `Decimals` says), null values as `KorNullStr`. Empty for an empty grid.
    /// A selection of more than `MaxCopyCells` cells (all of a virtual grid of 2^31 rows)
    /// raises `Platform::EMathError` saying so, before any value is asked for.
    std::string CopyText();
    /// The most cells `CopyText` copies: 2^24.
    static constexpr std::int64_t MaxCopyCells = std::int64_t(1) << 24;
    /// Writes a block of tab-separated lines (a line feed or CR LF between them) with its
    /// top left corner at the current cell, and selects it; into an open edit, a text of
    /// one value without a line end goes in at the caret instead. All of the text is read before
    /// anything is written: a token that is not a number (an empty one or `KorNullStr` is
    /// null) raises `Platform::EMathError` naming its row, column and text, and so does a
    /// block that reaches beyond the last row or column, naming where; nothing is changed
    /// then. A read-only grid ignores it.
    void PasteText(std::string_view Text);

    /// Called after input changed values: a commit, Delete or a paste (not the accessors
    /// of the controls); may be empty.
    std::function<void(TKorCustomGridEdit& Sender)> OnChange;

    /// The published properties: ColWidth, Decimals, ReadOnly, RowHeight, VirtualMode.
    std::span<const Platform::TPropertyInfo> PublishedProperties() const override;

protected:
    /// @name What a control built on the grid supplies
    /// @{

    /// The number of value rows.
    virtual Integer GridRows() const = 0;
    /// The number of value columns.
    virtual Integer GridCols() const = 0;
    /// The value of an existing cell.
    virtual Float ReadCell(Integer Row, Integer Col) = 0;
    /// Stores the value of an existing cell.
    virtual void WriteCell(Integer Row, Integer Col, Float Value) = 0;
    /// The title of a value column.
    virtual std::string ColTitle(Integer Col) const;
    /// The width of the label column between the row titles and the values; 0, none.
    virtual Integer LabelWidth() const { return 0; }
    /// The title of the label column.
    virtual std::string LabelTitle() const { return {}; }
    /// The label of a row, or empty for a row without one.
    virtual std::string RowLabel(Integer Row);
    /// @}

    /// Keeps the current cell, the selection and the view within the grid after its shape
    /// changed, and closes an open edit unsaved.
    void ShapeChanged();

private:
    struct Layout;
    Layout Measure() const;
    void MoveTo(std::int64_t Row, std::int64_t Col, bool Extend);
    bool EditKey(Word& Key);
    void NavigationKey(Word& Key, Platform::TShiftState Shift);
    void ScrollIntoView();
    void ClampView();
    bool HasCells() const { return GridRows() > 0 && GridCols() > 0; }
    void PaintCells(Platform::TCanvas& Canvas, const Layout& At, Integer LineHeight);
    void PaintEdit(Platform::TCanvas& Canvas, const Layout& At, Integer LineHeight);
    void Changed() {
        if (OnChange) OnChange(*this);
    }

    Platform::TFont font_;
    Platform::TRect bounds_{0, 0, 200, 150};
    Integer decimals_ = -1, rowHeight_ = 20, colWidth_ = 96;
    Integer rowTitleWidth_ = 48;  // measured at each Paint, from the widest row title
    Boolean readOnly_ = false, virtualMode_ = false;
    Integer row_ = 0, col_ = 0, anchorRow_ = 0, anchorCol_ = 0, topRow_ = 0, leftCol_ = 0;
    Integer wheelRest_ = 0;
    Boolean editing_ = false;
    std::string editText_, editError_;
    std::size_t caret_ = 0;
};

}  // namespace KornumGridEdit
KORNUM_EXPORT_END
