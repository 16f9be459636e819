// SPDX-License-Identifier: MIT
#include "logbook/EntryTable.h"

#include <gtest/gtest.h>

namespace {

void Append(EntryTable& table, const LogbookEntry& entry) {
    static const CodePage codePage; // costs far more than an entry
    ParsedEntry parsed;
    parsed.EventType = entry.EventType;
    parsed.Sender = entry.Sender;
    parsed.Name = entry.Name;
    parsed.Data = entry.Data;
    parsed.Time = entry.Time;
    parsed.Image = entry.Image;
    table.Append(parsed, codePage);
}

void Append(EntryTable& table, std::string_view data, std::string_view sender = "",
            std::string_view name = "", std::string time = "04.01.2010 12:34:56") {
    Append(table, {EventTypes::Info, sender, name, data, std::move(time), Images::Info, ""});
}

} // namespace

TEST(EntryTable, HandsOutWhatWasStored) {
    EntryTable table;
    Append(table, "T\xFCr", "PLC", "DOOR", "04.01.2010 12:34:56");
    Append(table, {EventTypes::Keystr, "", "", "", "", Images::ErrorCleared, ""});
    Append(table, "last", "K\xDCHL", "", "x");

    ASSERT_EQ(table.Count(), 3U);
    EXPECT_EQ(table[0], (LogbookEntry{1, "PLC", "DOOR", "Tür", "04.01.2010 12:34:56", 1, ""}));
    EXPECT_EQ(table[1], (LogbookEntry{9, "", "", "", "", 14, ""}));
    EXPECT_EQ(table[2], (LogbookEntry{1, "KÜHL", "", "last", "x", 1, ""}));
    EXPECT_EQ(table.Data(0), "Tür");
    EXPECT_EQ(table.Time(0), "04.01.2010 12:34:56");
    EXPECT_EQ(table.Kind(1).EventType, 9);
    EXPECT_EQ(table.Kind(1).Image, 14);
}

TEST(EntryTable, TimeStampsComeBackAsTheyWere) {
    const char* const stamps[] = {"04.01.2010 12:34:56",
                                  "04.01.2010 12:34:56.789",
                                  "04.01.2010 00:00:00.000",
                                  "04.01.2010 99:99:99.999",
                                  "05.01.2010 12:34:56",
                                  "",
                                  " ",
                                  "12:34:56",
                                  "12:34:56.7",
                                  " 12:34:56",
                                  "042010 12:34:56",
                                  "1:34:56",
                                  "04.01.2010 12:34:5x",
                                  "04.01.2010 12:34:56.78x",
                                  "04.01.2010 12:34.56.789",
                                  "04.01.2010 1::34:56",
                                  "04.01.2010 12:34;56",
                                  "04.01.2010 12:34:/0",
                                  "04.01.2010 1::::::0",
                                  "no time stamp at all",
                                  ".789",
                                  "4:56.789"};
    EntryTable table;
    for (const char* stamp : stamps)
        Append(table, "data", "", "", stamp);
    EntryNumber number = 0;
    for (const char* stamp : stamps) {
        EXPECT_EQ(table.Time(number), stamp);
        EXPECT_EQ(table.Data(number), "data");
        ++number;
    }
}

TEST(EntryTable, AClockIsPackedWithADateOrWithout) {
    EntryTable table;
    for (const char* stamp : {"12:34:56", "12:34:56.789", "04.01.2010 12:34:56.789", "04.01.2010 12:34:56.7",
                              "04.01.2010 12:34", "4:56.789"})
        Append(table, "data", "", "", stamp);
    PackedStamp stamp;
    ASSERT_TRUE(table.PackedTime(0, stamp));
    EXPECT_EQ(stamp.Clock, 123456000U);
    for (const EntryNumber number : {1U, 2U}) {
        ASSERT_TRUE(table.PackedTime(number, stamp)) << table.Time(number);
        EXPECT_EQ(stamp.Clock, 123456789U | PackedStamp::HasMilliseconds);
    }
    for (const EntryNumber number : {3U, 4U, 5U})
        EXPECT_FALSE(table.PackedTime(number, stamp)) << table.Time(number);
}

TEST(EntryTable, StampTextIsConverted) {
    EntryTable table;
    Append(table, "a", "", "", "M\xE4rz 12:34:56");
    Append(table, "b", "", "", "M\xE4rz");
    EXPECT_EQ(table.Time(0), "März 12:34:56");
    EXPECT_EQ(table.Time(1), "März");
    EXPECT_EQ(table.Data(1), "b");
}

TEST(EntryTable, TextOfAllEntriesLiesInTheirOrder) {
    EntryTable table;
    Append(table, "one");
    Append(table, "two", "", "", "no clock");
    Append(table, "three");
    EXPECT_EQ(table.Text(), "onetwono clockthree");
    EXPECT_EQ(table.TextBegin(0), 0U);
    EXPECT_EQ(table.TextBegin(1), 3U);
    EXPECT_EQ(table.TextBegin(2), 14U);
    EXPECT_EQ(table.TextBegin(3), 19U);
    EXPECT_EQ(table.Data(1), "two");
}

