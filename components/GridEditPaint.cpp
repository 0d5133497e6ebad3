// Painting the grid edit: titles, labels, the cells in view, grid lines, the current cell,
// the selection and the open edit with its error.
#include <kornum/KornumGridEdit.h>

#include <kornum/Kornum_RS_Math.h>

#include "components/detail/GridLayout.hpp"

#include <algorithm>
#include <cmath>

namespace KornumGridEdit {
namespace {

using Platform::TColor;
using Platform::TRect;
namespace TextFlags = Platform::TextFlags;

const TColor CellColor = Platform::clWhite;
const TColor TitleColor = Platform::clBtnFace;
const TColor LineColor = TColor::RGB(218, 218, 218);
const TColor TitleLineColor = Platform::clBtnShadow;
const TColor SelectionColor = TColor::RGB(204, 228, 247);
const TColor CurrentColor = TColor::RGB(0, 120, 215);
const TColor ErrorColor = TColor::RGB(176, 0, 32);
const TColor ErrorBackColor = TColor::RGB(255, 236, 236);

// Space between a cell's edge and its text; the narrowest row title column.
constexpr Integer Pad = 4;
constexpr Integer MinRowTitleWidth = 40;

// Draws one line of text in a cell from Left to Right of the row at RowTop, centred
// vertically, with the alignment Flags, in Color.
void DrawCellText(Platform::TCanvas& canvas, const std::string& text, Integer left, Integer right, Integer rowTop,
              Integer rowHeight, Integer lineHeight, std::uint32_t flags, TColor color) {
    if (text.empty()) return;
    TRect rect{left + Pad, rowTop + (rowHeight - lineHeight) / 2, right - Pad, rowTop + rowHeight};
    canvas.Font().Color = color;
    canvas.DrawText(text, rect, flags | TextFlags::NoPrefix | TextFlags::SingleLine);
}

}  // namespace

void TKorCustomGridEdit::Paint(Platform::TCanvas& Canvas) {
    Canvas.Font().Assign(font_);
    TRect probe{};
    const Integer lineHeight = Canvas.DrawText("0", probe, TextFlags::CalcRect | TextFlags::NoPrefix);
    // Row indices only grow in digits, so the last row's title is the widest.
    const Integer lastTitle = std::max<Integer>(GridRows() - 1, 0);
    rowTitleWidth_ = std::max(MinRowTitleWidth, Canvas.TextWidth(std::to_string(lastTitle)) + 2 * Pad);
    ClampView();
    const Layout at = Measure();
    const TRect all{0, 0, at.width, at.height};
    Canvas.SetClipRect(all);
    Canvas.FillRect(all, CellColor);
    Canvas.FillRect({0, 0, at.width, at.cellsTop}, TitleColor);
    Canvas.FillRect({0, at.cellsTop, at.rowTitleWidth, at.height}, TitleColor);
    PaintCells(Canvas, at, lineHeight);
    PaintEdit(Canvas, at, lineHeight);
    Canvas.ResetClipRect();
    Canvas.Font().Assign(font_);
}

void TKorCustomGridEdit::PaintCells(Platform::TCanvas& Canvas, const Layout& At, Integer LineHeight) {
    const Integer rows = std::max<Integer>(0, At.RowsInView(topRow_)), cols = std::max<Integer>(0, At.ColsInView(leftCol_));
    const Integer right = std::min(At.width, At.cellsLeft + cols * At.colWidth);
    const Integer bottom = std::min(At.height, At.cellsTop + rows * At.rowHeight);
    const auto rowTop = [&](Integer r) { return At.cellsTop + (r - topRow_) * At.rowHeight; };
    const auto colLeft = [&](Integer c) { return At.cellsLeft + (c - leftCol_) * At.colWidth; };
    const auto inView = [&](Integer r, Integer c) { return r >= topRow_ && r - topRow_ < rows && c >= leftCol_ && c - leftCol_ < cols; };

    // A selection of more than the current cell is shaded where it is in view.
    const TGridRect block = Selection();
    if (block.Left != block.Right || block.Top != block.Bottom) {
        const Integer top = std::max(block.Top, topRow_), left = std::max(block.Left, leftCol_);
        const Integer last = std::min<std::int64_t>(block.Bottom, std::int64_t(topRow_) + rows - 1);
        const Integer lastCol = std::min<std::int64_t>(block.Right, std::int64_t(leftCol_) + cols - 1);
        if (top <= last && left <= lastCol)
            Canvas.FillRect({colLeft(left), rowTop(top), colLeft(lastCol) + At.colWidth, rowTop(last) + At.rowHeight},
                            SelectionColor);
        if (inView(row_, col_))
            Canvas.FillRect({colLeft(col_), rowTop(row_), colLeft(col_) + At.colWidth, rowTop(row_) + At.rowHeight}, CellColor);
    }

    // Values column by column, each column clipped so that a long text stops at its edge.
    for (Integer c = leftCol_; c - leftCol_ < cols; ++c) {
        const Integer x = colLeft(c);
        Canvas.SetClipRect({x, 0, x + At.colWidth - 1, At.height});
        DrawCellText(Canvas, ColTitle(c), x, x + At.colWidth, 0, At.rowHeight, LineHeight, TextFlags::Center, Platform::clWindowText);
        for (Integer r = topRow_; r - topRow_ < rows; ++r) {
            const Float value = ReadCell(r, c);
            const std::string text = detail::ValueText(value, decimals_);
            // A value too wide for its cell shows its leading digits.
            const bool fits = Canvas.TextWidth(text) <= At.colWidth - 2 * Pad;
            DrawCellText(Canvas, text, x, x + At.colWidth, rowTop(r), At.rowHeight, LineHeight,
                         fits ? TextFlags::Right : TextFlags::Left,
                         std::isnan(value) ? Platform::clGrayText : Platform::clWindowText);
        }
    }
    // Row titles, then labels (a row without one shows the not-available text).
    Canvas.SetClipRect({0, At.cellsTop, At.rowTitleWidth - 1, At.height});
    for (Integer r = topRow_; r - topRow_ < rows; ++r)
        DrawCellText(Canvas, std::to_string(r), 0, At.rowTitleWidth, rowTop(r), At.rowHeight, LineHeight, TextFlags::Right,
                 Platform::clWindowText);
    if (At.labelWidth > 0) {
        const Integer x = At.rowTitleWidth;
        Canvas.SetClipRect({x, 0, x + At.labelWidth - 1, At.height});
        DrawCellText(Canvas, LabelTitle(), x, x + At.labelWidth, 0, At.rowHeight, LineHeight, TextFlags::Center, Platform::clWindowText);
        for (Integer r = topRow_; r - topRow_ < rows; ++r) {
            const std::string label = RowLabel(r);
            DrawCellText(Canvas, label.empty() ? Kornum_RS_Math::rsNA.Text() : label, x, x + At.labelWidth, rowTop(r),
                     At.rowHeight, LineHeight, TextFlags::Left, label.empty() ? Platform::clGrayText : Platform::clWindowText);
        }
    }

    // Grid lines: one along the bottom of each row and the right of each column.
    Canvas.SetClipRect({0, 0, At.width, At.height});
    for (Integer r = 0; r < rows; ++r) {
        const Integer y = At.cellsTop + (r + 1) * At.rowHeight - 1;
        Canvas.DrawLine(0, y, right - 1, y, LineColor);
    }
    for (Integer c = 0; c < cols; ++c) {
        const Integer x = At.cellsLeft + (c + 1) * At.colWidth - 1;
        Canvas.DrawLine(x, 0, x, bottom - 1, LineColor);
    }
    Canvas.DrawLine(0, At.cellsTop - 1, At.width - 1, At.cellsTop - 1, TitleLineColor);
    Canvas.DrawLine(At.rowTitleWidth - 1, 0, At.rowTitleWidth - 1, At.height - 1, TitleLineColor);
    if (At.labelWidth > 0) Canvas.DrawLine(At.cellsLeft - 1, 0, At.cellsLeft - 1, At.height - 1, TitleLineColor);

    if (inView(row_, col_)) {
        const TRect cell{colLeft(col_) - 1, rowTop(row_) - 1, colLeft(col_) + At.colWidth, rowTop(row_) + At.rowHeight};
        Canvas.FrameRect(cell, CurrentColor);
        Canvas.FrameRect({cell.Left + 1, cell.Top + 1, cell.Right - 1, cell.Bottom - 1}, CurrentColor);
    }
}

void TKorCustomGridEdit::PaintEdit(Platform::TCanvas& Canvas, const Layout& At, Integer LineHeight) {
    if (!editing_ || row_ < topRow_ || col_ < leftCol_) return;
    const std::int64_t down = std::int64_t(row_) - topRow_, across = std::int64_t(col_) - leftCol_;
    if (down >= At.RowsInView(topRow_) || across >= At.ColsInView(leftCol_)) return;
    const Integer x = At.cellsLeft + Integer(across) * At.colWidth, y = At.cellsTop + Integer(down) * At.rowHeight;
    const TRect inside{x + 1, y + 1, x + At.colWidth - 2, y + At.rowHeight - 2};
    Canvas.FillRect(inside, CellColor);
    Canvas.SetClipRect(inside);
    // The text scrolls left when the caret would pass the right edge.
    Canvas.Font().Color = Platform::clWindowText;
    const Integer caretX = Canvas.TextWidth(std::string_view(editText_).substr(0, caret_));
    const Integer shift = std::max<Integer>(0, caretX - (At.colWidth - 3 * Pad));
    DrawCellText(Canvas, editText_, x - shift, x + At.colWidth + caretX, y, At.rowHeight, LineHeight, TextFlags::Left,
             Platform::clWindowText);
    const Integer caret = x + Pad + caretX - shift;
    Canvas.DrawLine(caret, y + 3, caret, y + At.rowHeight - 4, Platform::clWindowText);
    Canvas.SetClipRect({0, 0, At.width, At.height});
    if (editError_.empty()) return;
    // Why the text was not stored, in a box under the cell (over it at the bottom edge).
    const Integer width = Canvas.TextWidth(editError_) + 2 * Pad;
    const Integer left = std::max<Integer>(0, std::min(x, At.width - width));
    const Integer top = y + 2 * At.rowHeight <= At.height ? y + At.rowHeight : std::max<Integer>(0, y - At.rowHeight);
    const TRect box{left, top, left + width, top + At.rowHeight};
    Canvas.FillRect(box, ErrorBackColor);
    Canvas.FrameRect(box, ErrorColor);
    DrawCellText(Canvas, editError_, left, box.Right, top, At.rowHeight, LineHeight, TextFlags::Left, ErrorColor);
}

}  // namespace KornumGridEdit
