/// @file
/// `KornumVectorEdit::TKorVectorEdit` and `KornumVectorEdit::TKorLabelledVectorEdit`: a
/// column of numeric edit cells bound to a `TKorFloatVector`, or fed by events in virtual
/// mode, the second with a column of labels.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/KornumGridEdit.h>
#include <kornum/PlatformClasses.h>

#include <functional>
#include <string>

/// The vector-edit module: grids of one value column bound to a vector.
KORNUM_EXPORT_BEGIN
namespace KornumVectorEdit {

using namespace Kornumglobals;

/// One column of numeric edit cells, a row per element, under the title "Value".
///
/// The vector is shared with the caller: `SetVector` keeps the caller's handle, so an
/// edit is seen through it, and a change the caller makes shows at the next `Paint`. In
/// virtual mode no vector is held: `SetCount` gives the number of rows, `OnGetElement`
/// gives each value when it is drawn or read (a cell without the event is null) and
/// `OnSetElement` receives each value entered. Everything else (keys, mouse, editing,
/// clipboard) is the grid's, `KornumGridEdit::TKorCustomGridEdit`.
class TKorVectorEdit : public KornumGridEdit::TKorCustomGridEdit {
public:
    /// Gives the value of element Index in virtual mode.
    using TGetElementEvent = std::function<void(TKorVectorEdit& Sender, Integer Index, Float& Value)>;
    /// Receives the value entered for element Index in virtual mode.
    using TSetElementEvent = std::function<void(TKorVectorEdit& Sender, Integer Index, Float Value)>;

    /// An edit owned by AOwner (may be null), bound to no vector.
    explicit TKorVectorEdit(Platform::TComponent* AOwner);

    /// Binds the caller's vector (shared, not copied); the current cell stays within it.
    void SetVector(const TKorFloatVector& Value);
    /// The bound vector (a handle sharing its storage).
    const TKorFloatVector& Vector() const noexcept { return vector_; }
    /// The number of elements: the vector's length, or in virtual mode the count set.
    Integer Count() const noexcept;
    /// Sets the number of rows of virtual mode (a negative count is 0); the vector of
    /// the other mode is left as it is.
    void SetCount(Integer Value);

    /// The value of element Index (from `OnGetElement` in virtual mode). An index outside
    /// 0 to Count() - 1 raises `Platform::Exception` (`Kornum_RS_Math::rsInvalidRow`).
    Float GetElement(Integer Index);
    /// Stores Value as element Index (through `OnSetElement` in virtual mode); the index
    /// is checked as by `GetElement`.
    void SetElement(Integer Index, Float Value);
    /// Exchanges elements I and J (with their labels in a labelled edit); both indices are
    /// checked as by `GetElement` before anything moves.
    virtual void SwapElements(Integer I, Integer J);

    /// The event giving values in virtual mode.
    TGetElementEvent OnGetElement;
    /// The event receiving values in virtual mode.
    TSetElementEvent OnSetElement;

    /// `"TKorVectorEdit"`.
    std::string_view ClassName() const override { return "TKorVectorEdit"; }

protected:
    /// Raises `Platform::Exception` with `Kornum_RS_Math::rsInvalidRow` unless Index is an
    /// element.
    void CheckIndex(Integer Index) const;
    /// Count() rows.
    Integer GridRows() const override { return Count(); }
    /// One column.
    Integer GridCols() const override { return 1; }
    /// The element of the row.
    Float ReadCell(Integer Row, Integer Col) override;
    /// Stores the element of the row.
    void WriteCell(Integer Row, Integer Col, Float Value) override;
    /// "Value".
    std::string ColTitle(Integer Col) const override;

private:
    TKorFloatVector vector_;
    Integer virtualCount_ = 0;
};

/// A `TKorVectorEdit` with a column of labels, one per element, between the row indices
/// and the values; a row without a label (none in `Labels`, an empty one, or none from
/// `OnGetLabel` in virtual mode) shows the text of `Kornum_RS_Math::rsNA`.
class TKorLabelledVectorEdit : public TKorVectorEdit {
public:
    /// Gives the label of element Index in virtual mode.
    using TGetLabelEvent = std::function<void(TKorLabelledVectorEdit& Sender, Integer Index, std::string& Label)>;

    /// An edit owned by AOwner (may be null), bound to no vector, without labels.
    explicit TKorLabelledVectorEdit(Platform::TComponent* AOwner);

    /// The label of element Index: its line of `Labels` (from `OnGetLabel` in virtual
    /// mode), empty when it has none. An index outside 0 to Count() - 1 raises
    /// `Platform::Exception` (`Kornum_RS_Math::rsInvalidRow`).
    std::string GetLabel(Integer Index);
    /// Sets the label of element Index, adding empty lines to `Labels` up to it; the index
    /// is checked as by `GetLabel`.
    void SetLabel(Integer Index, std::string Value);
    /// The labels, line i for element i.
    Platform::TStringList& Labels() noexcept { return labels_; }
    /// The labels, line i for element i.
    const Platform::TStringList& Labels() const noexcept { return labels_; }
    /// Exchanges elements I and J and their labels (in virtual mode only the values: the
    /// labels are the event's).
    void SwapElements(Integer I, Integer J) override;

    /// The width of the label column in pixels; 120 by default.
    Integer LabelColWidth() const noexcept { return labelWidth_; }
    /// Sets the width of the label column (at least 1 pixel).
    void SetLabelColWidth(Integer Value) noexcept { labelWidth_ = Value < 1 ? 1 : Value; }

    /// The event giving labels in virtual mode.
    TGetLabelEvent OnGetLabel;

    /// `"TKorLabelledVectorEdit"`.
    std::string_view ClassName() const override { return "TKorLabelledVectorEdit"; }

protected:
    /// `LabelColWidth`.
    Integer LabelWidth() const override { return labelWidth_; }
    /// "Label".
    std::string LabelTitle() const override { return "Label"; }
    /// The label of the row.
    std::string RowLabel(Integer Row) override;

private:
    Platform::TStringList labels_;
    Integer labelWidth_ = 120;
};

}  // namespace KornumVectorEdit
KORNUM_EXPORT_END
