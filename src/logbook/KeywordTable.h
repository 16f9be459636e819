// SPDX-License-Identifier: MIT
#pragma once

#include "base/ShortText.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

// The keywords of a line grammar, in the order of testing. A row is any type with a member Keyword, which is
// never empty. Every line of a logbook is looked up here, so its first character leads to the few keywords
// that begin with it.
template <typename Row, std::size_t Count>
class KeywordTable {
  public:
    constexpr explicit KeywordTable(const std::array<Row, Count>& rows) : rows_(rows) {
        first_.fill(None);
        for (std::size_t row = Count; row-- > 0;) {
            std::array<char, 8> begin{};
            std::array<char, 8> mask{};
            for (std::size_t i = 0; i < std::min<std::size_t>(rows[row].Keyword.size(), 8); ++i) {
                begin[i] = rows[row].Keyword[i];
                mask[i] = static_cast<char>(0xFF);
            }
            begins_[row] = {std::bit_cast<std::uint64_t>(begin), std::bit_cast<std::uint64_t>(mask)};
            std::uint8_t& first = first_[static_cast<unsigned char>(rows[row].Keyword.front())];
            next_[row] = first;
            first = static_cast<std::uint8_t>(row);
        }
    }

    // The first row whose keyword the line begins with; nullptr when there is none.
    const Row* Find(std::string_view line) const {
        if (line.size() < 8)
            return FindShort(line);
        const std::uint64_t begin = LoadEight(line.data());
        for (std::uint8_t row = FirstRow(line); row != None; row = next_[row])
            if (((begin ^ begins_[row].Characters) & begins_[row].Mask) == 0 &&
                (rows_[row].Keyword.size() <= 8 || line.starts_with(rows_[row].Keyword)))
                return &rows_[row];
        return nullptr;
    }

  private:
    struct Begin {
        std::uint64_t Characters = 0;
        std::uint64_t Mask = 0;
    };

    std::uint8_t FirstRow(std::string_view line) const {
        return first_[static_cast<unsigned char>(line.front())];
    }

    const Row* FindShort(std::string_view line) const {
        for (std::uint8_t row = line.empty() ? None : FirstRow(line); row != None; row = next_[row])
            if (line.starts_with(rows_[row].Keyword))
                return &rows_[row];
        return nullptr;
    }

    static constexpr std::uint8_t None = 0xFF;
    static_assert(Count < None);

    std::array<Row, Count> rows_;
    std::array<Begin, Count> begins_{};      // the keyword's first eight characters, compared as one number
    std::array<std::uint8_t, 256> first_{};  // by first character: the first row with it
    std::array<std::uint8_t, Count> next_{}; // the next row with the same first character
};
