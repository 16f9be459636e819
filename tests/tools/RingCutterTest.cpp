// SPDX-License-Identifier: MIT
#include "tools/RingCutter.h"
#include "tools/WrittenLogbook.h"

#include <gtest/gtest.h>

namespace {

std::string LongLogbook(Generation generation) {
    LogbookOrder order;
    order.generation = generation;
    order.bytes = 300000;
    return LogbookText(order);
}

// The entries of a logbook, one a line. A register block that a cut left without its end ends the read.
std::vector<std::string> EntriesOfLogbook(const std::string& text) {
    ReadResult result;
    result.Progress.StopAfterRounds = 1000;
    ReadText(text, result);
    std::istringstream dump(Dump(result.Book.Entries));
    std::vector<std::string> entries;
    for (std::string line; std::getline(dump, line);)
        entries.push_back(line);
    return entries;
}

bool BeginsAnEvent(const std::string& logbook, std::size_t at) {
    return at == logbook.size() || (logbook[at] != ' ' && logbook[at - 1] == '\n');
}

} // namespace

TEST(RingCutter, ExportsOverlap) {
    for (const Generation generation : AllGenerations) {
        const std::string logbook = LongLogbook(generation);
        const auto pieces = CutRing(logbook, {.exports = 4, .bytes = 80000, .overlap = 40});
        ASSERT_TRUE(pieces);
        ASSERT_EQ(pieces->size(), 4U);
        for (std::size_t i = 0; i < 4; ++i) {
            const RingPiece& piece = (*pieces)[i];
            EXPECT_TRUE(BeginsAnEvent(logbook, piece.begin));
            EXPECT_TRUE(BeginsAnEvent(logbook, piece.end));
            EXPECT_NEAR(static_cast<double>(piece.end - piece.begin), 80000, 1000);
            if (i > 0) {
                EXPECT_NEAR(static_cast<double>((*pieces)[i - 1].end - piece.begin), 32000, 1000);
            }
        }
    }
}

TEST(RingCutter, ExportsHoldEntriesOfTheWhole) {
    for (const Generation generation : AllGenerations) {
        const std::string logbook = LongLogbook(generation);
        const std::vector<std::string> whole = EntriesOfLogbook(logbook);
        for (std::uint64_t seed = 1; seed <= 20; ++seed)
            for (const bool cut : {false, true}) {
                SCOPED_TRACE(seed);
                const auto pieces =
                    CutRing(logbook, {.exports = 3, .bytes = 50000, .overlap = 20, .seed = seed, .cut = cut});
                ASSERT_TRUE(pieces);
                for (const RingPiece& piece : *pieces) {
                    std::vector<std::string> entries = EntriesOfLogbook(ExportOf(logbook, piece));
                    ASSERT_GT(entries.size(), 100U);
                    // What was cut, or lost its neighbour, may look otherwise.
                    entries.erase(entries.begin(), entries.begin() + 2);
                    entries.resize(entries.size() - 2);
                    EXPECT_NE(std::search(whole.begin(), whole.end(), entries.begin(), entries.end()),
                              whole.end());
                }
            }
    }
}

TEST(RingCutter, HolesLoseSomething) {
    const std::string logbook = LongLogbook(Generation::Classic);
    for (std::uint64_t seed = 1; seed <= 20; ++seed) {
        const auto pieces =
            CutRing(logbook, {.exports = 5, .bytes = 30000, .overlap = 30, .seed = seed, .holes = 2});
        ASSERT_TRUE(pieces);
        std::size_t holes = 0;
        for (std::size_t i = 1; i < pieces->size(); ++i)
            holes += (*pieces)[i].begin > (*pieces)[i - 1].end ? 1U : 0U;
        EXPECT_EQ(holes, 2U);
    }
}

TEST(RingCutter, CutsFallIntoLines) {
    const std::string logbook = LongLogbook(Generation::Separated);
    std::size_t begun = 0;
    std::size_t unfinished = 0;
    std::size_t whole = 0;
    for (std::uint64_t seed = 1; seed <= 100; ++seed) {
        const auto pieces =
            CutRing(logbook, {.exports = 2, .bytes = 50000, .overlap = 50, .seed = seed, .cut = true});
        ASSERT_TRUE(pieces);
        for (const RingPiece& piece : *pieces) {
            const bool begins = logbook[piece.begin - 1] == '\n';
            const bool ends = logbook[piece.end - 1] == '\n';
            begun += begins ? 0 : 1;
            unfinished += ends ? 0 : 1;
            whole += begins && ends ? 1U : 0U;
            EXPECT_TRUE(ExportOf(logbook, piece).starts_with("_________"));
        }
    }
    EXPECT_GT(begun, 100U);
    EXPECT_GT(unfinished, 100U);
    EXPECT_GT(whole, 0U);
}

TEST(RingCutter, ExportsHaveTheHeadingOfTheirGeneration) {
    const std::string day = "_________Mon Jan 04 2010____________\r\n";
    const std::string next = "_________Tue Jan 05 2010____________\r\n";
    const std::string separated = day + "Reset A\r\nReset B\r\n" + next + "Reset C\r\nReset D\r\n";
    const std::size_t atB = separated.find("Reset B");
    const std::size_t atD = separated.find("Reset D");
    EXPECT_EQ(ExportOf(separated, {atB, atD}), day + "Reset B\r\n" + next + "Reset C\r\n");
    EXPECT_EQ(ExportOf(separated, {atB + 3, atD}), day + "et B\r\n" + next + "Reset C\r\n");
    EXPECT_EQ(ExportOf(separated, {atD, separated.size()}), next + "Reset D\r\n");
    EXPECT_EQ(ExportOf(separated, {separated.find(next), atD}), next + "Reset C\r\n");

    const std::string heading = "Operation Logbook Version 1.0\r\n";
    const std::string operation = heading + "Stib: A\r\nStib: B\r\n";
    EXPECT_EQ(ExportOf(operation, {operation.find("Stib: B"), operation.size()}), heading + "Stib: B\r\n");
    EXPECT_EQ(ExportOf("STIB: A\r\nSTIB: B\r\n", {9, 18}), "STIB: B\r\n");
}

TEST(RingCutter, RefusesWhatTheLogbookHasNoRoomFor) {
    const std::string logbook = LongLogbook(Generation::Classic);
    EXPECT_FALSE(CutRing(logbook, {.exports = 4, .bytes = 80000}));
    EXPECT_FALSE(CutRing(logbook, {.exports = 2, .bytes = 1000, .holes = 2}));
    EXPECT_FALSE(CutRing(logbook, {.exports = 2, .bytes = 1000, .overlap = 100}));
    EXPECT_FALSE(CutRing("", {.exports = 1, .bytes = 1}));
    EXPECT_TRUE(CutRing(logbook, {.exports = 3, .bytes = 80000}));
}
