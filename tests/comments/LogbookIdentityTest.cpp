// SPDX-License-Identifier: MIT
#include "comments/LogbookIdentity.h"

#include "support/EntriesFrom.h"

#include <gtest/gtest.h>

namespace {

std::vector<TestEntry> SomeEntries(int count, const std::string& data = "a") {
    std::vector<TestEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({static_cast<std::int16_t>(i % 7), data + std::to_string(i), "PLC", "N"});
    return entries;
}

std::string IdentityOf(const std::vector<TestEntry>& list) {
    EntryTable entries;
    FillTable(entries, list);
    return LogbookIdentity(entries);
}

Recognised RecogniseIn(const std::string& identity, const std::vector<TestEntry>& list) {
    EntryTable entries;
    FillTable(entries, list);
    return Recognise(identity, entries);
}

} // namespace

TEST(LogbookIdentity, RecognisesTheLogbookAndNoOther) {
    const std::string identity = IdentityOf(SomeEntries(20));
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(20)), Recognised::Same);
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(20, "b")), Recognised::Other);
    std::vector<TestEntry> later = SomeEntries(20);
    later.back().Time = "05.01.2010 12:34:56";
    EXPECT_EQ(RecogniseIn(identity, later), Recognised::Other);
    EXPECT_EQ(RecogniseIn(identity, {}), Recognised::Other);
}

TEST(LogbookIdentity, RecognisesALogbookThatHasGrown) {
    const std::string identity = IdentityOf(SomeEntries(20));
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(30)), Recognised::Same);
    // By lines of its last entry.
    std::vector<TestEntry> grown = SomeEntries(21);
    grown[19].Data += " more";
    EXPECT_EQ(RecogniseIn(identity, grown), Recognised::Same);
    grown[18].Data += " more";
    EXPECT_EQ(RecogniseIn(identity, grown), Recognised::Other);
}

TEST(LogbookIdentity, LogbookWithoutItsFirstEntriesIsAnother) {
    std::vector<TestEntry> shifted = SomeEntries(30);
    const std::string identity = IdentityOf(shifted);
    shifted.erase(shifted.begin());
    EXPECT_EQ(RecogniseIn(identity, shifted), Recognised::Other);
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(29)), Recognised::Other);
}

TEST(LogbookIdentity, LooksAtTheFirst65536EntriesOnly) {
    std::vector<TestEntry> entries = SomeEntries(65537);
    const std::string identity = IdentityOf(entries);
    EXPECT_TRUE(identity.starts_with("65536 "));
    entries[65536].Sender = "GEO";
    EXPECT_EQ(RecogniseIn(identity, entries), Recognised::Same);
    entries[65535].Sender = "GEO";
    EXPECT_EQ(RecogniseIn(identity, entries), Recognised::Other);
}

TEST(LogbookIdentity, OneEntryIsEnough) {
    const std::string identity = IdentityOf(SomeEntries(1));
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(1)), Recognised::Same);
    EXPECT_EQ(RecogniseIn(identity, SomeEntries(5)), Recognised::Same);
    EXPECT_EQ(IdentityOf({}), "");
}

TEST(LogbookIdentity, OtherTextsAreNone) {
    for (const char* text :
         {"", " ", "12", "0 ab cd", "x 1 2", "-1 ab cd", "65537 ab cd", "99999999999 ab cd"})
        EXPECT_EQ(RecogniseIn(text, SomeEntries(20)), Recognised::Unknown) << text;
    EXPECT_EQ(RecogniseIn("12 ab cd", SomeEntries(20)), Recognised::Other);
}
