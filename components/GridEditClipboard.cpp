// The grid edit's clipboard as text: the selection out as tab-separated lines, a block of
// such lines in at the current cell.
#include <kornum/KornumGridEdit.h>

#include <kornum/PlatformExceptions.h>

#include "components/detail/GridLayout.hpp"

#include <vector>

namespace KornumGridEdit {
namespace {

// The lines of a block: split at line feeds, a carriage return before one dropped, and no
// empty last line after a final line feed.
std::vector<std::string_view> Lines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        lines.push_back(line);
        if (end == std::string_view::npos) break;
        text.remove_prefix(end + 1);
    }
    return lines;
}

std::vector<std::string_view> Fields(std::string_view line) {
    std::vector<std::string_view> fields;
    for (;;) {
        const std::size_t end = line.find('\t');
        fields.push_back(line.substr(0, end));
        if (end == std::string_view::npos) return fields;
        line.remove_prefix(end + 1);
    }
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t Shown = 40;
    return "'" + std::string(text.substr(0, Shown)) + (text.size() > Shown ? "...'" : "'");
}

}  // namespace

std::string TKorCustomGridEdit::CopyText() {
    if (!HasCells()) return {};
    const TGridRect block = Selection();
    const std::int64_t rows = std::int64_t(block.Bottom) - block.Top + 1, cols = std::int64_t(block.Right) - block.Left + 1;
    if (rows * cols > MaxCopyCells)
        throw Platform::EMathError("The selection of " + std::to_string(rows) + " x " + std::to_string(cols) +
                                   " cells is too large to copy: at most " + std::to_string(MaxCopyCells) + " cells");
    std::string text;
    for (Integer r = block.Top; r <= block.Bottom; ++r) {
        for (Integer c = block.Left; c <= block.Right; ++c) {
            if (c > block.Left) text += '\t';
            text += detail::ValueText(ReadCell(r, c), -1);
        }
        text += '\n';
    }
    return text;
}

void TKorCustomGridEdit::PasteText(std::string_view Text) {
    if (readOnly_ || !HasCells()) return;
    const std::vector<std::string_view> lines = Lines(Text);
    if (editing_ && lines.size() == 1 && lines[0].find('\t') == std::string_view::npos) return TextInput(lines[0]);
    CancelEdit();
    const std::int64_t rows = GridRows(), cols = GridCols();
    // Everything is read and placed before the first write.
    std::vector<std::vector<Float>> block;
    block.reserve(lines.size());
    Integer widest = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::int64_t row = std::int64_t(row_) + std::int64_t(i);
        const std::vector<std::string_view> fields = Fields(lines[i]);
        if (row >= rows || col_ + std::int64_t(fields.size()) > cols)
            throw Platform::EMathError("The pasted block does not fit: its line " + std::to_string(i + 1) + " of " +
                                       std::to_string(fields.size()) + " values would reach row " + std::to_string(row) +
                                       ", column " + std::to_string(col_ + std::int64_t(fields.size()) - 1) +
                                       " of a grid of " + std::to_string(rows) + " x " + std::to_string(cols));
        std::vector<Float>& values = block.emplace_back();
        values.reserve(fields.size());
        for (std::size_t j = 0; j < fields.size(); ++j) {
            std::string reason;
            const std::optional<Float> value = detail::ReadValue(fields[j], reason);
            if (!value)
                throw Platform::EMathError("Cannot paste " + Quoted(fields[j]) + " into row " + std::to_string(row) +
                                           ", column " + std::to_string(col_ + std::int64_t(j)) + ": it is not a number");
            values.push_back(*value);
        }
        widest = std::max<Integer>(widest, Integer(fields.size()));
    }
    if (block.empty()) return;
    for (std::size_t i = 0; i < block.size(); ++i)
        for (std::size_t j = 0; j < block[i].size(); ++j) WriteCell(row_ + Integer(i), col_ + Integer(j), block[i][j]);
    anchorRow_ = row_ + Integer(block.size()) - 1;
    anchorCol_ = col_ + widest - 1;
    Changed();
}

}  // namespace KornumGridEdit
