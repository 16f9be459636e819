// SPDX-License-Identifier: MIT
#include "rows/WantedTime.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::sys_days TwentiethOfNovember{2010y / 11 / 20};

std::string Wanted(std::string_view text, std::optional<std::chrono::sys_days> day = TwentiethOfNovember) {
    const std::optional<Stamp> stamp = ReadWantedTime(text, day);
    return stamp ? IsoText(*stamp) : "none";
}

Stamp At(std::string_view text) { return ReadWantedTime(text, TwentiethOfNovember).value_or(Stamp{}); }

} // namespace

TEST(WantedTime, ClockCountsOnTheDay) {
    EXPECT_EQ(Wanted("14:12"), "2010-11-20T14:12:00");
    EXPECT_EQ(Wanted(" 14:12:07 "), "2010-11-20T14:12:07");
    EXPECT_EQ(Wanted("14:12:07.120"), "2010-11-20T14:12:07.120");
    EXPECT_EQ(Wanted("4:05"), "2010-11-20T04:05:00");
    EXPECT_EQ(Wanted("14:12", std::nullopt), "none");
}

TEST(WantedTime, DayMayLackItsYearOrItsClock) {
    EXPECT_EQ(Wanted("21.11. 14:12"), "2010-11-21T14:12:00");
    EXPECT_EQ(Wanted("14:12 21.11."), "2010-11-21T14:12:00");
    EXPECT_EQ(Wanted("21.11."), "2010-11-21T00:00:00");
    EXPECT_EQ(Wanted("21.11.2011 14:12", std::nullopt), "2011-11-21T14:12:00");
    EXPECT_EQ(Wanted("21.11.11 14:12", std::nullopt), "2011-11-21T14:12:00");
    EXPECT_EQ(Wanted("1.2.2011", std::nullopt), "2011-02-01T00:00:00");
    EXPECT_EQ(Wanted("21.11. 14:12", std::nullopt), "none");
}

TEST(WantedTime, IsoForms) {
    for (const char* text : {"2011-11-21T14:12:07.120", "2011-11-21 14:12:07.120", "14:12:07.120 2011-11-21"})
        EXPECT_EQ(Wanted(text), "2011-11-21T14:12:07.120");
    EXPECT_EQ(Wanted("2011-11-21"), "2011-11-21T00:00:00");
    EXPECT_EQ(Wanted("2011-11-21T14:12", std::nullopt), "2011-11-21T14:12:00");
}

TEST(WantedTime, IsoFormsWithoutSeparatorsAndWithACommaBeforeFractions) {
    for (const char* const text : {"20101120T141207", "20101120T14:12:07"})
        EXPECT_EQ(Wanted(text, std::nullopt), "2010-11-20T14:12:07") << text;
    EXPECT_EQ(Wanted("20101120T1412", std::nullopt), "2010-11-20T14:12:00");
    EXPECT_EQ(Wanted("20101120", std::nullopt), "2010-11-20T00:00:00");
    for (const char* const text : {"2010-11-20T14:12:07,120", "20101120T141207.120", "20101120T141207,120"})
        EXPECT_EQ(Wanted(text, std::nullopt), "2010-11-20T14:12:07.120") << text;
    for (const char* const text : {"2010112", "20101320", "20101120T1", "20101120 1412", "1412"})
        EXPECT_EQ(Wanted(text), "none") << text;
}

TEST(WantedTime, AnythingElseIsNone) {
    for (const char* text :
         {"", "  ", "14", "14:60", "24:00", "yesterday", "30.02.2010 14:12", "2010-13-01", "14:12 14:13",
          "20.11. 21.11.", "14:12x", "20-11-2010", "T", "-", "2010--", "14:12:07.", "20.11.2010."})
        EXPECT_EQ(Wanted(text), "none") << text;
}

