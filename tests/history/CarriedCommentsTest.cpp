// SPDX-License-Identifier: MIT
#include "history/CarriedComments.h"
#include "history/EntriesAtPlaces.h"
#include "history/StitchCounts.h"
#include "history/Stitches.h"
#include "support/ReadText.h"
#include "tools/LogbookWriter.h"

#include <gtest/gtest.h>

#include <random>

namespace {

CarriedComments Carry(const Stitches& stitches, const std::vector<CommentOfExport>& comments) {
    const StitchedLog log(stitches.Exports(), stitches.Plan());
    return CarryComments(log, stitches.WriteLog(), stitches.Exports(), comments);
}

std::vector<StitchCounts> Count(const Stitches& stitches) {
    const StitchedLog log(stitches.Exports(), stitches.Plan());
    return CountEntries(log, stitches.WriteLog(), stitches.Exports(), stitches.Plan());
}

using Placed = std::map<EntryNumber, std::string>;

std::string Key(const std::string& words) { return Header("Key:     " + words); }

} // namespace

TEST(CarriedComments, EachGoesToTheEntryOfTheSameLine) {
    const Stitches stitches({StampedLines(10, 40), StampedLines(0, 20)});
    const CarriedComments carried = Carry(
        stitches,
        {{0, 0, "ten"}, {0, 9, "nineteen"}, {0, 29, "last"}, {1, 0, "first"}, {1, 19, "nineteen, too"}});
    EXPECT_EQ(carried.Placed,
              (Placed{{0, "first"}, {10, "ten"}, {19, "nineteen | nineteen, too"}, {39, "last"}}));
    EXPECT_TRUE(carried.Unplaced.empty());
}

TEST(CarriedComments, SameCommentIsCarriedOnce) {
    const Stitches stitches({StampedLines(10, 40), StampedLines(0, 20)});
    EXPECT_EQ(Carry(stitches, {{0, 5, "pump"}, {1, 15, "pump"}}).Placed, (Placed{{15, "pump"}}));
}

TEST(CarriedComments, DuplicatesBringTheirs) {
    const Stitches stitches(
        {StampedLines(10, 40), StampedLines(0, 20), StampedLines(12, 35), StampedLines(0, 20)});
    ASSERT_EQ(stitches.Plan().Duplicates.size(), 2U);
    EXPECT_EQ(Carry(stitches, {{2, 3, "contained"}, {3, 2, "the same"}}).Placed,
              (Placed{{2, "the same"}, {15, "contained"}}));
}

TEST(CarriedComments, EntryThatIsNotThereIsListed) {
    const Stitches stitches({StampedLines(10, 40), StampedLines(0, 20)});
    const std::vector<CommentOfExport> none{{0, 30, "beyond"}, {0, -1, "negative"}};
    const CarriedComments carried = Carry(stitches, none);
    EXPECT_TRUE(carried.Placed.empty());
    EXPECT_EQ(carried.Unplaced, none);
}

TEST(CarriedComments, EntryThatFoldingTookAtTheCutEdgeIsListed) {
    // The newer export begins with the release of a key, which is an entry of its own only there.
    const std::string older = StampedLines(0, 10) + Lines({Key("F4 down code 0x0184 mode MANUAL")});
    const std::string rest = Lines({Key("F4 up code 0x0184 mode MANUAL")}) + StampedLines(10, 20);
    const Stitches stitches({older + rest, Lines({Key("F4 down code 0x0184 mode MANUAL")}).substr(30) + rest +
                                               StampedLines(20, 30)});
    const CarriedComments carried = Carry(stitches, {{0, 10, "pressed"}, {1, 0, "released"}, {1, 1, "ten"}});
    EXPECT_EQ(carried.Placed, (Placed{{10, "pressed"}, {11, "ten"}}));
    EXPECT_EQ(carried.Unplaced, (std::vector<CommentOfExport>{{1, 0, "released"}}));
}

TEST(CarriedComments, EntryWhoseLastLinesCameLaterKeepsIts) {
    const std::string message = Lines({Header("INFO:    MAIN READY"), "  one"});
    const Stitches stitches(
        {StampedLines(0, 20) + message, StampedLines(10, 20) + message + "  two\r\n" + StampedLines(20, 30)});
    EXPECT_EQ(Carry(stitches, {{0, 20, "began here"}}).Placed, (Placed{{20, "began here"}}));
}

