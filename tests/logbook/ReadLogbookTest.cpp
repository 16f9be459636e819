// SPDX-License-Identifier: MIT
#include "logbook/Mod_FileHandling.h"

#include "logbook/clsFile.h"
#include "support/ReadText.h"
#include "support/TemporaryFolder.h"
#include "tools/LogbookWriter.h"

#include <gtest/gtest.h>

namespace {

constexpr const char* At = "[04.01.2010 12:34:56.789]";

bool ReadFile(const std::string& path, ReadResult& result) {
    return ReadLogbook(path, result.Book, result.Title, result.Progress, CodePage());
}

} // namespace

TEST(ReadLogbook, TitleIsTheFileName) {
    const TemporaryFolder folder;
    ReadResult result;
    EXPECT_TRUE(ReadFile(folder.Write("lb.act.log", Lines({Header("RESET:"), Header("RESET:")})), result));
    EXPECT_EQ(result.Title, "lb.act.log");
    EXPECT_EQ(result.Book.EntryCount, 1);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Done);
    EXPECT_EQ(result.Progress.Values, std::vector{0.0});
}

TEST(ReadLogbook, MissingAndEmptyFilesAreFalseWithoutAnError) {
    const TemporaryFolder folder;
    for (const std::string& path : {folder / "missing.log", folder.Write("empty.log", "")}) {
        ReadResult result;
        result.Book.EntryCount = 42;
        EXPECT_FALSE(ReadFile(path, result));
        EXPECT_EQ(result.Book.LoadState, LoadStates::Done);
        EXPECT_EQ(result.Book.EntryCount, 42);
        EXPECT_EQ(Dump(result.Book.Entries), "0 0 [] [] [] \n")
            << "an empty slot, and no line that gave no event";
        EXPECT_EQ(result.Title, "");
    }
}

TEST(ReadLogbook, EachSuccessfulReadReplacesTheEntries) {
    const TemporaryFolder folder;
    ReadResult result;
    EXPECT_TRUE(ReadFile(folder.Write("a.log", Lines({Header("BERR:    a"), Header("BERR:    b")})), result));
    EXPECT_TRUE(ReadFile(folder.Write("b.log", Lines({Header("BERR:    c"), std::string(80, ' ')})), result));
    EXPECT_EQ(Dump(result.Book.Entries), std::string("4 4 [] [] ") + At + " c\n");
    EXPECT_EQ(result.Book.EntryCount, 1);
}

TEST(ReadLogbook, ClassicFileIsParsedFromItsFirstLine) {
    EXPECT_EQ(EntriesOf(Lines({Header("BERR:    a"), Header("BERR:    b")})),
              std::string("4 4 [] [] ") + At + " a\n4 4 [] [] " + At + " b\n");
}

TEST(ReadLogbook, HeadingIsNoEvent) {
    EXPECT_EQ(EntriesOf(Lines({"Operation Logbook Version 1.0", Header("Stib: ON"), Header("Stib: OFF")})),
              std::string("5 1 [] [] ") + At + " ON\n5 1 [] [] " + At + " OFF\n");
}

TEST(ReadLogbook, UnsupportedVersionIsNamedAndReadAllTheSame) {
    ReadResult result;
    ReadText(Lines({"Operation Logbook Version 2.0", Header("Stib: ON"), Header("Stib: OFF")}), result);
    EXPECT_TRUE(result.Read);
    ASSERT_EQ(result.Progress.Messages.size(), 1U);
    EXPECT_EQ(result.Progress.Messages[0],
              "Logbuch Version 2.0 wird von dieser Kelvaro Version nicht unterstützt.\r\n"
              "Informieren Sie sich bei VELTRANDOR über die neueste Kelvaro Version.");
    EXPECT_EQ(result.Book.EntryCount, 2);
}

TEST(ReadLogbook, SupportedVersionGivesNoMessage) {
    ReadResult result;
    ReadText(Lines({"Operation Logbook Version 1.0", Header("Stib: ON"), Header("Stib: OFF")}), result);
    EXPECT_TRUE(result.Progress.Messages.empty());
}

