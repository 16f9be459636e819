// SPDX-License-Identifier: MIT
#include "rows/ListSearch.h"

#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <vector>

namespace {

// What a test of each entry finds, by entry number.
std::vector<bool> EntriesThatMatch(const EntryTable& entries, const SearchState& search) {
    CellTest test(search);
    std::vector<bool> match;
    for (const LogbookRow& row : AllRows(entries))
        match.push_back(RowMatches(entries, row, test));
    return match;
}

std::int32_t RowByRow(const std::vector<bool>& match, const LogbookRows& rows, std::int32_t start,
                      SearchDirection direction) {
    const bool up = direction == SearchDirection::Up;
    const auto count = static_cast<std::int32_t>(rows.size());
    const std::int32_t step = up ? -1 : 1;
    for (std::int32_t row = start != 0 ? start + step : (up ? count : 1); row >= 1 && row <= count;
         row += step)
        if (match[rows[static_cast<std::size_t>(row - 1)].Entry])
            return row;
    return -1;
}

class FindInListTest : public testing::Test {
  protected:
    void SetUp() override {
        FillTable(Entries,
                  {{3, "one", "", ""}, {1, "two", "", ""}, {3, "three", "", ""}, {1, "two", "", ""}});
        Rows = AllRows(Entries);
    }

    std::int32_t Find(std::int32_t start, std::string text, SearchDirection direction) const {
        return FindInList(Entries, Rows, start, {.SearchText = std::move(text)}, direction);
    }

    EntryTable Entries;
    LogbookRows Rows;
};

using enum SearchDirection;

// Few rows match, and none for a long way: so that all entries are looked through.
class LongListTest : public testing::Test {
  protected:
    // Of each of the lists below far more rows than are tested before candidates are looked for.
    static constexpr EntryNumber Count = 3000;

    LongListTest() {
        // In the bytes of Windows-1252, as a logbook has them.
        constexpr std::array<std::string_view, 8> Words{"Achse", "k\xFChl", "K\xDCHL", "Ma\xDF",
                                                        "drive", "ERR",     "E",       "XYZ"};
        std::mt19937 random(17);
        std::vector<TestEntry> list;
        for (EntryNumber number = 0; number < Count; ++number) {
            std::string data;
            // Mostly one long word that no test looks for.
            if (random() % 100 != 0)
                data = "aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa";
            else
                for (std::size_t words = random() % 4; words > 0; --words)
                    data.append(Words[random() % Words.size()]).append(words > 1 ? " " : "");
            // A stamp that does not end in a time lies behind the data.
            const bool oddStamp = random() % 3 == 0;
            list.push_back({1, data, "", "", oddStamp ? "ERR drive k" : "04.01.2010 12:34:56"});
        }
        list[Count / 2].EventType = 7;
        FillTable(Entries, list);
        Entries.SetComment(123, "Temperatur 20 \u212A");
        Entries.SetComment(2400, "\u0130stanbul");
        Entries.SetComment(2401, "");
        Sorted = AllRows(Entries);
        std::shuffle(Sorted.begin(), Sorted.end(), random);
        Filtered = Sorted;
        Filtered.resize(Count / 2);
    }

    static std::vector<SearchState> Searches() {
        std::vector<SearchState> searches;
        for (const char* text :
             {"kühl", "KÜHL", "maß", "MAẞ", "err", "ERR", "drive", "20 k", "istanbul", "restart",
              "no such text", "achse err", "Achse", "e", "k", "ABCDE", "", "\xFC"})
            for (const std::int16_t wholeWord : std::initializer_list<std::int16_t>{0, 1})
                for (const std::int16_t caseSensitive : std::initializer_list<std::int16_t>{0, 1})
                    searches.push_back({text, false, wholeWord, caseSensitive});
        for (const std::int16_t caseSensitive : std::initializer_list<std::int16_t>{0, 1})
            searches.push_back({"err", false, 2, caseSensitive});
        return searches;
    }

    EntryTable Entries;
    LogbookRows Sorted;
    LogbookRows Filtered;
};

} // namespace

TEST_F(FindInListTest, BeginsBesideTheSelectedRow) {
    EXPECT_EQ(Find(1, "two", Down), 2);
    EXPECT_EQ(Find(2, "two", Down), 4);
    EXPECT_EQ(Find(4, "two", Up), 2);
    EXPECT_EQ(Find(3, "t", Up), 2);
}

