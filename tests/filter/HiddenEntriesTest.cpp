// SPDX-License-Identifier: MIT
#include "filter/HiddenEntries.h"

#include "filter/FilterText.h"
#include "support/EntriesFrom.h"
#include "support/PlainFilters.h"

#include <gtest/gtest.h>

#include <random>

namespace {

std::vector<FilterDefinition> Parsed(const std::vector<std::string>& texts) {
    std::vector<FilterDefinition> filters;
    for (const std::string& text : texts) {
        filters.emplace_back();
        EXPECT_TRUE(ParseFilter(text, filters.back())) << text;
    }
    return filters;
}

class HiddenEntriesTest : public testing::Test {
  protected:
    HiddenEntriesTest() {
        FillTable(Entries, {{3, "N938 a", "PLC", "ABC"}, // 0
                            {3, "N938 b", "GEO", "ABC"}, // 1
                            {3, "c", "GEO", "X"},        // 2
                            {5, "On", "", ""},           // 3
                            {6, "ENT N938", "", "ABC"},  // 4
                            {7, "", "", ""}});           // 5
    }

    std::string Hidden(const std::vector<std::string>& filters, Language language = {}) const {
        return HiddenText(CountHidden(Entries, Parsed(filters)), language);
    }

    EntryTable Entries;
};

// The cause of one entry by the rules for one entry and one filter; nothing when it is shown.
std::optional<HiddenEntries::Cause> PlainCause(const EntryTable& entries, EntryNumber number,
                                               const std::vector<FilterDefinition>& filters) {
    using Hidden = HiddenEntries;
    const EntryKind& kind = entries.Kind(number);
    const auto named = [](const FilterDefinition& filter) {
        return filter.FilterType >= 1 && filter.FilterType <= 4 && !(filter.Name + filter.Emitter).empty();
    };
    bool added = false;
    bool byType = false;
    bool byName = false;
    bool byText = false;
    bool byNumber = false;
    Hidden::Cause lack = Hidden::NotAdded;
    for (const FilterDefinition& filter : filters) {
        if (!filter.Active || filter.FilterType > 9)
            continue;
        const bool matches = MatchFilter(filter, entries, number);
        if (filter.Action == FilterActions::Include) {
            added = added || matches;
            const bool typeFits = filter.FilterType == 0 || filter.FilterType == kind.EventType;
            lack = std::min(lack, filter.FilterType == 8    ? Hidden::NotNumber
                                  : !typeFits               ? Hidden::NotType
                                  : MatchKind(filter, kind) ? Hidden::NotText
                                                            : Hidden::NotName);
        }
        if (filter.Action != FilterActions::Exclude || !matches)
            continue;
        bool& cause = filter.FilterType == 8         ? byNumber
                      : !filter.StringFilter.empty() ? byText
                      : named(filter)                ? byName
                                                     : byType;
        cause = true;
    }
    if (!added)
        return lack;
    return byType     ? std::optional(Hidden::ByType)
           : byName   ? std::optional(Hidden::ByName)
           : byText   ? std::optional(Hidden::ByText)
           : byNumber ? std::optional(Hidden::ByNumber)
                      : std::nullopt;
}

} // namespace

TEST_F(HiddenEntriesTest, NothingIsSaidWhenAllIsShown) {
    EXPECT_EQ(Hidden({"I|0||||1"}), "");
    EXPECT_EQ(Hidden({"I|0||||1", "H|3||||1", "X|8||||1", "X|3||||0"}), "");
}

TEST_F(HiddenEntriesTest, EachFilterThatRemovesHasItsWords) {
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|1,3-4|||1"}), "3 removed by number");
    EXPECT_EQ(Hidden({"I|0||||1", "X|0|N938|||1"}), "3 removed by text");
    EXPECT_EQ(Hidden({"I|0||||1", "X|3|N938|ABC|GEO|1"}), "1 removed by text");
    EXPECT_EQ(Hidden({"I|0||||1", "X|3||ABC||1"}), "2 removed by name or sender");
    EXPECT_EQ(Hidden({"I|0||||1", "X|3|||PLC|1"}), "1 removed by name or sender");
    EXPECT_EQ(Hidden({"I|0||||1", "X|3||||1"}), "3 removed by type");
    EXPECT_EQ(Hidden({"I|0||||1", "X|0||||1"}), "6 removed by type");
    // From type 5 on, names are not looked at.
    EXPECT_EQ(Hidden({"I|0||||1", "X|6||none|none|1"}), "1 removed by type");
}