TEST(ReadLogbook, HeadingIsCaseSensitive) {
    EXPECT_EQ(EntriesOf(Lines({"operation logbook version 1.0", Header("RESET:"), Header("Stib: ON")})),
              std::string("7 8 [] [] ") + At + " \n");
}

TEST(ReadLogbook, NoRecognisedLineGivesOneEntryOfTypeMinusOne) {
    ReadResult result;
    ReadText("nothing here\r\n", result);
    EXPECT_TRUE(result.Read);
    EXPECT_EQ(result.Book.EntryCount, 1);
    EXPECT_EQ(Dump(result.Book.Entries), "-1 1 [] [] [] \n");
}

TEST(ReadLogbook, SecondEntryOfATinyFileEndsTheRead) {
    // The table's upper bound is a hundredth of the size, rounded, and 0 does not grow by doubling.
    EXPECT_EQ(EntriesOf("RESET:123456\nINFO:1234567\na\nRESET:123456\n"),
              "7 8 [] [] [RESET:123456] \nerror 2\n");
    // Two restarts fold into one, which fits.
    EXPECT_EQ(EntriesOf("RESET:123456\nRESET:123456\n"), "7 8 [] [] [RESET:123456] \n");
}

TEST(ReadLogbook, FileOfFortyBytesKeepsItsFirstEntry) {
    const std::string text = "RESET:123456\nINFO:1234567\na\nRESET:123456";
    ASSERT_EQ(text.size(), 40U);
    ReadResult result;
    ReadText(text, result);
    EXPECT_FALSE(result.Read);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Reading);
    EXPECT_EQ(result.Book.EntryCount, 1);
    EXPECT_EQ(Dump(result.Book.Entries), "7 8 [] [] [RESET:123456] \n");
}

TEST(ReadLogbook, UpperBoundIsRoundedHalfToEven) {
    const auto entriesOfSize = [](std::size_t size) {
        std::string text = "RESET:123456\nINFO:1234567\na\n";
        text.resize(size, 'x');
        return EntriesOf(text);
    };
    EXPECT_EQ(entriesOfSize(50), "7 8 [] [] [RESET:123456] \nerror 2\n");
    EXPECT_EQ(entriesOfSize(51), "7 8 [] [] [RESET:123456] \n1 1 [567] [] [INFO:1234567] a\n");
}

TEST(ReadLogbook, TableGrowsByDoublingItsBound) {
    // 150 bytes give the upper bound 2; far more entries than that fit.
    std::string text;
    for (int i = 0; i < 5; ++i)
        text += "RESET:123456\nINFO:1234567\na\n";
    text.resize(150, 'x');
    ReadResult result;
    ReadText(text, result);
    EXPECT_TRUE(result.Read);
    EXPECT_EQ(result.Book.EntryCount, 10);
}

TEST(ReadLogbook, ConsecutiveRestartsAndKeyStrokesAreFolded) {
    EXPECT_EQ(
        EntriesOf(Lines({Header("RESET:"), Header("RESET:", "05.01.2010 00:00:00.000"),
                         Header("Key:     ENT down code 0x000D"), Header("Key:     ENT up code 0x000D")})),
        std::string("7 8 [] [] ") + At + " \n6 5 [] [] " + At + " 0x000D -> ENT\n");
    EXPECT_EQ(EntriesOf(Lines({Header("Key:     0x0041 -> A"), Header("Key:     0x0042 -> B"),
                               Header("Key:     0x0043 -> C"), Header("RESET:")})),
              std::string("9 5 [] [] ") + At + " ABC\n7 8 [] [] " + At + " \n");
}

TEST(ReadLogbook, FoldingSeesCharactersNotBytesOfUtf8) {
    // 0x005 and one unknown digit, which counts as -1, is 79, an "O"; two unknown ones would give 0x4EF.
    EXPECT_EQ(EntriesOf(Lines(
                  {Header("Key:     0x005\xE4 -> O"), Header("Key:     0x0042 -> B"), Header("RESET:")})),
              std::string("9 5 [] [] ") + At + " OB\n7 8 [] [] " + At + " \n");
}

