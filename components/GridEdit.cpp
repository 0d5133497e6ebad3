// The grid edit's state and input: settings, the current cell and selection, keys, the
// mouse, the wheel and the edit in progress.
#include <kornum/KornumGridEdit.h>

#include <kornum/Kornumconvert.h>
#include <kornum/PlatformExceptions.h>

#include "components/detail/GridLayout.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

namespace KornumGridEdit {
namespace detail {

std::string ValueText(Float value, Integer decimals) {
    if (std::isnan(value)) return KorNullStr;
    if (decimals >= 0) return Kornumconvert::Float2EStr(value, Byte(decimals));
    char text[64];
    const auto result = std::to_chars(text, text + sizeof text, value);
    return std::string(text, result.ptr);
}

std::optional<Float> ReadValue(std::string_view text, std::string& reason) {
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    const std::string_view trimmed = first == std::string_view::npos ? std::string_view() : text.substr(first);
    if (trimmed.empty() || (!KorNullStr.empty() && text == KorNullStr)) return std::numeric_limits<Float>::quiet_NaN();
    try {
        return Kornumconvert::Str2Float(text);
    } catch (const Platform::EConvertError& error) {
        reason = error.Message();
        return std::nullopt;
    }
}

}  // namespace detail

namespace {

// Rows a wheel notch scrolls.
constexpr Integer WheelRows = 3;

bool HasControlCharacter(std::string_view text) {
    return std::any_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; });
}

// The start of the UTF-8 character before, and the end of the one at, a caret position.
std::size_t CharBefore(const std::string& text, std::size_t at) {
    while (at > 0 && (static_cast<unsigned char>(text[--at]) & 0xC0) == 0x80) {}
    return at;
}
std::size_t CharAfter(const std::string& text, std::size_t at) {
    if (at < text.size()) ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80) ++at;
    return at;
}

// A stored property read by Get and set by Set, members of the grid; Value is the type
// the property holds (std::int64_t or bool).
template <class Value, auto Get, auto Set>
Platform::TPropertyInfo GridProperty(const char* name, Value byDefault) {
    using G = TKorCustomGridEdit;
    return {name,
            std::is_same_v<Value, bool> ? Platform::TPropertyType::Boolean : Platform::TPropertyType::Integer,
            true,
            byDefault,
            [](const Platform::TComponent& c) -> Platform::TPropertyValue { return Value((static_cast<const G&>(c).*Get)()); },
            [](Platform::TComponent& c, const Platform::TPropertyValue& v) {
                (static_cast<G&>(c).*Set)(decltype((std::declval<G&>().*Get)())(std::get<Value>(v)));
            }};
}

const std::vector<Platform::TPropertyInfo>& GridProperties() {
    using G = TKorCustomGridEdit;
    static const std::vector<Platform::TPropertyInfo> properties = {
        GridProperty<std::int64_t, &G::ColWidth, &G::SetColWidth>("ColWidth", 96),
        GridProperty<std::int64_t, &G::Decimals, &G::SetDecimals>("Decimals", -1),
        GridProperty<bool, &G::ReadOnly, &G::SetReadOnly>("ReadOnly", false),
        GridProperty<std::int64_t, &G::RowHeight, &G::SetRowHeight>("RowHeight", 20),
        GridProperty<bool, &G::VirtualMode, &G::SetVirtualMode>("VirtualMode", false),
    };
    return properties;
}

}  // namespace

TKorCustomGridEdit::TKorCustomGridEdit(Platform::TComponent* AOwner) : TComponent(AOwner) {}

TKorCustomGridEdit::~TKorCustomGridEdit() = default;

std::span<const Platform::TPropertyInfo> TKorCustomGridEdit::PublishedProperties() const { return GridProperties(); }

void TKorCustomGridEdit::SetDecimals(Integer Value) noexcept { decimals_ = std::clamp<Integer>(Value, -1, 255); }

void TKorCustomGridEdit::SetReadOnly(Boolean Value) {
    if (Value) CancelEdit();
    readOnly_ = Value;
}

void TKorCustomGridEdit::SetVirtualMode(Boolean Value) {
    virtualMode_ = Value;
    ShapeChanged();
}

void TKorCustomGridEdit::SetRowHeight(Integer Value) noexcept { rowHeight_ = std::max<Integer>(Value, 1); }
void TKorCustomGridEdit::SetColWidth(Integer Value) noexcept { colWidth_ = std::max<Integer>(Value, 1); }

void TKorCustomGridEdit::SetBounds(Integer Left, Integer Top, Integer Width, Integer Height) {
    const Platform::TRect bounds{Left, Top, Left + Width, Top + Height};
    // A host that sets the same size at every paint keeps what the wheel scrolled.
    if (bounds == bounds_) return;
    bounds_ = bounds;
    ScrollIntoView();
}

std::string TKorCustomGridEdit::ColTitle(Integer Col) const { return std::to_string(Col); }
std::string TKorCustomGridEdit::RowLabel(Integer) { return {}; }

