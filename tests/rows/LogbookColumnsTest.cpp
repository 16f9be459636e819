// SPDX-License-Identifier: MIT
#include "rows/LogbookColumns.h"

#include "support/EntriesFrom.h"

#include <gmock/gmock.h>

#include <vector>

TEST(LogbookColumns, StandInTheirOrder) {
    std::vector<std::string_view> keys;
    std::vector<SortRule> rules;
    std::vector<int> widths;
    std::vector<std::string_view> settings;
    for (const LogbookColumnInfo& column : LogbookColumns) {
        keys.push_back(column.Key);
        rules.push_back(column.Rule);
        widths.push_back(column.DefaultWidth);
        settings.push_back(column.WidthSetting);
    }
    using testing::ElementsAre;
    EXPECT_THAT(keys, ElementsAre("event", "ident", "emitter", "name", "time", "index", ""));
    EXPECT_THAT(rules, ElementsAre(SortRule::Text, SortRule::Text, SortRule::Text, SortRule::Text,
                                   SortRule::Date, SortRule::Number, SortRule::Text));
    EXPECT_THAT(widths, ElementsAre(2000, 5000, 1700, 1700, 2000, 1000, 3000));
    EXPECT_THAT(settings, ElementsAre("Column(1).Width", "Column(2).Width", "Column(3).Width",
                                      "Column(4).Width", "Column(5).Width", "Column(6).Width", ""));
}

TEST(LogbookColumns, CellsAreTheFieldsOfTheEntry) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Warning, "data", "SYS", "TEMP"}});
    entries.SetComment(0, "seen");
    std::vector<std::string> cells;
    for (int column = 0; column < LogbookColumnCount; ++column)
        cells.push_back(CellText(entries, 0, static_cast<LogbookColumn>(column)));
    EXPECT_THAT(cells,
                testing::ElementsAre("Warning", "data", "SYS", "TEMP", "04.01.2010 12:34:56", "0", "seen"));
}

TEST(LogbookColumns, AnEventTypeWithoutANameHasAnEmptyCell) {
    EXPECT_EQ(KindText({-3, Images::Info, "SYS", "TEMP"}, LogbookColumn::Event), "");
    EXPECT_EQ(KindText({77, Images::Info, "SYS", "TEMP"}, LogbookColumn::Event), "");
}
