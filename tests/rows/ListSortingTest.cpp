// SPDX-License-Identifier: MIT
#include "rows/ListSorting.h"

#include "base/CaseFolding.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace {

using testing::ElementsAre;

constexpr std::int16_t Info = EventTypes::Info;

std::int16_t NumberOf(LogbookColumn column) { return static_cast<std::int16_t>(column); }

LogbookRows Shuffled(LogbookRows rows, std::mt19937& random) {
    std::shuffle(rows.begin(), rows.end(), random);
    return rows;
}

std::vector<std::string> Cells(const EntryTable& entries, const LogbookRows& rows, LogbookColumn column) {
    std::vector<std::string> cells;
    for (const LogbookRow& row : rows)
        cells.push_back(CellText(entries, row.Entry, column));
    return cells;
}

std::vector<EntryNumber> Numbers(const LogbookRows& rows) {
    std::vector<EntryNumber> numbers;
    for (const LogbookRow& row : rows)
        numbers.push_back(row.Entry);
    return numbers;
}

void Append(EntryTable& table, std::string_view data, std::string_view time,
            const CodePage& codePage = CodePage()) {
    ParsedEntry entry;
    entry.EventType = Info;
    entry.Data = data;
    entry.Time = time;
    table.Append(entry, codePage);
}

// The cells of the column in the order of one sort of this direction.
std::vector<std::string> Sorted(const EntryTable& entries, LogbookColumn column,
                                SortDirection direction = SortDirection::Ascending) {
    LogbookRows rows = AllRows(entries);
    ListOrder order{-1, direction, {}};
    EXPECT_TRUE(SortListByColumn(entries, rows, column, order));
    return Cells(entries, rows, column);
}

std::vector<std::string> SortedTimes(const std::vector<std::string>& times,
                                     SortDirection direction = SortDirection::Ascending) {
    EntryTable entries;
    for (const std::string& time : times)
        Append(entries, "", time);
    return Sorted(entries, LogbookColumn::Time, direction);
}

// What the list compares: the text without its case, or the key that the column's rule makes of it.
std::string KeyOf(const EntryTable& entries, EntryNumber number, LogbookColumn column) {
    const std::string cell = CellText(entries, number, column);
    switch (LogbookColumns[static_cast<std::size_t>(column)].Rule) {
    case SortRule::Date:
        return DateKey(cell);
    case SortRule::Number:
        return NumberKey(cell);
    case SortRule::Text:
        break;
    }
    return FoldCase(cell);
}

std::vector<std::string> KeysOf(const EntryTable& entries, LogbookColumn column) {
    std::vector<std::string> keys;
    for (EntryNumber number = 0; number < entries.Count(); ++number)
        keys.push_back(KeyOf(entries, number, column));
    return keys;
}

LogbookRows PlainlySorted(const std::vector<std::string>& keys, LogbookRows rows, SortDirection direction) {
    std::stable_sort(rows.begin(), rows.end(), [&](const LogbookRow& a, const LogbookRow& b) {
        return direction == SortDirection::Descending ? keys[b.Entry] < keys[a.Entry]
                                                      : keys[a.Entry] < keys[b.Entry];
    });
    return rows;
}

// How many different data texts entries have.
enum class Texts { Few, Many };