TKorCustomGridEdit::Layout TKorCustomGridEdit::Measure() const {
    Layout at{};
    at.width = bounds_.Width();
    at.height = bounds_.Height();
    at.rows = GridRows();
    at.cols = GridCols();
    at.rowTitleWidth = rowTitleWidth_;
    at.labelWidth = LabelWidth();
    at.cellsLeft = at.rowTitleWidth + at.labelWidth;
    at.cellsTop = rowHeight_;
    at.colWidth = colWidth_;
    at.rowHeight = rowHeight_;
    at.fullRows = std::max<Integer>(1, (at.height - at.cellsTop) / rowHeight_);
    at.fullCols = std::max<Integer>(1, (at.width - at.cellsLeft) / colWidth_);
    return at;
}

std::string TKorCustomGridEdit::CellText(Integer Row, Integer Col) {
    return detail::ValueText(ReadCell(Row, Col), decimals_);
}

TGridRect TKorCustomGridEdit::Selection() const noexcept {
    return {std::min(col_, anchorCol_), std::min(row_, anchorRow_), std::max(col_, anchorCol_), std::max(row_, anchorRow_)};
}

void TKorCustomGridEdit::SelectAll() {
    if (!HasCells()) return;
    anchorRow_ = GridRows() - 1;
    anchorCol_ = GridCols() - 1;
    row_ = col_ = 0;
    ScrollIntoView();
}

void TKorCustomGridEdit::SetCurrentCell(Integer Row, Integer Col) {
    CancelEdit();
    MoveTo(Row, Col, false);
}

// Moves the current cell to (Row, Col) kept within the grid; the selection begins there
// unless Extend.
void TKorCustomGridEdit::MoveTo(std::int64_t Row, std::int64_t Col, bool Extend) {
    if (!HasCells()) return;
    row_ = Integer(std::clamp<std::int64_t>(Row, 0, GridRows() - 1));
    col_ = Integer(std::clamp<std::int64_t>(Col, 0, GridCols() - 1));
    if (!Extend) anchorRow_ = row_, anchorCol_ = col_;
    ScrollIntoView();
}

void TKorCustomGridEdit::ClampView() {
    const Layout at = Measure();
    topRow_ = std::clamp<Integer>(topRow_, 0, std::max<Integer>(0, at.rows - at.fullRows));
    leftCol_ = std::clamp<Integer>(leftCol_, 0, std::max<Integer>(0, at.cols - at.fullCols));
}

void TKorCustomGridEdit::ScrollIntoView() {
    const Layout at = Measure();
    if (row_ < topRow_) topRow_ = row_;
    else if (std::int64_t(row_) >= std::int64_t(topRow_) + at.fullRows) topRow_ = row_ - at.fullRows + 1;
    if (col_ < leftCol_) leftCol_ = col_;
    else if (std::int64_t(col_) >= std::int64_t(leftCol_) + at.fullCols) leftCol_ = col_ - at.fullCols + 1;
    ClampView();
}

void TKorCustomGridEdit::ShapeChanged() {
    CancelEdit();
    const Integer rows = GridRows(), cols = GridCols();
    const auto keep = [](Integer& index, Integer count) { index = std::clamp<Integer>(index, 0, std::max<Integer>(0, count - 1)); };
    keep(row_, rows), keep(anchorRow_, rows), keep(col_, cols), keep(anchorCol_, cols);
    ScrollIntoView();
}

void TKorCustomGridEdit::BeginEdit() {
    if (readOnly_ || !HasCells() || editing_) return;
    editText_ = CellText(row_, col_);
    caret_ = editText_.size();
    editError_.clear();
    editing_ = true;
}

Boolean TKorCustomGridEdit::CommitEdit() {
    if (!editing_) return true;
    std::string reason;
    const std::optional<Float> value = detail::ReadValue(editText_, reason);
    if (!value) {
        editError_ = reason;
        return false;
    }
    WriteCell(row_, col_, *value);
    CancelEdit();
    Changed();
    return true;
}

void TKorCustomGridEdit::CancelEdit() {
    editing_ = false;
    editText_.clear();
    editError_.clear();
    caret_ = 0;
}

void TKorCustomGridEdit::TextInput(std::string_view Utf8) {
    if (readOnly_ || !HasCells() || Utf8.empty() || HasControlCharacter(Utf8)) return;
    if (!editing_) {
        editing_ = true;
        editText_.clear();
        caret_ = 0;
    }
    editText_.insert(caret_, Utf8);
    caret_ += Utf8.size();
    editError_.clear();
}

