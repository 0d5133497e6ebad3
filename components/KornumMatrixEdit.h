/// @file
/// `KornumMatrixEdit::TKorMatrixEdit`: rows and columns of numeric edit cells bound to a
/// `TKorFloatMatrix`, or fed by events in virtual mode, with Inverse and Transpose.
#pragma once

#include <kornum/KornumExport.h>
#include <kornum/KornumGridEdit.h>

#include <functional>

/// The matrix-edit module: a grid bound to a matrix.
KORNUM_EXPORT_BEGIN
namespace KornumMatrixEdit {

using namespace Kornumglobals;

/// A grid of numeric edit cells, one per element of a matrix, the row and column indices
/// as titles.
///
/// The matrix is shared with the caller: `SetMatrix` keeps the caller's handle, so an
/// edit (and `Inverse`) is seen through it. In virtual mode no matrix is held:
/// `SetRowCount` and `SetColCount` give the shape, `OnGetElement` gives each value when it
/// is drawn or read (a cell without the event is null) and `OnSetElement` receives each
/// value entered. Everything else (keys, mouse, editing, clipboard) is the grid's,
/// `KornumGridEdit::TKorCustomGridEdit`.
class TKorMatrixEdit : public KornumGridEdit::TKorCustomGridEdit {
public:
    /// Gives the value of the element at (Row, Col) in virtual mode.
    using TGetElementEvent = std::function<void(TKorMatrixEdit& Sender, Integer Row, Integer Col, Float& Value)>;
    /// Receives the value entered for the element at (Row, Col) in virtual mode.
    using TSetElementEvent = std::function<void(TKorMatrixEdit& Sender, Integer Row, Integer Col, Float Value)>;

    /// An edit owned by AOwner (may be null), bound to no matrix.
    explicit TKorMatrixEdit(Platform::TComponent* AOwner);

    /// Binds the caller's matrix (shared, not copied); the current cell stays within it.
    /// A matrix with rows that is not rectangular raises `Platform::EMathError`
    /// (`Kornum_RS_Math::rsMatrixRect`) and leaves the edit bound as it was.
    void SetMatrix(const TKorFloatMatrix& Value);
    /// The bound matrix (a handle sharing its storage).
    const TKorFloatMatrix& Matrix() const noexcept { return matrix_; }
    /// The number of rows: the matrix's, or in virtual mode the count set.
    Integer RowCount() const noexcept { return VirtualMode() ? virtualRows_ : rows_; }
    /// The number of columns: the matrix's, or in virtual mode the count set.
    Integer ColCount() const noexcept { return VirtualMode() ? virtualCols_ : cols_; }
    /// Sets the number of rows of virtual mode (a negative count is 0).
    void SetRowCount(Integer Value);
    /// Sets the number of columns of virtual mode (a negative count is 0).
    void SetColCount(Integer Value);

    /// The value at (Row, Col) (from `OnGetElement` in virtual mode). A row outside 0 to
    /// RowCount() - 1 raises `Platform::Exception` (`Kornum_RS_Math::rsInvalidRow`), then
    /// a column outside 0 to ColCount() - 1 (`Kornum_RS_Math::rsInvalidCol`).
    Float GetElement(Integer Row, Integer Col);
    /// Stores Value at (Row, Col) (through `OnSetElement` in virtual mode); the indices are
    /// checked as by `GetElement`.
    void SetElement(Integer Row, Integer Col, Float Value);

    /// Makes the bound matrix its inverse (`KornumMatrix::MatrixInverse`), in place, so
    /// that the caller's handle sees it. A singular matrix is left unchanged and the text
    /// of `Kornum_RS_Math::rsNoInvert` is shown through `Kornummsgs::ErrorMsg`; an empty or
    /// non-square one raises as `MatrixInverse` does. Does nothing in virtual mode.
    void Inverse();
    /// Binds the transpose of the matrix (`KornumMatrix::TransposeMatrix`): a new matrix,
    /// which `Matrix()` gives. Does nothing in virtual mode.
    void Transpose();

    /// The event giving values in virtual mode.
    TGetElementEvent OnGetElement;
    /// The event receiving values in virtual mode.
    TSetElementEvent OnSetElement;

    /// `"TKorMatrixEdit"`.
    std::string_view ClassName() const override { return "TKorMatrixEdit"; }

protected:
    /// RowCount() rows.
    Integer GridRows() const override { return RowCount(); }
    /// ColCount() columns.
    Integer GridCols() const override { return ColCount(); }
    /// The element at (Row, Col).
    Float ReadCell(Integer Row, Integer Col) override;
    /// Stores the element at (Row, Col).
    void WriteCell(Integer Row, Integer Col, Float Value) override;

private:
    void CheckCell(Integer Row, Integer Col) const;
    TKorFloatMatrix matrix_;
    Integer rows_ = 0, cols_ = 0, virtualRows_ = 0, virtualCols_ = 0;
};

}  // namespace KornumMatrixEdit
KORNUM_EXPORT_END
