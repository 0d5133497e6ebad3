#include <kornum/KornumVectorEdit.h>

#include <kornum/Kornum_RS_Math.h>
#include <kornum/Kornumsystem.h>
#include <kornum/Platform.h>

#include <limits>
#include <utility>

namespace KornumVectorEdit {

TKorVectorEdit::TKorVectorEdit(Platform::TComponent* AOwner) : TKorCustomGridEdit(AOwner) {}

void TKorVectorEdit::SetVector(const TKorFloatVector& Value) {
    vector_ = Value;
    ShapeChanged();
}

Integer TKorVectorEdit::Count() const noexcept { return VirtualMode() ? virtualCount_ : vector_.Length(); }

void TKorVectorEdit::SetCount(Integer Value) {
    virtualCount_ = Value < 0 ? 0 : Value;
    ShapeChanged();
}

void TKorVectorEdit::CheckIndex(Integer Index) const {
    if (Index < 0 || Index >= Count()) Platform::Raise<Platform::Exception>(Kornum_RS_Math::rsInvalidRow);
}

Float TKorVectorEdit::GetElement(Integer Index) {
    CheckIndex(Index);
    return ReadCell(Index, 0);
}

void TKorVectorEdit::SetElement(Integer Index, Float Value) {
    CheckIndex(Index);
    WriteCell(Index, 0, Value);
}

void TKorVectorEdit::SwapElements(Integer I, Integer J) {
    CheckIndex(I);
    CheckIndex(J);
    Float x = ReadCell(I, 0), y = ReadCell(J, 0);
    Kornumsystem::SwapXY(x, y);
    WriteCell(I, 0, x);
    WriteCell(J, 0, y);
}

Float TKorVectorEdit::ReadCell(Integer Row, Integer) {
    if (!VirtualMode()) return vector_[Row];
    Float value = std::numeric_limits<Float>::quiet_NaN();
    if (OnGetElement) OnGetElement(*this, Row, value);
    return value;
}

void TKorVectorEdit::WriteCell(Integer Row, Integer, Float Value) {
    if (!VirtualMode()) vector_[Row] = Value;
    else if (OnSetElement) OnSetElement(*this, Row, Value);
}

std::string TKorVectorEdit::ColTitle(Integer) const { return "Value"; }

TKorLabelledVectorEdit::TKorLabelledVectorEdit(Platform::TComponent* AOwner) : TKorVectorEdit(AOwner) {}

std::string TKorLabelledVectorEdit::GetLabel(Integer Index) {
    CheckIndex(Index);
    return RowLabel(Index);
}

void TKorLabelledVectorEdit::SetLabel(Integer Index, std::string Value) {
    CheckIndex(Index);
    while (labels_.Count() <= Index) labels_.Add({});
    labels_.Put(Index, std::move(Value));
}

void TKorLabelledVectorEdit::SwapElements(Integer I, Integer J) {
    TKorVectorEdit::SwapElements(I, J);
    if (VirtualMode() || I == J) return;
    std::string first = GetLabel(I), second = GetLabel(J);
    SetLabel(I, std::move(second));
    SetLabel(J, std::move(first));
}

std::string TKorLabelledVectorEdit::RowLabel(Integer Row) {
    std::string label;
    if (VirtualMode()) {
        if (OnGetLabel) OnGetLabel(*this, Row, label);
    } else if (Row < labels_.Count()) {
        label = labels_[Row];
    }
    return label;
}

}  // namespace KornumVectorEdit
