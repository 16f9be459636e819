// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

// A table for a person to read, in letters of one width. A cell that is wider than its column is cut, and
// ends in
// "...". Blanks stand between the columns, and none at the end of a line.
class PlainTable {
  public:
    enum class Side { Left, Right };
    struct Column {
        std::string Heading; // UTF-8; may be wider than Least
        std::size_t Least;   // the width in characters; the heading's if that is wider
        std::size_t Most;
        Side Alignment = Side::Left;
    };

    explicit PlainTable(std::vector<Column> columns) : columns_(std::move(columns)) {}

    // A cell for each column; fewer cells end the line early.
    void AddLine(std::vector<std::string> cells) { lines_.push_back(std::move(cells)); }

    // Each column is as wide as its widest cell, within its bounds. The last column gets what is left of
    // `most` characters.
    void Write(std::ostream& stream, std::size_t most) const;

  private:
    std::vector<std::size_t> Widths(std::size_t most) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> lines_;
};
