// SPDX-License-Identifier: MIT
#include "logbook/FoldIntoPrevious.h"

#include <gtest/gtest.h>

namespace {

struct Event {
    std::int16_t EventType;
    std::string Data;
};

Event Key(std::string data) { return {EventTypes::Key, std::move(data)}; }

void Fill(ParsedEntry& entry, const Event& event) {
    entry.EventType = event.EventType;
    entry.Data = event.Data;
    entry.Sender = "PLC";
    entry.Time = "12:34:56";
}

// What becomes of the previous event: "type data", or "no" when nothing is folded (and nothing changed).
std::string Fold(const Event& next, const Event& previous) {
    ParsedEntry nextEntry;
    ParsedEntry folded;
    Fill(nextEntry, next);
    Fill(folded, previous);
    const bool isFolded = FoldIntoPrevious(nextEntry, folded);
    EXPECT_EQ(folded.Sender, "PLC");
    EXPECT_EQ(folded.Time, "12:34:56");
    if (!isFolded)
        return folded.EventType == previous.EventType && folded.Data == previous.Data ? "no" : "changed";
    return std::to_string(folded.EventType) + " " + std::string(folded.Data);
}

} // namespace

TEST(FoldIntoPrevious, KeyDownAndUpBecomeOneStroke) {
    EXPECT_EQ(Fold(Key("ENT up code 0x000D"), Key("ENT down code 0x000D")), "6 0x000D -> ENT");
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down code 0x000D mode MANUAL")), "6 0x000D -> ENT | MANUAL");
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down code 0x000D mode")), "6 0x000D -> ENT");
    EXPECT_EQ(Fold(Key("F1 up"), Key("ENT down code 0x000D")), "6 0x000D -> ENT");
}

TEST(FoldIntoPrevious, MissingWordsReadAsEmpty) {
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down")), "6  -> ENT");
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down code")), "6  -> ENT");
}

TEST(FoldIntoPrevious, WordsAreSplitAtSingleBlanks) {
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down  0x000D")), "6 0x000D -> ENT");
    EXPECT_EQ(Fold(Key("ENT  up"), Key("ENT down code 0x000D")), "no");
}

TEST(FoldIntoPrevious, LongTextsAreSplitAsShortOnesAre) {
    for (const std::size_t length : {1U, 30U, 40U, 50U, 63U, 64U, 65U, 200U}) {
        const std::string word(length, 'w');
        EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down code 0x000D mode " + word)), "6 0x000D -> ENT | " + word);
        EXPECT_EQ(Fold(Key("ENT up"), Key("ENT down " + word + " 0x000D mode MANUAL rest")),
                  "6 0x000D -> ENT | MANUAL");
        EXPECT_EQ(Fold(Key(word + " up"), Key(word + " down " + word + " " + word)),
                  "6 " + word + " -> " + word);
    }
    // Each length of the whole text around the one that is looked at in one go.
    for (std::size_t length = 55; length < 75; ++length) {
        const std::string down = "ENT down code 0x000D mode ";
        const std::string mode(length - down.size(), 'm');
        EXPECT_EQ(Fold(Key("ENT up"), Key(down + mode)), "6 0x000D -> ENT | " + mode);
        EXPECT_EQ(Fold(Key("ENT up"), Key(down + mode + " ")), "6 0x000D -> ENT | " + mode);
    }
}

TEST(FoldIntoPrevious, OtherKeysStayApart) {
    EXPECT_EQ(Fold(Key("ENT down"), Key("ENT down")), "no");
    EXPECT_EQ(Fold(Key("ENT down"), Key("ENT up")), "no");
    EXPECT_EQ(Fold(Key("ENT"), Key("ENT down")), "no");
    EXPECT_EQ(Fold(Key("ENT up"), Key("ENT")), "no");
    EXPECT_EQ(Fold(Key(""), Key("")), "no");
    EXPECT_EQ(Fold(Key("ENT Up"), Key("ENT down")), "no");
}

TEST(FoldIntoPrevious, TwoStrokesWithCodesBecomeAString) {
    EXPECT_EQ(Fold(Key("0x0042 -> B"), Key("0x0041 -> A")), "9 AB");
    EXPECT_EQ(Fold(Key("0x0042 down"), Key("0x0041 -> A")), "9 AB");
    EXPECT_EQ(Fold(Key("0x0142 -> B"), Key("0x0041 -> A")), "no");
    EXPECT_EQ(Fold(Key("0x0042 -> B"), Key("0x0141 -> A")), "no");
    EXPECT_EQ(Fold(Key("0x0042"), Key("0x0041 -> A")), "no");
}

TEST(FoldIntoPrevious, StrokeOfAnUnprintableKeyIsAbsorbed) {
    EXPECT_EQ(Fold(Key("0x000D -> ENT"), Key("0x0041 -> A")), "6 0x0041 -> A");
    EXPECT_EQ(Fold(Key("0x0041 -> A"), Key("0x000D -> ENT")), "6 0x000D -> ENT");
}

TEST(FoldIntoPrevious, StringGrowsByPrintableStrokes) {
    EXPECT_EQ(Fold(Key("0x0043 -> C"), Event{EventTypes::Keystr, "AB"}), "9 ABC");
    EXPECT_EQ(Fold(Key("0x0020 -> SPACE"), Event{EventTypes::Keystr, "AB"}), "9 AB ");
    EXPECT_EQ(Fold(Key("0x000D -> ENT"), Event{EventTypes::Keystr, "AB"}), "no");
    EXPECT_EQ(Fold(Key("C down"), Event{EventTypes::Keystr, "AB"}), "no");
    EXPECT_EQ(Fold(Key("0x0043 down"), Event{EventTypes::Keystr, "AB"}), "no");
    EXPECT_EQ(Fold(Key("43 -> C"), Event{EventTypes::Keystr, "AB"}), "9 ABC");
}

TEST(FoldIntoPrevious, RepeatedRestartsCollapse) {
    EXPECT_EQ(Fold(Event{EventTypes::Restart, "b"}, Event{EventTypes::Restart, "a"}), "7 a");
}

TEST(FoldIntoPrevious, AllElseStaysApart) {
    EXPECT_EQ(Fold(Event{EventTypes::Info, "a"}, Event{EventTypes::Info, "a"}), "no");
    EXPECT_EQ(Fold(Event{EventTypes::Restart, "a"}, Key("a")), "no");
    EXPECT_EQ(Fold(Event{EventTypes::Keystr, "AB"}, Event{EventTypes::Keystr, "AB"}), "no");
    EXPECT_EQ(Fold(Event{EventTypes::Keystr, "0x0041 -> A"}, Key("0x0041 -> A")), "no");
}
