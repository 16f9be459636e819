// SPDX-License-Identifier: MIT
#include "sources/LostComments.h"

#include "sources/LogbookChecksum.h"
#include "support/EntriesFrom.h"
#include "support/ScriptedUser.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <fstream>
#include <memory>
#include <set>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

std::vector<TestEntry> Entries(int count) {
    std::vector<TestEntry> entries;
    for (int i = 0; i < count; ++i)
        entries.push_back({EventTypes::Info, "data " + std::to_string(i), "NC", "name"});
    return entries;
}

class CommentJournalTest : public testing::Test {
  protected:
    CommentJournalTest() { FillTable(Book, Entries(5)); }

    std::error_code Enter(CommentJournal& journal, EntryNumber number, std::string_view comment) {
        Book.SetComment(number, comment);
        return journal.Note(Book, std::span(&number, 1));
    }

    // What a crash leaves of these comments; the logbook is then as it was read.
    void Crash(const std::vector<std::pair<EntryNumber, std::string>>& comments) {
        CommentJournal journal(State);
        for (const auto& [number, comment] : comments)
            EXPECT_FALSE(Enter(journal, number, comment));
        FillTable(Book, Entries(5));
    }

    std::vector<fs::path> Files() const {
        std::vector<fs::path> files;
        std::error_code none;
        for (const auto& item : fs::directory_iterator(State, none))
            files.push_back(item.path());
        return files;
    }

    bool Offer(std::deque<UserInterface::Answer> answers = {}) {
        User.Answers = std::move(answers);
        return OfferLostComments(Book, Known, Journal, User);
    }

    TemporaryFolder Folder;
    fs::path State = Folder.Path() / "state" / "Qorvix";
    EntryTable Book;
    LogbookState Known;
    ScriptedUser User;
    CommentJournal Journal{State};
};

TEST_F(CommentJournalTest, NothingIsWrittenWithoutAComment) {
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(fs::exists(State));
}

TEST_F(CommentJournalTest, EachCommentIsALineBehindTheLogbook) {
    EXPECT_FALSE(Enter(Journal, 3, "pump \"A\"\nreplaced, grün"));
    EXPECT_FALSE(Enter(Journal, 3, ""));
    ASSERT_EQ(Files().size(), 1U);
    const EntryNumber counts[] = {4, 5};
    const std::vector<std::string> sums = ChecksumsOfBeginnings(Book, counts);
    EXPECT_EQ(FileContent(Files().front()),
              "{\"butLast\":\"" + sums[0] + "\",\"entries\":5,\"last\":\"" + ChecksumOfEntry(Book, 4) +
                  "\",\"whole\":\"" + sums[1] +
                  "\"}\n"
                  "{\"comment\":\"pump \\\"A\\\"\\nreplaced, grün\",\"entry\":3}\n"
                  "{\"comment\":\"\",\"entry\":3}\n");
    EXPECT_EQ(fs::status(Files().front()).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(CommentJournalTest, GoesWhenItsCommentsAreSavedOrDeclined) {
    EXPECT_FALSE(Enter(Journal, 0, "a"));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
    EXPECT_FALSE(Enter(Journal, 0, "b"));
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(CommentJournalTest, CommentsComeBackAfterACrash) {
    Crash({{1, "first"}, {4, "x"}, {1, "second"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(User.Questions, ElementsAre(TextId::AskRestoreComments));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "second"), Pair(4, "x")));
    EXPECT_TRUE(Known.CommentsEdited);
    // They are as safe as before.
    EXPECT_EQ(Files().size(), 1U);
    EXPECT_THAT(LostComments(State, Book).Comments(), IsEmpty());
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, SurviveASecondCrash) {
    Crash({{1, "kept"}});
    {
        CommentJournal second(State);
        User.Answers = {UserInterface::Answer::Yes};
        EXPECT_TRUE(OfferLostComments(Book, Known, second, User));
        EXPECT_FALSE(Enter(second, 2, "more"));
    }
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "kept"), Pair(2, "more")));
}