TEST_F(HiddenEntriesTest, EachLackHasItsWords) {
    EXPECT_EQ(Hidden({"I|3||||1"}), "3 not of the chosen types");
    EXPECT_EQ(Hidden({"I|3||ABC||1"}), "1 not of the chosen names or senders, 3 not of the chosen types");
    EXPECT_EQ(Hidden({"I|0|N938|||1"}), "3 without the chosen texts");
    EXPECT_EQ(Hidden({"I|8|2-3|||1"}), "4 not of the chosen numbers");
    EXPECT_EQ(Hidden({"X|3||||1"}), "6 not added by any filter");
    EXPECT_EQ(Hidden({"I|0||||0"}), "6 not added by any filter");
    EXPECT_EQ(Hidden({}), "6 not added by any filter");
}

TEST_F(HiddenEntriesTest, NearestOfSeveralFiltersThatAddCounts) {
    EXPECT_EQ(Hidden({"I|3|x|ABC||1"}),
              "2 without the chosen texts, 1 not of the chosen names or senders, 3 not of the chosen types");
    EXPECT_EQ(Hidden({"I|8|0|||1", "I|5||||1"}), "4 not of the chosen types");
}

TEST_F(HiddenEntriesTest, EntryThatNothingAddsIsNotRemoved) {
    EXPECT_EQ(Hidden({"I|3||||1", "X|5||||1", "X|8|4|||1"}), "3 not of the chosen types");
}

TEST_F(HiddenEntriesTest, NumbersComeLast) {
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|0-2|||1", "X|0|N938|||1"}), "1 removed by number, 3 removed by text");
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|0-2|||1", "X|0|N938|||1", "X|3||ABC||1"}),
              "1 removed by number, 1 removed by text, 2 removed by name or sender");
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|0-2|||1", "X|0|N938|||1", "X|3||ABC||1", "X|3||||1"}),
              "1 removed by text, 3 removed by type");
}

TEST_F(HiddenEntriesTest, GermanWordsHaveGermanNumbers) {
    FillTable(Entries, std::vector<TestEntry>(1206, {5, "a", "", ""}));
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|5-1208|||1"}), "1,201 removed by number");
    EXPECT_EQ(Hidden({"I|0||||1", "X|8|5-1208|||1"}, {Language::German}), "1.201 nach Nummer entfernt");
    EXPECT_EQ(Hidden({"I|3||||1"}, {Language::German}), "1.206 nicht von den gewählten Arten");
}

TEST_F(HiddenEntriesTest, EntriesBehindAnErrorOfTheRunWereNotReached) {
    FillTable(Entries, {{3, "a", "", ""}, {5, "b", "", ""}, {12, "c", "", ""}, {3, "d", "", ""}});
    EXPECT_EQ(Hidden({"I|0||||1", "X|5||||1"}), "1 removed by type, 2 not reached because of an error");
    // It does not end the run if it is not to be shown.
    EXPECT_EQ(Hidden({"I|0||||1", "X|0|c|||1"}), "1 removed by text");
    EXPECT_EQ(Hidden({"I|3||||1"}), "2 not of the chosen types");
}

TEST(HiddenEntries, AgreeWithAPlainCountOnRandomFilters) {
    std::mt19937 random(11);
    const auto pick = [&](const std::vector<std::string>& texts) { return texts[random() % texts.size()]; };
    std::vector<TestEntry> list;
    for (EntryNumber i = 0; i < 2 * FilterRun::BatchSize + 17; ++i)
        list.push_back({static_cast<std::int16_t>(random() % 10),
                        pick({"", "a", "ab", "aab", "bab abc", "N938"}), pick({"", "PLC", "GEO"}),
                        pick({"", "A", "AB"})});
    EntryTable entries;
    FillTable(entries, list);
    for (int round = 0; round < 200; ++round) {
        std::vector<FilterDefinition> filters;
        if (round % 2 == 0)
            filters = DefaultFilters();
        for (std::size_t i = 0; i < 1 + random() % 6; ++i) {
            FilterDefinition filter;
            filter.Action = static_cast<std::int16_t>(1 + random() % 3);
            filter.FilterType = static_cast<std::int16_t>(random() % 11);
            filter.StringFilter = filter.FilterType == FilterTypes::Numbers
                                      ? pick({"", "5-100,4000-4200", "8190-8195,1,12000-99999", "0"})
                                      : pick({"", "", "a", "ab", "bc", "N938", "zz", "aba"});
            filter.Name = pick({"", "", "A", "AB"});
            filter.Emitter = pick({"", "", "PLC"});
            filter.Active = random() % 5 != 0;
            filters.push_back(filter);
        }
        HiddenEntries plain;
        for (EntryNumber number = 0; number < entries.Count(); ++number)
            if (const std::optional<HiddenEntries::Cause> cause = PlainCause(entries, number, filters))
                ++plain.Counts[*cause];
        const HiddenEntries hidden = CountHidden(entries, filters);
        EXPECT_EQ(hidden, plain) << "round " << round;
        LogbookRows rows;
        EXPECT_TRUE(ApplyFilters(entries, filters, rows));
        EXPECT_EQ(hidden.Sum() + rows.size(), entries.Count()) << "round " << round;
    }
}
