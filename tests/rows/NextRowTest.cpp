// SPDX-License-Identifier: MIT
#include "rows/NextRow.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

#include <random>

namespace {

constexpr auto Onward = SearchDirection::Down;
constexpr auto Back = SearchDirection::Up;

} // namespace

TEST(NextRow, GoesFromErrorToErrorInBothDirections) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Info, "a", "", ""},
                        {EventTypes::Error, "b", "", ""},
                        {EventTypes::Warning, "c", "", ""},
                        {EventTypes::Fatal, "d", "", ""},
                        {EventTypes::Key, "e", "", ""}});
    const LogbookRows rows = AllRows(entries);
    EXPECT_EQ(NextRow(entries, rows, {}, RowMark::Error, Onward), 1U);
    EXPECT_EQ(NextRow(entries, rows, 0, RowMark::Error, Onward), 1U);
    EXPECT_EQ(NextRow(entries, rows, 1, RowMark::Error, Onward), 3U);
    EXPECT_EQ(NextRow(entries, rows, 3, RowMark::Error, Onward), std::nullopt);
    EXPECT_EQ(NextRow(entries, rows, {}, RowMark::Error, Back), 3U);
    EXPECT_EQ(NextRow(entries, rows, 3, RowMark::Error, Back), 1U);
    EXPECT_EQ(NextRow(entries, rows, 1, RowMark::Error, Back), std::nullopt);
    EXPECT_EQ(NextRow(entries, rows, 0, RowMark::Error, Back), std::nullopt);
}

TEST(NextRow, FollowsTheOrderOfTheList) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Error, "a", "", ""},
                        {EventTypes::Info, "b", "", ""},
                        {EventTypes::Error, "c", "", ""}});
    const LogbookRows rows{{2, 0}, {1, 0}, {0, 0}};
    EXPECT_EQ(NextRow(entries, rows, 0, RowMark::Error, Onward), 2U);
    entries.SetComment(2, "oil");
    entries.SetComment(1, "");
    EXPECT_EQ(NextRow(entries, rows, {}, RowMark::Commented, Onward), 0U);
    EXPECT_EQ(NextRow(entries, rows, 0, RowMark::Commented, Onward), std::nullopt);
    EXPECT_EQ(NextRow(entries, {}, {}, RowMark::Commented, Back), std::nullopt);
}

TEST(NextRow, FindsWhatAWalkFromRowToRowFinds) {
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        EntryTable entries;
        std::vector<TestEntry> content;
        for (std::size_t i = random() % 20; i-- > 0;)
            content.push_back({static_cast<std::int16_t>(1 + random() % 9), "x", "", ""});
        FillTable(entries, content);
        LogbookRows rows = AllRows(entries);
        std::shuffle(rows.begin(), rows.end(), random);
        for (LogbookRow& row : rows) {
            row.Highlighted = random() % 4 == 0;
            if (random() % 4 == 0)
                entries.SetComment(row.Entry, random() % 2 == 0 ? "" : "oil");
        }
        const auto has = [&](std::size_t row, RowMark mark) {
            const EntryNumber entry = rows[row].Entry;
            const std::int16_t type = entries.Kind(entry).EventType;
            return mark == RowMark::Error         ? type == 3 || type == 4
                   : mark == RowMark::Highlighted ? rows[row].Highlighted != 0
                                                  : !entries.Comment(entry).empty();
        };
        for (const RowMark mark : {RowMark::Error, RowMark::Highlighted, RowMark::Commented})
            for (std::size_t start = 0; start < rows.size(); ++start) {
                std::optional<std::size_t> next;
                std::optional<std::size_t> previous;
                for (std::size_t row = start + 1; row < rows.size() && !next; ++row)
                    if (has(row, mark))
                        next = row;
                for (std::size_t row = 0; row < start; ++row)
                    if (has(row, mark))
                        previous = row;
                EXPECT_EQ(NextRow(entries, rows, start, mark, Onward), next);
                EXPECT_EQ(NextRow(entries, rows, start, mark, Back), previous);
            }
    }
}