TEST(ReadLogbook, ProgressIsToldEveryHundredEntries) {
    LogbookOrder order;
    order.generation = Generation::Classic;
    order.entries = 5000;
    ReadResult result;
    ReadText(LogbookText(order), result);
    ASSERT_TRUE(result.Read);
    const std::vector<double>& values = result.Progress.Values;
    EXPECT_NEAR(static_cast<double>(values.size()), static_cast<double>(result.Book.EntryCount) / 101, 2);
    EXPECT_EQ(static_cast<int>(values.size()) - 1, result.Progress.EventRounds);
    EXPECT_EQ(values.back(), 0);
    for (std::size_t i = 0; i + 1 < values.size(); ++i) {
        EXPECT_GT(values[i], i == 0 ? 0 : values[i - 1]);
        EXPECT_LT(values[i], 100);
    }
}

TEST(ReadLogbook, ProgressIsToldOnlyWhereThePositionLiesBeforeTheEnd) {
    // 101 entries, after which the next line tells of the progress.
    std::string begin;
    for (int pair = 0; pair < 50; ++pair)
        begin += "RESET:123456\nINFO:1234567\na\n";
    begin += "RESET:123456\nnothing\n";
    const std::size_t position = begin.size() + 1 + clsFile::ChunkSize;
    for (const std::size_t size : {begin.size(), position - 1, position, position + 1}) {
        std::string text = begin;
        text.resize(size, 'x');
        ReadResult result;
        ReadText(text, result);
        EXPECT_EQ(result.Book.EntryCount, 101) << size;
        std::vector<double> told{0};
        if (size > position)
            told.insert(told.begin(), static_cast<double>(position) / static_cast<double>(size) * 100);
        EXPECT_EQ(result.Progress.Values, told) << size;
    }
}

TEST(ReadLogbook, StopEndsTheReadThroughItsErrorExit) {
    LogbookOrder order;
    order.generation = Generation::Operation;
    order.entries = 5000;
    ReadResult result;
    result.Progress.StopAfterRounds = 3;
    ReadText(LogbookText(order), result);
    EXPECT_FALSE(result.Read);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Reading);
    EXPECT_EQ(result.Book.EntryCount, 303);
    EXPECT_EQ(result.Book.Entries.Count(), 303U);
}

TEST(ReadLogbook, StopIsSeenWithEveryMegabyteWhateverItHolds) {
    constexpr std::size_t Size = 4U << 20U;
    const auto repeated = [](const std::string& text) {
        std::string all;
        while (all.size() < Size)
            all += text;
        return all;
    };
    const std::string restart = Header("RESET:") + '\n';
    const std::string operation = "Operation Logbook Version 1.0\n" + Header("Stib: ON") + '\n';
    const std::string separated = "_________Mon Jan 04 2010___\nReset\n";
    const std::string stored[] = {"7 8 [] [] [04.01.2010 12:34:56.789] \n",
                                  "5 1 [] [] [04.01.2010 12:34:56.789] ON\n"};
    const struct {
        const char* Name;
        std::string Text;
        std::string Stored;
        bool Ends = true;
    } texts[] = {
        {"line ends", restart + repeated("\n"), stored[0]},
        {"carriage returns", restart + repeated("\r"), stored[0]},
        {"lines that are no events", restart + repeated("nothing\n"), stored[0]},
        {"one line", restart + repeated("x"), stored[0]},
        {"message of one line", restart + Header("INFO:") + '\n' + repeated("x"), stored[0]},
        {"continuation lines", restart + Header("INFO:") + "\na\n" + repeated(" b\n"), stored[0]},
        {"register block", restart + Header("BREG:") + '\n' + repeated(" D0=1\n"), stored[0], false},
        {"restarts that fold", repeated(restart), stored[0]},
        {"operation messages", operation + Header("Info: A") + '\n' + repeated("  b\n"), stored[1]},
        {"separators", separated + repeated("_________Mon Jan 04 2010___\n"), ""},
    };
    for (const auto& [name, text, before, ends] : texts) {
        ReadResult stopped;
        stopped.Progress.StopAfterRounds = 2;
        ReadText(text, stopped);
        EXPECT_FALSE(stopped.Read) << name;
        EXPECT_EQ(stopped.Book.LoadState, LoadStates::Reading) << name;
        EXPECT_EQ(stopped.Progress.EventRounds, 2) << name;
        EXPECT_EQ(Dump(stopped.Book.Entries), before) << name;
        EXPECT_TRUE(stopped.Progress.Values.empty()) << name;
        if (!ends)
            continue;
        // What moves the progress bar are stored entries alone.
        ReadResult whole;
        ReadText(text, whole);
        EXPECT_TRUE(whole.Read) << name;
        EXPECT_EQ(whole.Progress.EventRounds, 4) << name;
        EXPECT_EQ(whole.Progress.Values, std::vector{0.0}) << name;
    }
}