// The keys of an open edit; false for a key that the edit leaves to navigation.
bool TKorCustomGridEdit::EditKey(Word& Key) {
    switch (Key) {
        case Platform::vkEscape: CancelEdit(); break;
        case Platform::vkReturn:
            if (CommitEdit()) MoveTo(std::int64_t(row_) + 1, col_, false);
            break;
        case Platform::vkBack:
            if (caret_ > 0) {
                const std::size_t from = CharBefore(editText_, caret_);
                editText_.erase(from, caret_ - from);
                caret_ = from;
            }
            break;
        case Platform::vkDelete: editText_.erase(caret_, CharAfter(editText_, caret_) - caret_); break;
        case Platform::vkLeft: caret_ = CharBefore(editText_, caret_); break;
        case Platform::vkRight: caret_ = CharAfter(editText_, caret_); break;
        case Platform::vkHome: caret_ = 0; break;
        case Platform::vkEnd: caret_ = editText_.size(); break;
        case Platform::vkTab:
        case Platform::vkUp:
        case Platform::vkDown:
        case Platform::vkPrior:
        case Platform::vkNext:
            if (CommitEdit()) return false;  // then the key moves as it would without an edit
            break;
        default: return false;
    }
    Key = 0;
    return true;
}

void TKorCustomGridEdit::NavigationKey(Word& Key, Platform::TShiftState Shift) {
    const bool shift = Shift & Platform::ssShift, ctrl = Shift & Platform::ssCtrl;
    const std::int64_t row = row_, col = col_, lastRow = GridRows() - 1, lastCol = GridCols() - 1;
    const Integer page = Measure().fullRows;
    switch (Key) {
        case Platform::vkLeft: MoveTo(row, col - 1, shift); break;
        case Platform::vkRight: MoveTo(row, col + 1, shift); break;
        case Platform::vkUp: MoveTo(row - 1, col, shift); break;
        case Platform::vkDown: MoveTo(row + 1, col, shift); break;
        case Platform::vkPrior:
            topRow_ = Integer(std::max<std::int64_t>(0, std::int64_t(topRow_) - page));
            MoveTo(row - page, col, shift);
            break;
        case Platform::vkNext:
            topRow_ = Integer(std::min<std::int64_t>(lastRow, std::int64_t(topRow_) + page));
            MoveTo(row + page, col, shift);
            break;
        case Platform::vkHome: MoveTo(ctrl ? 0 : row, 0, shift); break;
        case Platform::vkEnd: MoveTo(ctrl ? lastRow : row, lastCol, shift); break;
        case Platform::vkTab:
            // Along the rows: past the last column to the first of the next row, and back.
            if (shift) {
                if (col > 0) MoveTo(row, col - 1, false);
                else if (row > 0) MoveTo(row - 1, lastCol, false);
            } else {
                if (col < lastCol) MoveTo(row, col + 1, false);
                else if (row < lastRow) MoveTo(row + 1, 0, false);
            }
            break;
        case Platform::vkReturn: MoveTo(row + 1, col, false); break;
        case Platform::vkF2: BeginEdit(); break;
        case Platform::vkBack:
            BeginEdit();
            editText_.clear();
            caret_ = 0;
            break;
        case Platform::vkDelete: {
            if (readOnly_) break;
            const TGridRect block = Selection();
            for (Integer r = block.Top; r <= block.Bottom; ++r)
                for (Integer c = block.Left; c <= block.Right; ++c) WriteCell(r, c, std::numeric_limits<Float>::quiet_NaN());
            Changed();
            break;
        }
        case Platform::vkA:
            if (!ctrl) return;
            SelectAll();
            break;
        default: return;
    }
    Key = 0;
}

void TKorCustomGridEdit::KeyDown(Word& Key, Platform::TShiftState Shift) {
    if (!HasCells()) return;
    if (editing_ && EditKey(Key)) return;
    if (!editing_) NavigationKey(Key, Shift);
}

void TKorCustomGridEdit::MouseDown(Platform::TMouseButton Button, Platform::TShiftState Shift, Integer X, Integer Y) {
    if (Button != Platform::mbLeft || !HasCells() || !CommitEdit()) return;
    const Layout at = Measure();
    const std::int64_t lastRow = at.rows - 1, lastCol = at.cols - 1;
    // -1 for the titles; beyond the last cell counts as the last.
    const std::int64_t row = Y < at.cellsTop ? -1 : std::min<std::int64_t>(lastRow, std::int64_t(topRow_) + (Y - at.cellsTop) / at.rowHeight);
    const std::int64_t col = X < at.cellsLeft ? -1 : std::min<std::int64_t>(lastCol, std::int64_t(leftCol_) + (X - at.cellsLeft) / at.colWidth);
    if (row < 0 && col < 0) return SelectAll();
    if (row < 0) {  // a column title: the whole column
        MoveTo(lastRow, col, false);
        MoveTo(0, col, true);
    } else if (col < 0) {  // a row title: the whole row
        MoveTo(row, lastCol, false);
        MoveTo(row, 0, true);
    } else {
        MoveTo(row, col, Shift & Platform::ssShift);
    }
}

void TKorCustomGridEdit::MouseWheel(Integer Delta) {
    const std::int64_t turned = std::int64_t(wheelRest_) + Delta;
    const std::int64_t notches = turned / Platform::WheelDelta;
    wheelRest_ = Integer(turned % Platform::WheelDelta);
    topRow_ = Integer(std::clamp<std::int64_t>(std::int64_t(topRow_) - notches * WheelRows, 0,
                                               std::numeric_limits<Integer>::max()));
    ClampView();
}

}  // namespace KornumGridEdit
