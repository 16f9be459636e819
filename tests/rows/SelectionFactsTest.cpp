// SPDX-License-Identifier: MIT
#include "rows/SelectionFacts.h"

#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using std::chrono::minutes;
using std::chrono::seconds;

TestEntry EntryAt(const std::string& clock, std::int16_t type = EventTypes::Info) {
    return {type, "x", "", "", "04.01.2010 " + clock};
}
std::optional<Stamp> StampAt(const std::string& clock) { return ReadStamp("04.01.2010 " + clock); }

EntrySet ErrorsIn(const EntryTable& entries) {
    EntrySet errors(entries.Count());
    for (EntryNumber entry = 0; entry < entries.Count(); ++entry)
        if (EventTypes::IsError(entries.Kind(entry).EventType))
            errors.Add(entry);
    return errors;
}

class Selection : public testing::Test {
  protected:
    void Fill(const std::vector<TestEntry>& entries) {
        FillTable(Entries, entries);
        Rows = AllRows(Entries);
        Errors = ErrorsIn(Entries);
    }
    SelectionFacts Facts(const RowRanges& ranges) const {
        return SelectionCounter(Entries, Rows, Errors).FactsOf(ranges);
    }

    EntryTable Entries;
    LogbookRows Rows;
    EntrySet Errors;
};

} // namespace

TEST_F(Selection, OfSeveralRowsHasItsTimeAndErrors) {
    Fill({EntryAt("08:00:00"), EntryAt("08:01:00", EventTypes::Error), EntryAt("08:02:00"),
          EntryAt("08:05:00", EventTypes::Fatal), EntryAt("09:00:00", EventTypes::Error)});
    const SelectionFacts facts = Facts({{0, 1}, {3, 3}});
    EXPECT_EQ(facts.Rows, 3U);
    EXPECT_EQ(facts.Errors, 2U);
    EXPECT_EQ(facts.From, StampAt("08:00:00"));
    EXPECT_EQ(facts.To, StampAt("08:05:00"));
    EXPECT_EQ(facts.Between, minutes(5));
    EXPECT_EQ(facts.SinceEntry, std::nullopt);
    EXPECT_EQ(facts.SinceError, std::nullopt);
    EXPECT_EQ(Facts({}), SelectionFacts());
}

TEST_F(Selection, OfOneRowHasTheTimeSinceTheEntryAndTheErrorBefore) {
    Fill({EntryAt("08:00:00"), EntryAt("08:01:00", EventTypes::Error), EntryAt("08:02:00"),
          EntryAt("08:02:30")});
    const SelectionFacts facts = Facts({{3, 3}});
    EXPECT_EQ(facts.SinceEntry, seconds(30));
    EXPECT_EQ(facts.SinceError, seconds(90));
    EXPECT_EQ(Facts({{0, 0}}).SinceEntry, std::nullopt);
    EXPECT_EQ(Facts({{1, 1}}).SinceError, std::nullopt);
    // Entries that the list does not show count as well.
    Rows.erase(Rows.begin() + 1, Rows.begin() + 3);
    EXPECT_EQ(Facts({{1, 1}}).SinceEntry, seconds(30));
    EXPECT_EQ(Facts({{1, 1}}).SinceError, seconds(90));
}

TEST_F(Selection, GoesByTheOrderOfTheLogbook) {
    Fill({EntryAt("08:00:00"), EntryAt("08:10:00"), EntryAt("07:30:00")});
    std::reverse(Rows.begin(), Rows.end());
    const SelectionFacts facts = Facts({{0, 2}});
    EXPECT_EQ(facts.From, StampAt("08:00:00"));
    EXPECT_EQ(facts.To, StampAt("07:30:00"));
    EXPECT_EQ(facts.Between, minutes(-30)); // the clock was set back
}

TEST_F(Selection, SaysNothingOfTimesThatCannotBeRead) {
    Fill(
        {{EventTypes::Info, "x", "", "", "noon"}, EntryAt("08:10:00"), {EventTypes::Info, "x", "", "", "?"}});
    const SelectionFacts facts = Facts({{0, 1}});
    EXPECT_EQ(facts.From, std::nullopt);
    EXPECT_EQ(facts.To, StampAt("08:10:00"));
    EXPECT_EQ(facts.Between, std::nullopt);
    EXPECT_EQ(Facts({{2, 2}}).SinceEntry, std::nullopt);
}

TEST_F(Selection, IsWhatAPlainCountGives) {
    std::mt19937 random(11);
    std::vector<TestEntry> entries;
    for (int i = 0; i < 9000; ++i)
        entries.push_back(EntryAt("08:00:" + std::to_string(10 + i % 50),
                                  random() % 3 == 0 ? EventTypes::Error : EventTypes::Info));
    Fill(entries);
    std::shuffle(Rows.begin(), Rows.end(), random);
    Rows.resize(7000);
    const SelectionCounter counter(Entries, Rows, Errors);
    for (int round = 0; round < 300; ++round) {
        RowRanges ranges;
        for (std::size_t row = random() % 3000; row < Rows.size(); row += 2 + random() % 3000) {
            const std::size_t last = std::min(Rows.size() - 1, row + random() % 3000);
            ranges.push_back({row, last});
            row = last;
        }
        SelectionFacts plain;
        EntryNumber first = MostEntries;
        EntryNumber last = 0;
        for (const RowRange& range : ranges)
            for (std::size_t row = range.First; row <= range.Last; ++row) {
                const EntryNumber entry = Rows[row].Entry;
                ++plain.Rows;
                plain.Errors += Errors.Contains(entry) ? 1U : 0U;
                first = std::min(first, entry);
                last = std::max(last, entry);
            }
        const SelectionFacts facts = counter.FactsOf(ranges);
        EXPECT_EQ(facts.Rows, plain.Rows);
        EXPECT_EQ(facts.Errors, plain.Errors);
        if (plain.Rows > 0) {
            EXPECT_EQ(facts.From, ReadStamp(Entries.Time(first)));
            EXPECT_EQ(facts.To, ReadStamp(Entries.Time(last)));
        }
    }
}