TEST_F(CommentJournalTest, DeclinedCommentsGo) {
    Crash({{1, "a"}});
    EXPECT_FALSE(Offer({UserInterface::Answer::No}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
    EXPECT_FALSE(Known.CommentsEdited);
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, CancelOffersThemAgainTheNextTime) {
    Crash({{1, "a"}});
    EXPECT_FALSE(Offer({UserInterface::Answer::Cancel}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
}

TEST_F(CommentJournalTest, RemovedCommentIsRemovedAgain) {
    Book.SetComment(2, "of the archive");
    {
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 2, ""));
    }
    Book.SetComment(2, "of the archive");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
}

TEST_F(CommentJournalTest, RestoredCommentsThatAreDroppedGo) {
    Crash({{1, "a"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_EQ(Files().size(), 1U);
    EXPECT_FALSE(Enter(Journal, 2, "b"));
    EXPECT_EQ(Files().size(), 2U);
    Journal.Dropped();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, CommentsThatTheLogbookHasAreNotOffered) {
    Crash({{1, "a"}, {2, ""}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_FALSE(Known.CommentsEdited);
}

// The logbook that was open at the crash had a comment that this one, its plain copy, never had.
TEST_F(CommentJournalTest, RemovedCommentOutlivesAnotherCopyOfTheLogbook) {
    Book.SetComment(2, "of the archive");
    {
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 2, ""));
    }
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(Enter(Journal, 0, "unwanted"));
    Journal.Dropped();
    EXPECT_EQ(Files().size(), 1U);

    FillTable(Book, Entries(5));
    Book.SetComment(2, "of the archive");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), IsEmpty());
}

TEST_F(CommentJournalTest, CommentsThatTheLogbookHasGoWhenItIsSaved) {
    Crash({{1, "a"}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    EXPECT_FALSE(Enter(Journal, 1, "better"));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, KeptCommentsAreNotOfferedElsewhere) {
    Crash({{1, "a"}});
    Book.SetComment(1, "a");
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(5));
    EXPECT_THAT(LostComments(State, Book).Comments(), IsEmpty());
    Journal.Dropped();
    EXPECT_EQ(LostComments(State, Book).Comments().size(), 1U);
}

TEST_F(CommentJournalTest, OtherLogbooksAreNotConcerned) {
    Crash({{1, "a"}});
    for (std::size_t changed = 0; changed < 4; ++changed)
        for (const int count : {5, 7}) {
            std::vector<TestEntry> other = Entries(count);
            other[changed].Data += '!';
            FillTable(Book, other);
            EXPECT_FALSE(Offer()) << changed << " of " << count;
        }
    std::vector<TestEntry> other = Entries(6);
    other.erase(other.begin());
    FillTable(Book, other);
    EXPECT_FALSE(Offer());
    // A logbook that was begun anew, and has fewer entries.
    for (const int count : {0, 1, 4}) {
        FillTable(Book, Entries(count));
        EXPECT_FALSE(Offer()) << count;
    }
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(CommentJournalTest, LogbookThatHasGrownIsOfferedItsComments) {
    for (const int count : {6, 8, 500}) {
        Crash({{0, "a"}, {4, "of the last"}});
        std::vector<TestEntry> grown = Entries(count);
        grown[5] = {EventTypes::Error, "new", "new sender", "new name", "05.01.2010 00:00:00"};
        FillTable(Book, grown);
        EXPECT_TRUE(Offer({UserInterface::Answer::Yes})) << count;
        EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "of the last")));
        // The next is noted for the logbook as it is now.
        EXPECT_FALSE(Enter(Journal, 5, "more"));
        Journal.Saved();
        EXPECT_THAT(Files(), IsEmpty());
        FillTable(Book, Entries(5));
    }
}

TEST_F(CommentJournalTest, LastEntryMayChangeWhereALogbookGrows) {
    for (const int count : {5, 6}) {
        Crash({{0, "a"}, {4, "of the last"}});
        std::vector<TestEntry> grown = Entries(count);
        grown[4].Data += " | a line that belongs to it";
        grown[4].EventType = EventTypes::Error;
        FillTable(Book, grown);
        EXPECT_TRUE(Offer({UserInterface::Answer::Yes})) << count;
        EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "of the last")));
        Journal.Saved();
        FillTable(Book, Entries(5));
    }
}

// Two logbooks that begin alike, as those of machines that were copied do.
TEST_F(CommentJournalTest, AnotherLastEntryIsAnotherLogbook) {
    const std::vector<TestEntry> other{{EventTypes::Info, "data 4", "PLC", "name"},
                                       {EventTypes::Info, "data 4", "NC", "another"},
                                       {EventTypes::Info, "data 4", "NC", "name", "04.01.2010 12:34:57"},
                                       {EventTypes::Info, "data 4", "NC", "name", "05.01.2010 12:34:56"},
                                       {EventTypes::Info, "data 4", "NC", "name", "no clock"}};
    for (const std::pair<EntryNumber, std::string> comment : {std::pair{0U, "a"}, std::pair{4U, "b"}}) {
        Crash({comment});
        for (const TestEntry& last : other)
            for (const int count : {5, 7}) {
                std::vector<TestEntry> entries = Entries(count);
                entries[4] = last;
                FillTable(Book, entries);
                EXPECT_FALSE(Offer()) << last.Sender << ' ' << last.Name << ' ' << last.Time;
            }
        FillTable(Book, Entries(5));
    }
    EXPECT_EQ(Files().size(), 2U);
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a"), Pair(4, "b")));
}

