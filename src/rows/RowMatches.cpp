// SPDX-License-Identifier: MIT
#include "rows/RowMatches.h"

#include "base/UnicodeCase.h"

#include <algorithm>

namespace {

bool IsFlag(std::int16_t value) { return value == 0 || value == 1; }

std::string_view SearchedText(const EntryTable& entries, EntryNumber number, LogbookColumn column) {
    if (column == LogbookColumn::Event)
        return EventTypeName(entries.Kind(number).EventType);
    return column == LogbookColumn::Data ? entries.Data(number) : entries.Comment(number);
}

} // namespace

CellTest::CellTest(const SearchState& search)
    : possible_(IsFlag(search.SearchWholeWord) && IsFlag(search.SearchCaseSensitive)),
      wholeWord_(search.SearchWholeWord != 0),
      caseSensitive_(search.SearchCaseSensitive != 0),
      text_(caseSensitive_ ? search.SearchText : UnicodeLower(search.SearchText)),
      textCharacters_(CharacterCount(text_)),
      wordAtStart_(text_ + ' '),
      wordBetweenBlanks_(' ' + text_ + ' '),
      wordAtEnd_(' ' + text_) {}

bool CellTest::Matches(std::string_view cell) {
    if (!possible_)
        return false;
    if (!caseSensitive_) {
        UnicodeLower(cell, lowerCell_);
        cell = lowerCell_;
    }
    return wholeWord_ ? MatchesWholeWord(cell) : cell.find(text_) != std::string_view::npos;
}

bool CellTest::MatchesWholeWord(std::string_view cell) const {
    if (cell.starts_with(wordAtStart_) || cell.find(wordBetweenBlanks_) != std::string_view::npos)
        return true;
    const std::size_t place = cell.find(wordAtEnd_);
    if (place == std::string_view::npos)
        return CharacterCount(cell) == textCharacters_;
    // Bytes give the same result as characters: the text follows the place, and then nothing.
    return place + wordAtEnd_.size() == cell.size();
}

bool RowMatches(const EntryTable& entries, const LogbookRow& row, CellTest& test) {
    return std::any_of(SearchColumns.begin(), SearchColumns.end(), [&](LogbookColumn column) {
        return test.Matches(SearchedText(entries, row.Entry, column));
    });
}
