#include <kornum/KornumMatrixEdit.h>

#include <kornum/KornumMatrix.h>
#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornummsgs.h>
#include <kornum/Platform.h>

#include <limits>

namespace KornumMatrixEdit {

TKorMatrixEdit::TKorMatrixEdit(Platform::TComponent* AOwner) : TKorCustomGridEdit(AOwner) {}

void TKorMatrixEdit::SetMatrix(const TKorFloatMatrix& Value) {
    LongWord rows = 0, cols = 0;
    Boolean rectangular = true;
    if (Value.Length() > 0) {
        KornumMatrix::MatrixDimensions(Value, rows, cols, rectangular);
        Platform::Require(rectangular, Kornum_RS_Math::rsMatrixRect);
    }
    matrix_ = Value;
    rows_ = Integer(rows);
    cols_ = Integer(cols);
    ShapeChanged();
}

void TKorMatrixEdit::SetRowCount(Integer Value) {
    virtualRows_ = Value < 0 ? 0 : Value;
    ShapeChanged();
}

void TKorMatrixEdit::SetColCount(Integer Value) {
    virtualCols_ = Value < 0 ? 0 : Value;
    ShapeChanged();
}

void TKorMatrixEdit::CheckCell(Integer Row, Integer Col) const {
    if (Row < 0 || Row >= RowCount()) Platform::Raise<Platform::Exception>(Kornum_RS_Math::rsInvalidRow);
    if (Col < 0 || Col >= ColCount()) Platform::Raise<Platform::Exception>(Kornum_RS_Math::rsInvalidCol);
}

Float TKorMatrixEdit::GetElement(Integer Row, Integer Col) {
    CheckCell(Row, Col);
    return ReadCell(Row, Col);
}

void TKorMatrixEdit::SetElement(Integer Row, Integer Col, Float Value) {
    CheckCell(Row, Col);
    WriteCell(Row, Col, Value);
}

void TKorMatrixEdit::Inverse() {
    if (VirtualMode()) return;
    CancelEdit();
    // The inversion reduces its input, so it works on a copy; the bound storage changes
    // only on success.
    TKorFloatMatrix work = KornumMatrix::CopyMatrix(matrix_), inverse;
    if (!KornumMatrix::MatrixInverse(work, inverse)) return Kornummsgs::ErrorMsg(Kornum_RS_Math::rsNoInvert.Text());
    for (Integer i = 0; i < rows_; ++i)
        for (Integer j = 0; j < cols_; ++j) matrix_[i][j] = inverse[i][j];
}

void TKorMatrixEdit::Transpose() {
    if (VirtualMode()) return;
    if (matrix_.Length() == 0) return ShapeChanged();
    SetMatrix(KornumMatrix::TransposeMatrix(matrix_));
}

Float TKorMatrixEdit::ReadCell(Integer Row, Integer Col) {
    if (!VirtualMode()) return matrix_[Row][Col];
    Float value = std::numeric_limits<Float>::quiet_NaN();
    if (OnGetElement) OnGetElement(*this, Row, Col, value);
    return value;
}

void TKorMatrixEdit::WriteCell(Integer Row, Integer Col, Float Value) {
    if (!VirtualMode()) matrix_[Row][Col] = Value;
    else if (OnSetElement) OnSetElement(*this, Row, Col, Value);
}

}  // namespace KornumMatrixEdit
