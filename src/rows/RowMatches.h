// SPDX-License-Identifier: MIT
#pragma once

#include "filter/LogbookRow.h"
#include "rows/LogbookColumns.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// The text of a search and how to compare it. The whole-word and case values are 0 or 1; with any other value
// nothing matches.
struct SearchState {
    std::string SearchText; // UTF-8
    bool SearchUp = false;  // towards the top of the list
    std::int16_t SearchWholeWord = 0;
    std::int16_t SearchCaseSensitive = 0;

    bool operator==(const SearchState&) const = default;
};

// Which way a search goes through the list.
enum class SearchDirection : std::uint8_t { Down, Up };

constexpr SearchDirection Opposite(SearchDirection direction) {
    return direction == SearchDirection::Down ? SearchDirection::Up : SearchDirection::Down;
}
inline SearchDirection DirectionOf(const SearchState& search) {
    return search.SearchUp ? SearchDirection::Up : SearchDirection::Down;
}

// The columns that a search covers, in this order.
inline constexpr std::array SearchColumns{LogbookColumn::Event, LogbookColumn::Data, LogbookColumn::Comment};

// The test of single cells, prepared once a search.
//
// Without whole words a cell matches when it contains the text. With whole words it matches in three cases:
// it begins with the text and a blank; it contains the text between two blanks; or the first blank followed
// by the text stands at the position (0 for none) that is the cell's length less the text's, so that only the
// text follows. Lengths are in characters. By the last rule every cell of the text's own length matches. This
// is deliberate: searches have always found these.
class CellTest {
  public:
    explicit CellTest(const SearchState& search);

    // The cell is UTF-8.
    bool Matches(std::string_view cell);

  private:
    bool MatchesWholeWord(std::string_view cell) const;

    bool possible_; // false when a value is neither 0 nor 1
    bool wholeWord_;
    bool caseSensitive_;
    std::string text_; // lower-case when case does not matter
    std::size_t textCharacters_;
    std::string wordAtStart_;
    std::string wordBetweenBlanks_;
    std::string wordAtEnd_;
    std::string lowerCell_;
};

// True when one of the searched cells of the row matches.
bool RowMatches(const EntryTable& entries, const LogbookRow& row, CellTest& test);