// Entries in the Turkish code page, which has the letters whose case is hard.
void FillAtRandom(EntryTable& entries, std::size_t count, Texts texts, std::mt19937& random) {
    const CodePage codePage = CodePage::ForLocale("tr_TR");
    const std::vector<std::string> words{"",
                                         "a",
                                         "A",
                                         "\xE4",
                                         "\xC4pfel",
                                         "STRASSE",
                                         "Stra\xDF"
                                         "e",
                                         "0x0141 -> UP | MANUAL",
                                         "\xDD",
                                         "i",
                                         "|",
                                         "\xFD",
                                         "12345678",
                                         "Zeile ",
                                         "ZEILE ",
                                         "block ",
                                         "1234567",
                                         "_"};
    const std::vector<std::string> times{"",
                                         "x",
                                         "31.02.2010 10:00:00",
                                         "04.01.2010 25:00:00",
                                         "04.01.2010 10:00:00",
                                         "04.01.2010 10:00:00.123",
                                         "04.01.2010 10:00:00.122",
                                         "04.01.10 10:00:00",
                                         "10:00:00 04.01.2010",
                                         "10:00 05.01.2010",
                                         "05.01.2010",
                                         "10:00:01",
                                         "05.01.2010 00:00:00",
                                         "2010-01-05 00:00:00"};
    const auto word = [&] { return words[random() % words.size()]; };
    entries.Clear();
    for (std::size_t i = 0; i < count; ++i) {
        std::string data = word();
        for (std::size_t more = texts == Texts::Few ? 0 : random() % 4; more > 0; --more)
            data += word();
        if (random() % 2 == 0)
            data += std::to_string(random() % (texts == Texts::Few ? 9 : 1000));
        const std::string sender = word();
        const std::string name = word();
        std::string time = times[random() % times.size()];
        if (random() % 2 == 0)
            time =
                std::to_string(random() % 28 + 1) + ".03.201" + std::to_string(random() % 10) + " 11:12:13";
        ParsedEntry entry;
        entry.EventType = static_cast<std::int16_t>(random() % 10);
        entry.Image = static_cast<std::int16_t>(random() % 3);
        entry.Data = data;
        entry.Sender = sender;
        entry.Name = name;
        entry.Time = time;
        entries.Append(entry, codePage);
    }
    const std::vector<std::string> comments{"", "Seen", "seen", "SEEN TWICE", "ä", "Ä", "\xFF\x80", "ok"};
    for (std::size_t i = 0; i < count / 3; ++i)
        entries.SetComment(static_cast<EntryNumber>(random() % count), comments[random() % comments.size()]);
}

} // namespace

TEST(ListSorting, ASecondClickOnAColumnInvertsTheOrderAndAnotherColumnKeepsIt) {
    EntryTable entries;
    FillTable(entries, {{Info, "", "", "", "05.01.2010 00:00:00"},
                        {Info, "", "", "", "04.01.2010 00:00:00"},
                        {Info, "", "", "", "06.01.2010 00:00:00"}});
    LogbookRows rows = AllRows(entries);
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Time, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(1, 0, 2));
    EXPECT_EQ(order,
              (ListOrder{NumberOf(LogbookColumn::Time), SortDirection::Ascending, LogbookColumn::Time}));
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Time, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(2, 0, 1));
    EXPECT_EQ(order,
              (ListOrder{NumberOf(LogbookColumn::Time), SortDirection::Descending, LogbookColumn::Time}));
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Index, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(2, 1, 0));
    EXPECT_EQ(order,
              (ListOrder{NumberOf(LogbookColumn::Index), SortDirection::Descending, LogbookColumn::Index}));
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Index, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(0, 1, 2));
}

TEST(ListSorting, TheFirstColumnCountsAsSortedBeforeTheFirstSort) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Info, "", "", ""}, {EventTypes::Warning, "", "", ""}});
    LogbookRows rows = AllRows(entries);
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Event, order));
    EXPECT_EQ(order.Direction, SortDirection::Descending);
    EXPECT_THAT(Cells(entries, rows, LogbookColumn::Event), ElementsAre("Warning", "Info"));
}

TEST(ListSorting, IndicesAreNumbers) {
    EntryTable entries;
    for (int i = 0; i < 11; ++i)
        Append(entries, "", "");
    LogbookRows rows{{2, 1}, {10, 0}, {1, 0}};
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Index, order));
    EXPECT_EQ(rows, (LogbookRows{{1, 0}, {2, 1}, {10, 0}}));
}

TEST(ListSorting, TextsHaveNoCase) {
    EntryTable entries;
    FillTable(entries, {{Info, "b", "", ""},
                        {Info, "_", "", ""},
                        {Info, "A", "", ""},
                        {Info, "", "", ""},
                        {Info, "B", "", ""},
                        {Info, "\xC4", "", ""},
                        {Info, "a\xE4", "", ""},
                        {Info, "a", "", ""}});
    EXPECT_THAT(Sorted(entries, LogbookColumn::Data), ElementsAre("", "_", "A", "a", "aä", "b", "B", "Ä"));
    EXPECT_THAT(Sorted(entries, LogbookColumn::Data, SortDirection::Descending),
                ElementsAre("Ä", "b", "B", "aä", "A", "a", "_", ""));
}