TEST_F(CommentJournalTest, SingleEntryIsKnownAsItWasOnly) {
    const auto crash = [&] {
        FillTable(Book, Entries(1));
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, 0, "a"));
    };
    crash();
    FillTable(Book,
              {{EventTypes::Info, "another", "NC", "name"}, {EventTypes::Info, "data 1", "NC", "name"}});
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(2));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(0, "a")));
}

TEST_F(CommentJournalTest, JournalsOfSeveralStatesOfALogbookAreOfferedTogether) {
    for (const int count : {3, 5, 4}) {
        FillTable(Book, Entries(count));
        CommentJournal journal(State);
        EXPECT_FALSE(Enter(journal, static_cast<EntryNumber>(count - 1), std::to_string(count)));
    }
    FillTable(Book, Entries(9));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(2, "3"), Pair(3, "4"), Pair(4, "5")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

// As version 0.1 wrote them: known by the logbook as it was.
TEST_F(CommentJournalTest, JournalsOfTheFirstVersionAreOffered) {
    fs::create_directories(State);
    const auto leave = [&] {
        std::ofstream(State / "comments-Ab12cd")
            << "{\"entries\":5,\"logbook\":\"e08d88aeb856d58bdd3fc5c27818a84f\"}\n{\"comment\":\"a\","
               "\"entry\":1}\n";
    };
    leave();
    FillTable(Book, Entries(6));
    EXPECT_FALSE(Offer());
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, CopyThatRunsKeepsItsCommentsToItself) {
    CommentJournal running(State);
    EXPECT_FALSE(Enter(running, 1, "a"));
    FillTable(Book, Entries(5));
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(CommentJournalTest, WhoIsAskedHoldsTheCommentsAgainstOthers) {
    Crash({{1, "a"}});
    const LostComments asked(State, Book);
    EXPECT_EQ(asked.Comments().size(), 1U);
    EXPECT_FALSE(Offer());
    EXPECT_THAT(User.Questions, IsEmpty());
}

TEST_F(CommentJournalTest, OfTwoCrashesTheLaterCounts) {
    Crash({{1, "early"}, {2, "kept"}});
    const fs::path early = Files().front();
    Crash({{1, "late"}});
    fs::last_write_time(early, fs::last_write_time(early) - std::chrono::hours(1));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "late"), Pair(2, "kept")));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, EveryCutOffFileGivesItsWholeLines) {
    Crash({{1, "first"}, {2, "second"}});
    const fs::path file = Files().front();
    const std::string whole = FileContent(file);
    const std::size_t firstEnd = whole.find('\n', whole.find('\n') + 1) + 1;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        fs::resize_file(file, length);
        const LostComments lost(State, Book);
        if (length < firstEnd)
            EXPECT_THAT(lost.Comments(), IsEmpty()) << length;
        else
            EXPECT_THAT(lost.Comments(), ElementsAre(Pair(1, "first"))) << length;
        std::ofstream(file, std::ios::binary | std::ios::trunc) << whole;
    }
}

TEST_F(CommentJournalTest, StrangeLinesAndFilesArePassedOver) {
    Crash({{1, "a"}});
    std::ofstream(Files().front(), std::ios::app) << "nonsense\n[1]\n{\"entry\":5,\"comment\":\"behind\"}\n"
                                                     "{\"entry\":-1,\"comment\":\"before\"}\n"
                                                     "{\"entry\":2}\n{\"entry\":2,\"comment\":7}\n"
                                                     "{\"entry\":3,\"comment\":\"b\"}\n";
    std::ofstream(State / "empty");
    std::ofstream(State / "other") << "{\"entries\":5,\"logbook\":5}\n";
    fs::create_directory(State / "folder");
    fs::create_symlink("nowhere", State / "link");
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a"), Pair(3, "b")));
    EXPECT_EQ(Files().size(), 5U);
}

TEST_F(CommentJournalTest, FullDiskIsToldAndLeavesNoHalfLine) {
    EXPECT_FALSE(Enter(Journal, 1, "a"));
    const fs::path file = Files().front();
    const std::string before = FileContent(file);
    {
        const SmallFiles full(before.size() + 10);
        EXPECT_EQ(Enter(Journal, 2, "no room"), std::errc::file_too_large);
    }
    EXPECT_EQ(FileContent(file), before);
    EXPECT_FALSE(Enter(Journal, 3, "room again"));
    EXPECT_EQ(FileContent(file), before + "{\"comment\":\"no room\",\"entry\":2}\n"
                                          "{\"comment\":\"room again\",\"entry\":3}\n");
}

