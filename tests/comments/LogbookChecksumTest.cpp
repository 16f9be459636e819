// SPDX-License-Identifier: MIT
#include "comments/LogbookChecksum.h"

#include "comments/CommentJournalFixture.h"

#include <set>

namespace {

// Of all entries.
std::string Whole(const EntryTable& table) {
    const EntryNumber count = table.Count();
    return ChecksumsOfBeginnings(table, std::span(&count, 1)).front();
}

class LogbookChecksumTest : public testing::TestWithParam<std::string (*)(const EntryTable&)> {};
INSTANTIATE_TEST_SUITE_P(Both, LogbookChecksumTest, testing::Values(&Whole, &LogbookChecksum));

TEST_P(LogbookChecksumTest, TellsEveryFieldOfEveryEntry) {
    const std::vector<TestEntry> plain = Entries(3);
    const auto sumOf = [](const std::vector<TestEntry>& entries) {
        EntryTable table;
        FillTable(table, entries);
        return GetParam()(table);
    };
    const std::string sum = sumOf(plain);
    EXPECT_EQ(sum.size(), 32U);
    EXPECT_EQ(sumOf(plain), sum);
    for (std::size_t i = 0; i < plain.size(); ++i) {
        std::vector<std::vector<TestEntry>> others(6, plain);
        others[0][i].Data = "Data";
        others[1][i].Sender = "PLC";
        others[2][i].Name = "nam";
        others[3][i].Time = "04.01.2010 12:34:57";
        others[4][i].EventType = EventTypes::Error;
        others[5][i].Time = "no clock";
        for (const auto& other : others)
            EXPECT_NE(sumOf(other), sum);
    }
    EXPECT_NE(sumOf({plain[1], plain[0], plain[2]}), sum);
}

// The same bytes give other letters, of other lengths, with another code page.
TEST_P(LogbookChecksumTest, IsTheSameUnderAnotherCodePage) {
    const auto sumOf = [](const char* locale) {
        EntryTable table;
        ParsedEntry entry;
        entry.Data = "\xD6"
                     "ffnen \x80 \x81";
        entry.Sender = "\xDC";
        entry.Name = "Gr\xFC"
                     "\xDF";
        entry.Time = "kein Datum \xE4";
        table.Append(entry, CodePage::ForLocale(locale));
        table.Append(entry, CodePage::ForLocale(locale));
        return GetParam()(table);
    };
    const std::string german = sumOf("de_DE.UTF-8");
    for (const char* locale : {"ru_RU", "cs_CZ", "el_GR", "tr_TR", "lt_LT"})
        EXPECT_EQ(sumOf(locale), german) << locale;
}

TEST_P(LogbookChecksumTest, TellsWhereATextEnds) {
    const auto sumOf = [](const std::string& first, const std::string& second) {
        EntryTable table;
        FillTable(table, {{EventTypes::Info, first, "NC", "name"}, {EventTypes::Info, second, "NC", "name"}});
        return GetParam()(table);
    };
    const auto sumOfKind = [](const std::string& sender, const std::string& name) {
        EntryTable table;
        FillTable(table, {{EventTypes::Info, "data", sender, name}});
        return LogbookChecksum(table);
    };
    EXPECT_NE(sumOf("ab", "c"), sumOf("a", "bc"));
    EXPECT_NE(sumOfKind("ab", "c"), sumOfKind("a", "bc"));
    const std::string large(40000, 'x');
    EXPECT_NE(sumOf(large + 'a', "b"), sumOf(large, "ab"));
    EXPECT_NE(sumOf(large + 'a', "b"), sumOf(large + 'b', "b"));
}

TEST_P(LogbookChecksumTest, CommentsDoNotCount) {
    EntryTable table;
    FillTable(table, Entries(3));
    const std::string sum = GetParam()(table);
    table.SetComment(1, "a");
    EXPECT_EQ(GetParam()(table), sum);
}

TEST(ChecksumOfEntry, TellsStampSenderAndName) {
    const TestEntry plain{EventTypes::Info, "data", "NC", "name"};
    const auto sumOf = [](const TestEntry& entry) {
        EntryTable table;
        FillTable(table, {entry});
        return ChecksumOfEntry(table, 0);
    };
    EXPECT_EQ(sumOf(plain), sumOf({EventTypes::Error, "other data", "NC", "name"}));
    EXPECT_NE(sumOf(plain), sumOf({EventTypes::Info, "data", "NCn", "ame"}));
    EXPECT_NE(sumOf(plain), sumOf({EventTypes::Info, "data", "NC", "name", "04.01.2010 12:34:56.789"}));
}

TEST(ChecksumsOfBeginnings, DoNotDependOnWhatFollows) {
    std::vector<TestEntry> entries = Entries(6);
    entries[1] = {EventTypes::Error, "b", "PLC", "other", "no clock"};
    entries[3] = {EventTypes::Error, "d", "PLC", "other", "06.01.2010 10:00:00"};
    EntryTable all;
    FillTable(all, entries);
    const std::vector<EntryNumber> counts{0, 1, 2, 3, 4, 5, 6};
    const std::vector<std::string> sums = ChecksumsOfBeginnings(all, counts);
    for (const EntryNumber count : counts) {
        EntryTable beginning;
        FillTable(beginning, {entries.begin(), entries.begin() + count});
        EXPECT_EQ(Whole(beginning), sums[count]) << count;
    }
    EXPECT_EQ(std::set<std::string>(sums.begin(), sums.end()).size(), counts.size());
}

} // namespace