TEST(WantedTime, FirstRowAtOrAfterItIsFound) {
    EntryTable entries;
    FillTable(entries, {{1, "a", "", "", "20.11.2010 14:00:00"},
                        {1, "b", "", "", "unreadable"},
                        {1, "c", "", "", "20.11.2010 14:12:00"},
                        {1, "d", "", "", "20.11.2010 14:12:30"},
                        {1, "e", "", "", "20.11.2010 13:00:00"},
                        {1, "f", "", "", "21.11.2010 08:00:00"}});
    const LogbookRows rows = AllRows(entries);
    const auto find = [&](std::string_view text) {
        return FindTime(entries, rows, At(text), RowsInTime::Onward);
    };
    EXPECT_EQ(find("14:12").Row, 2U);
    EXPECT_EQ(find("14:12:01").Row, 3U);
    EXPECT_EQ(find("14:12:30.500").Row, 3U) << "a stamp without milliseconds counts for its second";
    EXPECT_EQ(find("14:13").Row, 5U);
    EXPECT_EQ(find("22.11.").Row, std::nullopt);
    EXPECT_EQ(find("1.1.").Row, 0U);
    EXPECT_EQ(find("14:12").HiddenEntry, std::nullopt);
}

TEST(WantedTime, NearestRowIsFoundWhereTheListHasAnotherOrder) {
    EntryTable entries;
    FillTable(entries, {{1, "a", "", "", "20.11.2010 14:00:00"},
                        {1, "b", "", "", "20.11.2010 14:10:00"},
                        {1, "c", "", "", "20.11.2010 14:20:00"}});
    const LogbookRows rows{{2, 0}, {1, 0}, {0, 0}};
    const auto find = [&](std::string_view text) {
        return FindTime(entries, rows, At(text), RowsInTime::Anyhow).Row;
    };
    EXPECT_EQ(find("14:14"), 1U);
    EXPECT_EQ(find("14:16"), 0U);
    EXPECT_EQ(find("14:15"), 0U) << "the first of two";
    EXPECT_EQ(find("13:00"), 2U);
    EXPECT_EQ(FindTime(entries, {}, At("14:00"), RowsInTime::Anyhow).Row, std::nullopt);
}

TEST(WantedTime, NearerEntryThatNoRowShowsIsNamed) {
    EntryTable entries;
    FillTable(entries, {{1, "a", "", "", "20.11.2010 14:00:00"},
                        {1, "b", "", "", "20.11.2010 14:10:00"},
                        {1, "c", "", "", "20.11.2010 14:11:00"},
                        {1, "d", "", "", "20.11.2010 14:20:00"}});
    const LogbookRows rows{{0, 0}, {3, 0}};
    const TimeFound found = FindTime(entries, rows, At("14:05"), RowsInTime::Onward);
    EXPECT_EQ(found.Row, 1U);
    EXPECT_EQ(found.HiddenEntry, 1U);
    EXPECT_EQ(FindTime(entries, rows, At("14:12"), RowsInTime::Onward).HiddenEntry, std::nullopt);
    EXPECT_EQ(FindTime(entries, rows, At("14:12"), RowsInTime::Anyhow).HiddenEntry, 2U);
    EXPECT_EQ(FindTime(entries, rows, At("14:01"), RowsInTime::Anyhow).HiddenEntry, std::nullopt);
    const TimeFound beyond = FindTime(entries, {{0, 0}}, At("14:15"), RowsInTime::Onward);
    EXPECT_EQ(beyond.Row, std::nullopt);
    EXPECT_EQ(beyond.HiddenEntry, 3U);
}

TEST(WantedTime, DaysHaveTheirEntriesAndErrors) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Error, "a", "", "", "21.11.2010 14:00:00"},
                        {EventTypes::Info, "b", "", "", "20.11.2010 14:10:00"},
                        {EventTypes::Fatal, "c", "", "", "21.11.2010 23:59:59"},
                        {EventTypes::Warning, "d", "", "", "unreadable"},
                        {EventTypes::Key, "e", "", "", "21.11.2010 00:00:00"}});
    EXPECT_EQ(DaysOf(entries), (std::vector<LogbookDay>{{TwentiethOfNovember, 1, 0},
                                                        {TwentiethOfNovember + std::chrono::days(1), 3, 2}}));
    EXPECT_TRUE(DaysOf(EntryTable()).empty());
}