TEST_F(CommentJournalTest, JournalThatCouldNotBeBegunIsNotLeft) {
    {
        const SmallFiles full(10);
        EXPECT_EQ(Enter(Journal, 1, "a"), std::errc::file_too_large);
    }
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, FileWithoutAWholeLineIsNotHeld) {
    EXPECT_FALSE(LostJournal::Hold(Folder.Write("begun", "{\"entries\":")));
    EXPECT_FALSE(LostJournal::Hold(Folder.Write("long", std::string(300, ' ') + "\n")));
    EXPECT_TRUE(LostJournal::Hold(Folder.Write("whole", "{\"entries\":5}\n")));
}

TEST_F(CommentJournalTest, FileThatTookTheNameOfALostOneIsNotRemoved) {
    Crash({{1, "a"}});
    const fs::path file = Files().front();
    const std::optional<LostJournal> journal = LostJournal::Hold(file);
    ASSERT_TRUE(journal);
    fs::rename(Folder.Write("other", "of another copy"), file);
    journal->Remove();
    EXPECT_EQ(FileContent(file), "of another copy");
}

TEST_F(CommentJournalTest, CommentsThatCouldNotBeNotedAreNotedWithTheNext) {
    auto journal = std::make_unique<CommentJournal>(State);
    fs::create_directories(State.parent_path());
    std::ofstream(State) << "a file";
    EXPECT_TRUE(Enter(*journal, 1, "first"));
    fs::remove(State);
    EXPECT_FALSE(Enter(*journal, 2, "second"));
    {
        const SmallFiles full(10);
        EXPECT_TRUE(Enter(*journal, 3, "third"));
    }
    EXPECT_FALSE(Enter(*journal, 2, "again"));
    journal.reset(); // a crash
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "first"), Pair(2, "again"), Pair(3, "third")));
}

TEST_F(CommentJournalTest, FileThatSomebodyRemovedIsMadeAnewWithAllComments) {
    CommentJournal journal(State);
    EXPECT_FALSE(Enter(journal, 1, "first"));
    fs::remove_all(State.parent_path());
    EXPECT_FALSE(Enter(journal, 2, "second"));
    ASSERT_EQ(Files().size(), 1U);
    const std::string content = FileContent(Files().front());
    EXPECT_NE(content.find("\"first\""), std::string::npos);
    EXPECT_NE(content.find("\"second\""), std::string::npos);
    journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, NestedLinesExhaustNothing) {
    Crash({{1, "a"}});
    const std::string nested = "{\"comment\":" + std::string(300000, '[') + std::string(300000, ']') + "}\n";
    std::ofstream(Files().front(), std::ios::app) << nested << "{\"entry\":2,\"comment\":\"b\"}\n";
    std::ofstream(State / "nested") << nested;
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a"), Pair(2, "b")));
}

TEST_F(CommentJournalTest, MoreJournalsThanCanBeHeldAreOfferedBitByBit) {
    constexpr std::size_t Count = 250;
    Crash({{1, "a"}});
    const fs::path first = Files().front();
    for (std::size_t i = 1; i < Count; ++i)
        fs::copy_file(first, State / ("comments-" + std::to_string(i)));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    Journal.Saved();
    EXPECT_EQ(Files().size(), Count - 200);
    FillTable(Book, Entries(5));
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, FolderThatCannotBeMadeIsTold) {
    fs::create_directories(State.parent_path());
    std::ofstream(State) << "a file";
    EXPECT_EQ(Enter(Journal, 1, "a"), std::errc::not_a_directory);
    EXPECT_FALSE(Offer());
}

TEST_F(CommentJournalTest, RestoringNeedsNoRoomOnTheDisk) {
    Crash({{1, "a"}});
    const SmallFiles full(10);
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    EXPECT_THAT(Book.Comments(), ElementsAre(Pair(1, "a")));
    EXPECT_EQ(Files().size(), 1U);
    Journal.Saved();
    EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(CommentJournalTest, RestoredCommentsAreNotedAgainWithTheNextOne) {
    Crash({{1, "a"}});
    EXPECT_TRUE(Offer({UserInterface::Answer::Yes}));
    fs::remove_all(State);
    EXPECT_FALSE(Enter(Journal, 2, "b"));
    ASSERT_EQ(Files().size(), 1U);
    const std::string content = FileContent(Files().front());
    EXPECT_NE(content.find("\"a\""), std::string::npos);
    EXPECT_NE(content.find("\"b\""), std::string::npos);
}

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