TEST(CarriedComments, EntryOfTheUnfinishedLineKeepsItsIfTheLineWentOnSo) {
    const std::string line = StampedLine(20);
    const Stitches same({StampedLines(0, 20) + line, StampedLines(5, 30)});
    EXPECT_EQ(Carry(same, {{0, 20, "unfinished"}}).Placed, (Placed{{20, "unfinished"}}));
    const Stitches other({StampedLines(0, 20) + StampedLine(21), StampedLines(5, 30)});
    EXPECT_EQ(Carry(other, {{0, 20, "unfinished"}}).Unplaced.size(), 1U);
}

TEST(CarriedComments, EntryOfACutFirstLineIsListed) {
    const Stitches stitches({StampedLines(0, 20), StampedLines(5, 30).substr(9)});
    // The line begins with no keyword any more; the export's entries begin with the next one.
    EXPECT_EQ(Carry(stitches, {{1, 0, "six"}}).Placed, (Placed{{6, "six"}}));
    // "ERR:" is left of "BERR:".
    const Stitches cut({StampedLines(0, 20), StampedLines(5, 30).substr(1)});
    EXPECT_EQ(Carry(cut, {{1, 0, "five"}, {1, 1, "six"}}).Placed, (Placed{{6, "six"}}));
    EXPECT_EQ(Carry(cut, {{1, 0, "five"}, {1, 1, "six"}}).Unplaced,
              (std::vector<CommentOfExport>{{1, 0, "five"}}));
}

TEST(StitchCounts, EntriesInCommonAndShift) {
    const std::vector<StitchCounts> counts =
        Count(Stitches({StampedLines(0, 20), StampedLines(10, 40), StampedLines(30, 60)}));
    ASSERT_EQ(counts.size(), 2U);
    EXPECT_EQ(counts[0].CommonEntries, 9);
    EXPECT_EQ(counts[0].Shift, 10);
    EXPECT_EQ(counts[1].CommonEntries, 9);
    EXPECT_EQ(counts[1].Shift, 30);
}

TEST(StitchCounts, FoldedLinesAtTheEdgeDoNotDisturbTheShift) {
    std::string starts;
    for (int i = 0; i < 12; ++i)
        starts += Lines({Header("RESET:")});
    const std::string older = StampedLines(0, 10) + starts + StampedLines(10, 20);
    // The newer export has the starts from the fourth on, as one entry.
    const std::vector<StitchCounts> counts =
        Count(Stitches({older, starts.substr(starts.size() / 4) + StampedLines(10, 30)}));
    EXPECT_EQ(counts[0].Shift, 10);
    EXPECT_EQ(counts[0].CommonEntries, 10);
}

TEST(StitchCounts, NothingIsSaidOfWhatIsNotRead) {
    // A line that is too short ends the read of the list.
    const std::vector<StitchCounts> counts =
        Count(Stitches({StampedLines(0, 15) + "ERR: a\r\n" + StampedLines(15, 20),
                        StampedLines(10, 15) + "ERR: a\r\n" + StampedLines(15, 40)}));
    EXPECT_EQ(counts[0].CommonEntries, std::nullopt);
    EXPECT_EQ(counts[0].Shift, 10);
}

TEST(EntriesAtPlaces, RegisterBlockWithoutEndEnds) {
    const TemporaryFolder folder;
    const std::string log = folder.Write("a.log", StampedLines(0, 20) + Lines({Header("BREG:"), "D0=1"}));
    EXPECT_EQ(PlacesOfFirstEntries(log, 100).size(), 20U);
    const std::uint64_t places[] = {0, 1, 1'000'000};
    const auto entries = EntriesAt(log, places);
    ASSERT_TRUE(entries[0] && entries[1]);
    EXPECT_TRUE(entries[0]->IsBeginning);
    EXPECT_FALSE(entries[1]->IsBeginning);
    EXPECT_EQ(entries[1]->Number, 1);
    EXPECT_FALSE(entries[2]);
}