TEST(EntryTable, EntryOfAPlaceInTheText) {
    EntryTable table;
    std::vector<EntryNumber> owners; // by place in the text
    for (EntryNumber number = 0; number < 300; ++number) {
        const std::size_t length = number % 7 == 3 ? 0 : number % 5;
        Append(table, std::string(length, 'x'));
        owners.insert(owners.end(), length, number);
    }
    for (std::size_t place = 0; place < owners.size(); ++place)
        for (EntryNumber from = 0; from <= owners[place]; ++from)
            ASSERT_EQ(table.EntryAt(place, from), owners[place]) << place << " from " << from;
}

TEST(EntryTable, EntriesOfTheSameKindShareIt) {
    EntryTable table;
    for (int i = 0; i < 6000; ++i)
        Append(table, "x", "S" + std::to_string(i % 2000), "N" + std::to_string(i % 3));
    EXPECT_EQ(table.Kinds().Count(), 6000U);
    for (EntryNumber number = 0; number < 6000; ++number) {
        EXPECT_EQ(table[number].Sender, "S" + std::to_string(number % 2000));
        EXPECT_EQ(table[number].Name, "N" + std::to_string(number % 3));
    }
    for (int i = 0; i < 6000; ++i)
        Append(table, "x", "S" + std::to_string(i % 2000), "N" + std::to_string(i % 3));
    EXPECT_EQ(table.Kinds().Count(), 6000U);
    EXPECT_EQ(table.KindNumber(6001), table.KindNumber(1));
    EXPECT_NE(table.KindNumber(1), table.KindNumber(2));
}

TEST(EntryTable, KindsDifferInEachField) {
    EntryTable table;
    const LogbookEntry entry{1, "AB", "C", "", "", 1, ""};
    const auto append = [&](auto change) {
        LogbookEntry other = entry;
        change(other);
        Append(table, other);
    };
    append([](LogbookEntry&) {});
    append([](LogbookEntry& e) { e.EventType = 2; });
    append([](LogbookEntry& e) { e.Image = 2; });
    append([](LogbookEntry& e) { e.Sender = "A", e.Name = "BC"; });
    append([](LogbookEntry& e) { e.Sender = "", e.Name = "ABC"; });
    append([](LogbookEntry& e) { e.Sender = "ABC", e.Name = ""; });
    append([](LogbookEntry& e) { e.Sender = "AB", e.Name = ""; });
    append([](LogbookEntry& e) { e.Sender = "", e.Name = ""; });
    append([](LogbookEntry& e) { e.Sender = "Ab"; });
    EXPECT_EQ(table.Kinds().Count(), 9U);
}

TEST(EntryTable, SendersOfEveryLengthComeBack) {
    EntryTable table;
    std::string sender;
    for (EntryNumber number = 0; number <= 40; ++number, sender += static_cast<char>('a' + number % 26))
        Append(table, "x", sender, sender);
    sender.clear();
    for (EntryNumber number = 0; number <= 40; ++number, sender += static_cast<char>('a' + number % 26)) {
        EXPECT_EQ(table[number].Sender, sender);
        EXPECT_EQ(table[number].Name, sender);
    }
}

TEST(EntryTable, CommentsComeAndGo) {
    EntryTable table;
    Append(table, "x");
    Append(table, "y");
    table.SetComment(1, "checked");
    EXPECT_EQ(table[0].Comment, "");
    EXPECT_EQ(table[1].Comment, "checked");
    table.SetComment(1, "");
    EXPECT_EQ(table.Comment(1), "");
    EXPECT_TRUE(table.Comments().empty());
    table.SetComment(0, "gone with the table");
    table.Clear();
    EXPECT_TRUE(table.Comments().empty());
}

TEST(EntryTable, EventTypesOutsideTheListsNamesAreKept) {
    EntryTable table;
    for (const std::int16_t eventType : std::initializer_list<std::int16_t>{-1, 0, 8, 9, 10, 14, 32767}) {
        Append(table, {eventType, "", "", "", "", 1, ""});
        EXPECT_EQ(table[table.Count() - 1].EventType, eventType);
    }
}

TEST(EntryTable, GrowsBeyondWhatItWasPreparedFor) {
    EntryTable table;
    table.Clear(1, 1);
    for (std::size_t i = 0; i < 1000; ++i)
        Append(table, std::string(i, '\x80'));
    table.Trim();
    EXPECT_EQ(table.Data(999).size(), 999U * 3);
    EXPECT_EQ(table.Data(1), "€");
}

TEST(EntryTable, EmptiesToOneEntry) {
    EntryTable table;
    Append(table, "x");
    table.ResetToOneEmpty(EventTypes::None, Images::Warning);
    ASSERT_EQ(table.Count(), 1U);
    EXPECT_EQ(table[0].EventType, -1);
    EXPECT_EQ(table[0].Image, Images::Warning);
    EXPECT_EQ(table[0].Data, "");
}
