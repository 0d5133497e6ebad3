// Where the parts of a grid edit lie, and the texts of its values: shared by its input,
// painting and clipboard code.
#pragma once

#include <kornum/KornumGridEdit.h>

#include <optional>
#include <string>
#include <string_view>

namespace KornumGridEdit {

// The grid's geometry at its current size: a title row at the top, the row titles and
// the label column at the left, then the value columns from LeftCol on.
struct TKorCustomGridEdit::Layout {
    Integer width, height;
    Integer rows, cols;  // value cells
    Integer rowHeight, colWidth, rowTitleWidth, labelWidth;
    Integer cellsLeft, cellsTop;  // the top left corner of the first value cell in view
    Integer fullRows, fullCols;   // value rows and columns wholly in view, at least 1

    // The value columns in view from Left on, and the rows from Top on, partial ones
    // included.
    Integer ColsInView(Integer left) const {
        const Integer across = (width - cellsLeft + colWidth - 1) / colWidth;
        return across < cols - left ? across : cols - left;
    }
    Integer RowsInView(Integer top) const {
        const Integer down = (height - cellsTop + rowHeight - 1) / rowHeight;
        return down < rows - top ? down : rows - top;
    }
};

namespace detail {

// A value as a cell shows it: the null value as KorNullStr, otherwise with Decimals
// decimals, or in the shortest text that reads back as the same Float for -1.
std::string ValueText(Float value, Integer decimals);

// The value of a text a user entered: NaN for an empty text or KorNullStr, none for a
// text that is not a number, with the reason in Reason.
std::optional<Float> ReadValue(std::string_view text, std::string& reason);

}  // namespace detail
}  // namespace KornumGridEdit