TEST(ListSorting, EventsAreSortedByTheirNames) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Status, "", "", ""},
                        {EventTypes::Error, "", "", ""},
                        {EventTypes::Info, "", "", ""},
                        {EventTypes::Fatal, "", "", ""}});
    EXPECT_THAT(Sorted(entries, LogbookColumn::Event), ElementsAre("Error", "Fatal", "Info", "Status"));
}

TEST(ListSorting, SendersAndNamesOfDifferentKindsMayBeTheSame) {
    EntryTable entries;
    FillTable(entries, {{Info, "0", "SYS", "b"}, {Info, "1", "PLC", "A"}, {Info, "2", "sys", "a"}});
    EXPECT_THAT(Sorted(entries, LogbookColumn::Sender), ElementsAre("PLC", "SYS", "sys"));
    EXPECT_THAT(Sorted(entries, LogbookColumn::Sender, SortDirection::Descending),
                ElementsAre("SYS", "sys", "PLC"));
    EXPECT_THAT(Sorted(entries, LogbookColumn::Name), ElementsAre("A", "a", "b"));
}

TEST(ListSorting, CommentsAreTextsAndNoneComesFirst) {
    EntryTable entries;
    for (int i = 0; i < 6; ++i)
        Append(entries, "", "");
    entries.SetComment(1, "seen");
    entries.SetComment(3, "Repaired");
    entries.SetComment(4, "SEEN");
    LogbookRows rows = AllRows(entries);
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Comment, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(0, 2, 5, 3, 1, 4));
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Comment, order));
    EXPECT_THAT(Numbers(rows), ElementsAre(1, 4, 3, 0, 2, 5));
}

TEST(ListSorting, ATimeThatIsNoDateComesBeforeAllDates) {
    EXPECT_THAT(SortedTimes({"05.01.2010 00:00:00", "restart", "31.02.2010 12:00:00", "01.01.1970 00:00:00"}),
                ElementsAre("restart", "31.02.2010 12:00:00", "01.01.1970 00:00:00", "05.01.2010 00:00:00"));
    EXPECT_THAT(SortedTimes({"05.01.2010 25:00:00", "05.01.2010 00:00:00", "", "04.01.2010 00:00:00"},
                            SortDirection::Descending),
                ElementsAre("05.01.2010 00:00:00", "04.01.2010 00:00:00", "05.01.2010 25:00:00", ""));
}

TEST(ListSorting, TimesOfAllFormsAreOneOrder) {
    EXPECT_THAT(SortedTimes({"04.01.2010 12:00", "04.01.2010 11:59:59.999", "13:00:00 03.01.2010", "23:59:59",
                             "04.01.2010", "05.01.09 10:00:00", "04.01.9999 00:00:00", "01.01.0100"}),
                ElementsAre("01.01.0100", "23:59:59", "05.01.09 10:00:00", "13:00:00 03.01.2010",
                            "04.01.2010", "04.01.2010 11:59:59.999", "04.01.2010 12:00",
                            "04.01.9999 00:00:00"));
}

TEST(ListSorting, MillisecondsDoNotCount) {
    const std::vector<std::string> times{"04.01.2010 12:00:00.900", "04.01.2010 12:00:00.100",
                                         "04.01.2010 12:00:00", "04.01.2010 11:59:59.999"};
    EXPECT_THAT(SortedTimes(times), ElementsAre(times[3], times[0], times[1], times[2]));
    EXPECT_THAT(SortedTimes(times, SortDirection::Descending),
                ElementsAre(times[0], times[1], times[2], times[3]));
}

TEST(ListSorting, AStampOutsideTheDaysOfTheTableIsSortedToo) {
    // More than 136 years before and after the days of the stamps that end in a clock time.
    EXPECT_THAT(SortedTimes({"12:00:00 01.01.2300", "05.01.2010 00:00:00", "12:00:00 01.01.1700", "x"}),
                ElementsAre("x", "12:00:00 01.01.1700", "05.01.2010 00:00:00", "12:00:00 01.01.2300"));
}

