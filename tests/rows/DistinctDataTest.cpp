// SPDX-License-Identifier: MIT
#include "rows/DistinctData.h"

#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <random>
#include <set>
#include <string>
#include <unordered_map>

namespace {

// Entries whose data text ends in a number below `differing`.
void Fill(EntryTable& entries, std::size_t count, std::size_t differing) {
    const CodePage codePage;
    std::mt19937 random(1);
    entries.Clear();
    for (std::size_t i = 0; i < count; ++i) {
        const std::string data = "Satz " + std::to_string(random() % differing);
        ParsedEntry entry;
        entry.EventType = EventTypes::Info;
        entry.Data = data;
        entries.Append(entry, codePage);
    }
}

bool Find(const EntryTable& entries, DistinctData& distinct, const SortHook& hook = {}) {
    SortProgress progress(hook);
    progress.BeginPhase(100, entries.Count());
    return FindDistinctData(entries, distinct, progress);
}

} // namespace

TEST(DistinctData, EachEntryHasTheNumberOfItsText) {
    for (const std::size_t differing : {1U, 10U, 10000U}) {
        EntryTable entries;
        Fill(entries, 50000, differing);
        DistinctData distinct;
        ASSERT_TRUE(Find(entries, distinct));
        ASSERT_EQ(distinct.Numbers.size(), entries.Count());
        for (EntryNumber entry = 0; entry < entries.Count(); ++entry)
            ASSERT_EQ(distinct.Texts[distinct.Numbers[entry]], entries.Data(entry));
        const std::set<std::string_view> texts(distinct.Texts.begin(), distinct.Texts.end());
        EXPECT_EQ(texts.size(), distinct.Texts.size()) << "no text has two numbers";
        EXPECT_LE(texts.size(), differing);
    }
}

TEST(DistinctData, TextsThatDifferInCaseAreDifferent) {
    EntryTable entries;
    std::vector<TestEntry> list(20, {EventTypes::Info, "on", "", ""});
    list[7].Data = "On";
    FillTable(entries, list);
    DistinctData distinct;
    ASSERT_TRUE(Find(entries, distinct));
    EXPECT_EQ(distinct.Texts, (std::vector<std::string_view>{"on", "On"}));
    EXPECT_EQ(distinct.Numbers[7], 1U);
}

TEST(DistinctData, TextsWithTheSameHashAreDifferent) {
    // Two texts that share the 32 bits of the hash which are kept of it.
    std::unordered_map<std::uint32_t, std::string> byHash;
    std::string text;
    std::string other;
    for (int i = 0; other.empty() && i < 1000000; ++i) {
        text = "Satz " + std::to_string(i);
        const auto hash = static_cast<std::uint32_t>(std::hash<std::string_view>{}(text));
        if (const auto [known, isNew] = byHash.try_emplace(hash, text); !isNew)
            other = known->second;
    }
    ASSERT_NE(other, "");
    std::vector<TestEntry> list(20, {EventTypes::Info, text, "", ""});
    list[7].Data = other;
    EntryTable entries;
    FillTable(entries, list);
    DistinctData distinct;
    ASSERT_TRUE(Find(entries, distinct));
    EXPECT_EQ(distinct.Texts, (std::vector<std::string_view>{text, other}));
    EXPECT_EQ(distinct.Numbers[7], 1U);
    EXPECT_EQ(distinct.Numbers[8], 0U);
}

TEST(DistinctData, GivesUpWhenTextsDifferTooOften) {
    EntryTable entries;
    Fill(entries, 1000, 1000000);
    DistinctData distinct;
    EXPECT_FALSE(Find(entries, distinct));
    Fill(entries, 300000, 100000000);
    DistinctData ofMany;
    EXPECT_FALSE(Find(entries, ofMany));
    EXPECT_LT(ofMany.Texts.size(), 70000U) << "known before a quarter of the entries was looked at";
}

TEST(DistinctData, MayBeStopped) {
    EntryTable entries;
    Fill(entries, 100000, 10);
    DistinctData distinct;
    EXPECT_FALSE(Find(entries, distinct, [](int) { return false; }));
}