TEST(ReadLogbook, StopIsSeenInTheFirstLine) {
    ReadResult result;
    result.Progress.StopAfterRounds = 1;
    ReadText(std::string(4U << 20U, 'x'), result);
    EXPECT_FALSE(result.Read);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Opening);
}

TEST(ReadLogbook, KeyStrokeBeforeAnErrorIsKeptWhole) {
    const std::string key = Header("Key:     ENT down code 0x000D");
    const std::string kept = std::string("6 5 [] [] ") + At + " ENT down code 0x000D\n";
    EXPECT_EQ(EntriesOf(Lines({key, "Key:", std::string(100, ' ')})), kept + "error 2\n");
    EXPECT_EQ(EntriesOf(Lines({Header("Key:     0x0041 -> A"), Header("Key:     0x0042 -> B"), "Key:"})),
              std::string("9 5 [] [] ") + At + " AB\nerror 2\n");
    ReadResult result;
    result.Progress.StopAfterRounds = 2;
    ReadText(Lines({key, Header("BREG:"), std::string(100, ' ')}), result);
    EXPECT_EQ(Dump(result.Book.Entries), kept);
}

TEST(ReadLogbook, KeyStrokeIsKeptAcrossLinesThatAreNoEvents) {
    // Far more than a block between the stroke and its release.
    std::vector<std::string> lines{Header("Key:     ENT down code 0x000D mode MANUAL")};
    lines.insert(lines.end(), 20000, std::string(60, 'x'));
    lines.push_back(Header("Key:     ENT up"));
    EXPECT_EQ(EntriesOf(Lines(lines)), std::string("6 5 [] [] ") + At + " 0x000D -> ENT | MANUAL\n");
}

TEST(ReadLogbook, EventOfManyBlocksIsReadWhole) {
    std::vector<std::string> lines{Header("Key:     ENT down code 0x000D"), Header("INFO:    GEO AXIS"),
                                   "first"};
    lines.insert(lines.end(), 20000, " " + std::string(60, 'x'));
    std::string data = "first | ";
    for (int i = 0; i < 20000; ++i)
        data.append(60, 'x').append(" | ");
    EXPECT_TRUE(EntriesOf(Lines(lines)) == std::string("6 5 [] [] ") + At +
                                               " ENT down code 0x000D\n1 1 [GEO] [AXIS] " + At + " " + data +
                                               "\n");
}

TEST(ReadLogbook, ErrorInTheFirstSeparatedEventLeavesTheOpeningPhase) {
    ReadResult result;
    result.Book.EntryCount = 42;
    ReadText("_________Mon Jan 04 2010___\r\nKey:a:\r\n", result);
    EXPECT_FALSE(result.Read);
    EXPECT_EQ(result.Book.LoadState, LoadStates::Opening);
    EXPECT_EQ(result.Book.EntryCount, 42);
}