TEST(ListSorting, RowsWithTheSameKeyKeepTheirOrderInBothDirections) {
    EntryTable entries;
    FillTable(entries, {{Info, "b", "", ""}, {Info, "a", "", ""}, {Info, "B", "", ""}, {Info, "A", "", ""}});
    LogbookRows rows{{2, 0}, {3, 1}, {0, 0}, {1, 0}};
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Data, order));
    EXPECT_EQ(rows, (LogbookRows{{3, 1}, {1, 0}, {2, 0}, {0, 0}}));
    EXPECT_TRUE(SortListByColumn(entries, rows, LogbookColumn::Data, order));
    EXPECT_EQ(rows, (LogbookRows{{2, 0}, {0, 0}, {3, 1}, {1, 0}}));
}

TEST(ListSorting, TagsAreTheEventTypeUntilASortByTimeOrIndex) {
    EntryTable entries;
    FillTable(entries, {{EventTypes::Warning, "b", "", ""}, {EventTypes::Info, "a", "", ""}});
    LogbookRows rows = AllRows(entries);
    ListOrder order;
    EXPECT_EQ(RowTag(entries, 0, order), "2");
    SortListByColumn(entries, rows, LogbookColumn::Data, order);
    EXPECT_EQ(RowTag(entries, 0, order), "2");
    SortListByColumn(entries, rows, LogbookColumn::Time, order);
    EXPECT_EQ(RowTag(entries, 0, order), "04.01.2010 12:34:56");
    SortListByColumn(entries, rows, LogbookColumn::Name, order);
    EXPECT_EQ(RowTag(entries, 0, order), "04.01.2010 12:34:56") << "a sort by text leaves the tags";
    SortListByColumn(entries, rows, LogbookColumn::Index, order);
    EXPECT_EQ(RowTag(entries, 1, order), "1");
    order.ResetTags();
    EXPECT_EQ(RowTag(entries, 1, order), "1") << "the event type of an Info";
    EXPECT_EQ(RowTag(entries, 0, order), "2");
    EXPECT_EQ(order.LastSortColumn, NumberOf(LogbookColumn::Index));
}

TEST(ListSorting, NoRowsAndOneRow) {
    EntryTable entries;
    FillTable(entries, {{Info, "a", "", ""}});
    for (int column = 0; column < LogbookColumnCount; ++column) {
        ListOrder order{-1, SortDirection::Ascending, {}};
        LogbookRows none;
        EXPECT_TRUE(SortListByColumn(entries, none, static_cast<LogbookColumn>(column), order));
        EXPECT_TRUE(none.empty());
        EXPECT_EQ(order.LastSortColumn, column);
        LogbookRows one{{0, 1}};
        EXPECT_TRUE(SortListByColumn(entries, one, static_cast<LogbookColumn>(column), order));
        EXPECT_EQ(one, (LogbookRows{{0, 1}}));
        EXPECT_EQ(order.Direction, SortDirection::Descending);
    }
    const EntryTable empty;
    LogbookRows none;
    ListOrder order;
    EXPECT_TRUE(SortListByColumn(empty, none, LogbookColumn::Time, order));
}

TEST(ListSorting, RowsStaySmall) {
    std::mt19937 random(1);
    EntryTable entries;
    FillAtRandom(entries, 5000, Texts::Many, random);
    for (int column = 0; column < LogbookColumnCount; ++column) {
        LogbookRows rows = Shuffled(AllRows(entries), random);
        ListOrder order;
        EXPECT_TRUE(SortListByColumn(entries, rows, static_cast<LogbookColumn>(column), order));
        EXPECT_EQ(rows.capacity(), rows.size());
    }
}

class ListSortingAtRandom : public testing::TestWithParam<Texts> {};

INSTANTIATE_TEST_SUITE_P(Data, ListSortingAtRandom, testing::Values(Texts::Few, Texts::Many),
                         [](const auto& texts) {
                             return texts.param == Texts::Few ? "FewTexts" : "ManyTexts";
                         });