TEST_F(FindInListTest, DoesNotWrapAround) {
    EXPECT_EQ(Find(4, "two", Down), -1);
    EXPECT_EQ(Find(2, "two", Up), -1);
    EXPECT_EQ(Find(1, "one", Up), -1);
    EXPECT_EQ(Find(1, "one", Down), -1);
}

TEST_F(FindInListTest, WithoutSelectedRowBeginsAtTheEndOfTheListAndIncludesIt) {
    EXPECT_EQ(Find(0, "one", Down), 1);
    EXPECT_EQ(Find(0, "two", Up), 4);
    EXPECT_EQ(Find(0, "four", Down), -1);
    Rows.clear();
    EXPECT_EQ(Find(0, "", Down), -1);
    EXPECT_EQ(Find(0, "", Up), -1);
}

TEST_F(FindInListTest, StartBeyondTheListIsNoFault) {
    EXPECT_EQ(Find(99, "two", Up), 4);
    EXPECT_EQ(Find(99, "two", Down), -1);
}

TEST(MatchingRows, AWholeWordIsAlsoAnyDataOfItsLength) {
    EntryTable entries;
    const auto find = [&](const std::string& data, const std::string& text) {
        ParsedEntry entry;
        entry.EventType = EventTypes::Info;
        entries.Clear();
        entry.Data = data;
        entries.Append(entry, CodePage());
        return MatchingRows(entries, AllRows(entries), {.SearchText = text, .SearchWholeWord = 1}).size();
    };
    EXPECT_EQ(find("xyz", "abc"), 1U);
    EXPECT_EQ(find("xyzz", "abc"), 0U);
    EXPECT_EQ(find("xy", "abc"), 0U);
    // Three bytes each in UTF-8.
    EXPECT_EQ(find("\x80\x80\x80", "abc"), 1U);
    EXPECT_EQ(find("\x80\x80\x80\x80", "abc"), 0U);
}

TEST_F(FindInListTest, EmptyTextIsInEveryRow) {
    EXPECT_EQ(Find(1, "", Down), 2);
    EXPECT_EQ(Find(4, "", Up), 3);
}

TEST_F(FindInListTest, FollowsTheOrderOfTheList) {
    Rows = {{3, 0}, {0, 0}, {1, 0}};
    EXPECT_EQ(Find(1, "two", Down), 3);
    EXPECT_EQ(Find(3, "two", Up), 1);
    EXPECT_EQ(Find(0, "three", Down), -1);
}

TEST_F(LongListTest, FindsWhatATestOfEachRowFinds) {
    std::mt19937 random(19);
    const std::array<LogbookRows, 3> lists{AllRows(Entries), Sorted, Filtered};
    int hits = 0;
    int misses = 0;
    for (const SearchState& search : Searches()) {
        const std::vector<bool> match = EntriesThatMatch(Entries, search);
        for (const LogbookRows& rows : lists)
            for (const SearchDirection direction : {Down, Up})
                for (const std::int32_t start : {0, static_cast<std::int32_t>(random() % rows.size() + 1)}) {
                    const std::int32_t expected = RowByRow(match, rows, start, direction);
                    ASSERT_EQ(FindInList(Entries, rows, start, search, direction), expected)
                        << search.SearchText << " " << search.SearchWholeWord << search.SearchCaseSensitive
                        << " from " << start << (direction == Up ? " up" : " down");
                    ++(expected == -1 ? misses : hits);
                }
    }
    EXPECT_GT(hits, 100);
    EXPECT_GT(misses, 100);
}

TEST_F(LongListTest, AllMatchingRowsAreThoseOfATestOfEach) {
    const std::array<LogbookRows, 2> lists{AllRows(Entries), Filtered};
    for (const SearchState& search : Searches()) {
        const std::vector<bool> match = EntriesThatMatch(Entries, search);
        for (const LogbookRows& rows : lists) {
            LogbookRows expected;
            std::copy_if(rows.begin(), rows.end(), std::back_inserter(expected),
                         [&](const LogbookRow& row) { return match[row.Entry]; });
            ASSERT_EQ(MatchingRows(Entries, rows, search), expected) << search.SearchText;
        }
    }
}