// Each comment of a random entry, in exports that are cut at random bytes, comes to an entry with the same
// time, kind and data; only at the edges may the data have grown or a comment be listed.
TEST(CarriedComments, RandomCommentsAreAtTheRightEntryOrListed) {
    for (const Generation generation : {Generation::Classic, Generation::Separated, Generation::Operation}) {
        int placed = 0;
        int listed = 0;
        for (std::uint64_t seed = 1; seed <= 200; ++seed) {
            std::mt19937_64 random(seed);
            const auto below = [&](std::size_t bound) { return static_cast<std::size_t>(random() % bound); };
            const std::string text =
                LogbookText({.generation = generation, .entries = 0, .bytes = 20'000, .seed = seed});
            const std::size_t lines = generation == Generation::Classic ? 0 : text.find('\n') + 1;
            const std::size_t begin = 4000 + below(4000);
            const std::size_t end = begin + 3000 + below(4000);
            const std::size_t separator = text.rfind("\n___", text.rfind('\n', begin - 1)) + 1;
            const std::string heading =
                generation == Generation::Separated
                    ? text.substr(separator, text.find('\n', separator) + 1 - separator)
                    : text.substr(0, lines);
            const std::vector<std::string> texts{heading + text.substr(begin), text.substr(0, end)};
            const Stitches stitches(texts);
            if (stitches.Plan().Refused)
                continue;
            std::vector<ReadResult> reads(3);
            for (ReadResult& read : reads)
                read.Progress.StopAfterRounds = 20; // an export may end in a register block
            ReadText(texts[0], reads[0]);
            ReadText(texts[1], reads[1]);
            ReadText(*stitches.Log(), reads[2]);
            const EntryTable& result = reads[2].Book.Entries;
            std::vector<CommentOfExport> comments;
            std::set<std::pair<std::size_t, std::int64_t>> chosen;
            for (std::size_t i = 0; i < 30; ++i) {
                const std::size_t number = below(2);
                const EntryTable& entries = reads[number].Book.Entries;
                // Often at the edges.
                const std::size_t entry = below(3) == 0   ? below(4)
                                          : below(3) == 0 ? entries.Count() - 1 - below(3)
                                                          : below(entries.Count());
                if (chosen.emplace(number, entry).second)
                    comments.push_back({number, static_cast<std::int64_t>(entry),
                                        std::to_string(number) + "-" + std::to_string(entry)});
            }
            const CarriedComments carried = Carry(stitches, comments);
            for (const CommentOfExport& comment : comments) {
                const EntryTable& entries = reads[comment.Export].Book.Entries;
                const LogbookEntry entry = entries[static_cast<EntryNumber>(comment.Entry)];
                const bool isListed =
                    std::count(carried.Unplaced.begin(), carried.Unplaced.end(), comment) == 1;
                std::vector<EntryNumber> places;
                for (const auto& [number, all] : carried.Placed)
                    if ((" | " + all + " | ").find(" | " + comment.Text + " | ") != std::string::npos)
                        places.push_back(number);
                ASSERT_EQ(places.size() + (isListed ? 1 : 0), 1U) << "seed " << seed << ": " << comment.Text;
                (isListed ? listed : placed)++;
                const bool isAtEdge = comment.Entry < 2 || comment.Entry + 2 >= entries.Count();
                if (isListed) {
                    EXPECT_TRUE(isAtEdge) << "seed " << seed << ": " << comment.Text;
                    continue;
                }
                const LogbookEntry there = result[places[0]];
                const bool isUnfinished = comment.Export == 1 && comment.Entry + 1 == entries.Count();
                EXPECT_TRUE(isUnfinished || there.Time == entry.Time)
                    << "seed " << seed << ": " << comment.Text << " " << there.Time << " " << entry.Time;
                EXPECT_TRUE(isAtEdge || (there.Data == entry.Data && there.Sender == entry.Sender &&
                                         there.EventType == entry.EventType))
                    << "seed " << seed << ": " << comment.Text;
            }
        }
        EXPECT_GT(placed, 3000);
        EXPECT_GT(listed, 5);
        EXPECT_LT(listed, placed / 20);
    }
}
