// SPDX-License-Identifier: MIT
#include "cli/PlainTable.h"

#include "base/UnicodeCase.h"
#include "base/VisibleControls.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr std::string_view Cut = "...";
constexpr std::string_view Between = "  "; // the columns

// The first characters of a text, in bytes.
std::size_t BytesOf(std::string_view text, std::size_t characters) {
    std::size_t bytes = 0;
    for (; bytes < text.size(); ++bytes) {
        const bool begins = (static_cast<unsigned char>(text[bytes]) & 0xC0U) != 0x80U;
        if (begins && characters-- == 0)
            break;
    }
    return bytes;
}

std::string Fitted(std::string_view text, std::size_t width) {
    if (CharacterCount(text) <= width)
        return std::string(text);
    if (width <= Cut.size())
        return std::string(text.substr(0, BytesOf(text, width)));
    return std::string(text.substr(0, BytesOf(text, width - Cut.size()))).append(Cut);
}

} // namespace

std::vector<std::size_t> PlainTable::Widths(std::size_t most) const {
    std::vector<std::size_t> widths;
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        std::size_t width = std::max(columns_[column].Least, CharacterCount(columns_[column].Heading));
        for (const std::vector<std::string>& cells : lines_)
            if (column < cells.size() && cells.size() == columns_.size())
                width = std::max(width, CharacterCount(cells[column]));
        widths.push_back(std::min(width, columns_[column].Most));
    }
    const std::size_t others = std::accumulate(widths.begin(), widths.end() - 1, std::size_t{0}) +
                               Between.size() * (widths.size() - 1);
    widths.back() = most > others ? most - others : 0;
    return widths;
}

void PlainTable::Write(std::ostream& stream, std::size_t most) const {
    const std::vector<std::size_t> widths = Widths(most);
    const auto writeLine = [&](const std::vector<std::string>& cells) {
        std::string line;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            // The last cell of a short line has the rest of it.
            const bool isLast = column + 1 == cells.size();
            const bool isShort = isLast && cells.size() < columns_.size();
            const std::string cell = isShort ? WithVisibleControls(cells[column])
                                             : Fitted(WithVisibleControls(cells[column]), widths[column]);
            const std::size_t count = CharacterCount(cell);
            const std::string blanks(count < widths[column] ? widths[column] - count : 0, ' ');
            if (column != 0)
                line += Between;
            const bool right = columns_[column].Alignment == Side::Right && !isShort;
            line.append(right ? blanks : "").append(cell).append(right || isLast ? "" : blanks);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        stream << line << '\n';
    };
    std::vector<std::string> headings;
    for (const Column& column : columns_)
        headings.push_back(column.Heading);
    writeLine(headings);
    for (const std::vector<std::string>& cells : lines_)
        writeLine(cells);
}