TEST_P(ListSortingAtRandom, SortsAsAPlainStableSortDoes) {
    std::mt19937 random(1);
    for (const std::size_t count : {2U, 9U, 40U, 300U, 3000U, 10000U}) {
        EntryTable entries;
        FillAtRandom(entries, count, GetParam(), random);
        LogbookRows rows = AllRows(entries);
        if (count == 300) // few of the entries
            rows.erase(std::remove_if(rows.begin(), rows.end(),
                                      [&](const LogbookRow&) { return random() % 8 != 0; }),
                       rows.end());
        for (LogbookRow& row : rows)
            row.Highlighted = random() % 2 != 0;
        for (int column = 0; column < LogbookColumnCount; ++column) {
            const std::vector<std::string> keys = KeysOf(entries, static_cast<LogbookColumn>(column));
            for (const SortDirection direction : {SortDirection::Ascending, SortDirection::Descending})
                for (const bool shuffled : {false, true}) {
                    LogbookRows sorted = shuffled ? Shuffled(rows, random) : rows;
                    const LogbookRows expected = PlainlySorted(keys, sorted, direction);
                    ListOrder order{-1, direction, {}};
                    ASSERT_TRUE(SortListByColumn(entries, sorted, static_cast<LogbookColumn>(column), order));
                    ASSERT_EQ(sorted, expected)
                        << count << " entries, column " << column
                        << (direction == SortDirection::Descending ? " descending" : "");
                }
        }
    }
}

TEST_P(ListSortingAtRandom, TheHookHearsOfTheWayAndMayStopItAnywhere) {
    std::mt19937 random(1);
    EntryTable entries;
    FillAtRandom(entries, 70000, GetParam(), random); // more than two calls of a pass over all
    const LogbookRows before = Shuffled(AllRows(entries), random);
    const ListOrder orderBefore{NumberOf(LogbookColumn::Time), SortDirection::Ascending, LogbookColumn::Time};
    for (int column = 0; column < LogbookColumnCount; ++column) {
        SCOPED_TRACE(column);
        LogbookRows rows = before;
        ListOrder order = orderBefore;
        std::vector<int> percents;
        ASSERT_TRUE(
            SortListByColumn(entries, rows, static_cast<LogbookColumn>(column), order, [&](int percent) {
                EXPECT_EQ(rows, before) << "the rows are shown while they are sorted";
                percents.push_back(percent);
                return true;
            }));
        EXPECT_GE(percents.size(), 2 * entries.Count() / SortProgress::StepsPerCall);
        EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
        EXPECT_GE(percents.front(), 0);
        EXPECT_LE(percents.back(), 100);
        EXPECT_GE(percents.back(), 90);
        EXPECT_NE(rows, before);

        if (GetParam() == Texts::Few && static_cast<LogbookColumn>(column) != LogbookColumn::Data)
            continue; // sorted the same way whatever the data
        // Of many calls some, the last among them: each costs a sort.
        const std::size_t stops = std::min<std::size_t>(percents.size(), 12);
        for (std::size_t stop = 1; stop <= stops; ++stop) {
            const std::size_t stopAt = stop * percents.size() / stops;
            rows = before;
            order = orderBefore;
            std::size_t calls = 0;
            ASSERT_FALSE(SortListByColumn(entries, rows, static_cast<LogbookColumn>(column), order,
                                          [&](int) { return ++calls < stopAt; }));
            ASSERT_EQ(calls, stopAt) << "a hook that stopped a sort is not called again";
            ASSERT_EQ(rows, before);
            ASSERT_EQ(order, orderBefore);
        }
    }
}

TEST(SortedOrder, SortsCellsByTheSameRules) {
    const std::vector<std::string> texts{"b", "", "A", "B", "a"};
    EXPECT_THAT(SortedOrder(texts, SortRule::Text, SortDirection::Ascending), ElementsAre(1, 2, 4, 0, 3));
    EXPECT_THAT(SortedOrder(texts, SortRule::Text, SortDirection::Descending), ElementsAre(0, 3, 2, 4, 1));
    const std::vector<std::string> numbers{"10", "-1", "9", "x", "-2", "9.0"};
    EXPECT_THAT(SortedOrder(numbers, SortRule::Number, SortDirection::Ascending),
                ElementsAre(3, 2, 5, 0, 4, 1));
    EXPECT_THAT(SortedOrder(numbers, SortRule::Number, SortDirection::Descending),
                ElementsAre(1, 4, 0, 2, 5, 3));
    const std::vector<std::string> dates{"04.01.2010 12:00", "x", "05.01.2009", "12:00:00 04.01.2010"};
    EXPECT_THAT(SortedOrder(dates, SortRule::Date, SortDirection::Ascending), ElementsAre(1, 2, 0, 3));
    EXPECT_THAT(SortedOrder({}, SortRule::Text, SortDirection::Ascending), ElementsAre());
}
