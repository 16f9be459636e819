// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The keywords of a line grammar, in the order in which they are tested. A row is any type with a member
// Keyword, which is never empty. Every line of a logbook is looked up here: its first character leads to the
// few keywords that begin with it.
template <typename Row, std::size_t Count>
class KeywordTable {
  public:
    constexpr explicit KeywordTable(const std::array<Row, Count>& rows) : rows_(rows) {
        first_.fill(None);
        for (std::size_t row = Count; row-- > 0;) {
            std::uint8_t& first = first_[static_cast<unsigned char>(rows[row].Keyword.front())];
            next_[row] = first;
            first = static_cast<std::uint8_t>(row);
        }
    }

    // The first row whose keyword the line begins with; nullptr when there is none.
    const Row* Find(std::string_view line) const {
        if (line.empty())
            return nullptr;
        for (std::uint8_t row = first_[static_cast<unsigned char>(line.front())]; row != None;
             row = next_[row])
            if (line.starts_with(rows_[row].Keyword))
                return &rows_[row];
        return nullptr;
    }

  private:
    static constexpr std::uint8_t None = 0xFF;
    static_assert(Count < None);

    std::array<Row, Count> rows_;
    std::array<std::uint8_t, 256> first_{};  // by first character: the first row with it
    std::array<std::uint8_t, Count> next_{}; // the next row with the same first character
};
