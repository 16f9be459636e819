// SPDX-License-Identifier: MIT
#include "document/ZipLogbook.h"

#include "document/ArchiveQuestions.h"
#include "support/Abilities.h"
#include "support/EntriesFrom.h"
#include "support/MemorySettings.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gtest/gtest.h>

namespace {

namespace fs = std::filesystem;

class ZipLogbookTest : public testing::Test {
  protected:
    ZipLogbookTest() {
        FillTable(Entries, std::vector<TestEntry>(20, {EventTypes::Info, "a", "", ""}));
        Entries.SetComment(3, "pump");
        fs::create_directory(Folder / "out");
        State.CurrentLogbookFile = Folder.Write("lb.act.log", "text");
        std::error_code error;
        State.CurrentFileStamp = StampOf(State.CurrentLogbookFile, error);
        State.CommentsEdited = true;
        State.InitZipArchiveDir = "/first/";
        User.File = Folder / "out/a.qorvix";
    }

    ZipOutcome Zip(Language language = {}, const PackingProgress& progress = {}) {
        ArchiveQuestions questions(User, language);
        const ZipOutcome outcome = ZipLogbook(State,
                                              {.Entries = Entries,
                                               .Filters = Filters,
                                               .FileCodePage = Code,
                                               .Temp = Temp,
                                               .Settings = Settings,
                                               .ProgramFolder = "/program/"},
                                              questions, User, language, progress);
        EXPECT_EQ(User.StatusDepth, 0);
        return outcome;
    }

    // An archive of that name, which holds these comments.
    void WriteOld(const std::string& comments, const std::string& logbook = "text") {
        WriteZip(Folder / "out/a.qorvix", {{"old.log", logbook}, {"old.cmt", "[Comments]\r\n" + comments}});
    }

    // Saves as if the archive that is there had never been seen.
    ZipOutcome ZipUnseen(Language language = {}) {
        State.CurrentArchiveStamp.reset();
        return Zip(language);
    }

    // The comments in the archive now, without the first line.
    std::string Archived() const {
        const auto members = ReadZip(Folder / "out/a.qorvix");
        EXPECT_EQ(members.size(), 3U);
        return members.size() == 3 ? members[2].second.substr(std::string_view("[Comments]\r\n").size()) : "";
    }

    // Nothing was written, stored or forgotten.
    void ExpectNothingSaved() {
        EXPECT_TRUE(fs::is_empty(Folder / "out"));
        EXPECT_TRUE(Store.Values.empty());
        EXPECT_TRUE(State.CommentsEdited);
        EXPECT_EQ(State.InitZipArchiveDir, "/first/");
    }

    const std::string OwnComments = "[Comments]\r\n 3 pump\r\n";
    TemporaryFolder Folder;
    TempFolder Temp{fs::path(Folder.Path())};
    MemorySettings Store;
    Registry Settings{Store};
    EntryTable Entries;
    CodePage Code;
    std::vector<FilterDefinition> Filters{DefaultFilters()};
    LogbookState State;
    ScriptedUser User;
};

} // namespace

TEST_F(ZipLogbookTest, WithoutALogbookNothingHappens) {
    State.CurrentLogbookFile.clear();
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_TRUE(User.FilesToSave.empty());
    ExpectNothingSaved();
}

TEST_F(ZipLogbookTest, SavesUnderTheNameThatTheUserChooses) {
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    ASSERT_EQ(User.FilesToSave.size(), 1U);
    const FileQuestion& question = User.FilesToSave[0];
    EXPECT_EQ(question.Title, TextId::SaveArchiveTitle);
    EXPECT_EQ(question.Filters, TextId::SaveArchiveFilter);
    EXPECT_EQ(question.DefaultExtension, "qorvix");
    EXPECT_EQ(question.Folder, "/first/");
    EXPECT_EQ(question.Name, "lb.act.qorvix");

    using Members = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(ReadZip(Folder / "out/a.qorvix"), (Members{{"a.log", "text"},
                                                         {"a.fil", "[Filters]\r\nI|0||||1\r\n"},
                                                         {"a.cmt", "[Comments]\r\n 3 pump\r\n"}}));
    EXPECT_EQ(User.Statuses, std::vector<TextId>{TextId::StatusZipping});
    EXPECT_TRUE(User.Messages.empty());
    EXPECT_TRUE(User.Confirmations.empty());
    EXPECT_FALSE(State.CommentsEdited);
    EXPECT_EQ(State.CurrentLogbookFile, Folder / "lb.act.log");
}

TEST_F(ZipLogbookTest, FolderOfTheArchiveIsStoredForTheNext) {
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitZipArchiveDir", ""), Folder / "out/");
    EXPECT_EQ(State.InitZipArchiveDir, Folder / "out/");
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.FilesToSave[1].Folder, Folder / "out/");
}

TEST_F(ZipLogbookTest, FirstArchiveIsProposedBesideItsLogbook) {
    NEEDS_LINKS();
    const auto folder = [&](const std::string& logbook) {
        User.File.reset();
        State.CurrentLogbookFile = logbook;
        EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
        EXPECT_TRUE(User.FilesToSave.back().Name.starts_with("lb")) << User.FilesToSave.back().Name;
        return User.FilesToSave.back().Folder;
    };
    State.InitZipArchiveDir = "/program/"; // as long as none was saved
    EXPECT_EQ(folder(Folder / "lb.act.log"), Folder.Path().string() + "/");
    EXPECT_EQ(folder("lb.log"), fs::current_path().string() + "/");
    // What was unpacked, or links there, goes with the program.
    EXPECT_EQ(folder((Temp.Path() / "lb.log").string()), "/program/");
    fs::create_directory_symlink(Temp.Path(), Folder / "link");
    EXPECT_EQ(folder(Folder / "link/lb.log"), "/program/");

    State.CurrentLogbookFile = Folder / "lb.act.log";
    User.File = Folder / "out/a.qorvix";
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(folder(Folder / "lb.act.log"), Folder / "out/");
}

TEST_F(ZipLogbookTest, CancelAndAnEmptyNameSaveNothing) {
    for (const std::optional<std::string>& file :
         {std::optional<std::string>(), std::optional<std::string>("")}) {
        User.File = file;
        EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
        ExpectNothingSaved();
    }
    EXPECT_TRUE(User.Messages.empty());
}

TEST_F(ZipLogbookTest, FailureIsToldWithItsReason) {
    User.File = Folder / "out/missing/a.qorvix";
    EXPECT_EQ(Zip(), ZipOutcome::Failed);
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Failed);
    EXPECT_EQ(User.Messages,
              (std::vector<std::string>{"The archive could not be saved (" + *User.File +
                                            ": No such file or directory)",
                                        "Das Archiv konnte nicht gespeichert werden (" + *User.File +
                                            ": Datei oder Ordner nicht gefunden)"}));
    EXPECT_EQ(User.Icons[0], UserInterface::MessageIcon::Exclamation);
    ExpectNothingSaved();
}

TEST_F(ZipLogbookTest, LogbookThatIsGoneIsAFailure) {
    fs::remove(State.CurrentLogbookFile);
    EXPECT_EQ(Zip(), ZipOutcome::Failed);
    EXPECT_EQ(User.Messages,
              (std::vector<std::string>{"The archive could not be saved (" + *User.File + ": " +
                                        State.CurrentLogbookFile + ": No such file or directory)"}));
    ExpectNothingSaved();
}

TEST_F(ZipLogbookTest, NothingIsLostWithoutTheUsersConsent) {
    Entries.SetComment(12, "\xE6\x97\xA5");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Confirmations,
              (std::vector<std::string>{
                  "Entries whose comments have characters that the archive cannot hold: 12\r\n\r\n"
                  "Each of these characters becomes \"?\" in the archive. Save all the same?",
                  "Einträge mit Zeichen im Kommentar, die das Archiv nicht aufnehmen kann: 12\r\n\r\n"
                  "Jedes dieser Zeichen wird im Archiv zu \"?\". Trotzdem speichern?"}));
    ExpectNothingSaved();
    User.Agrees = true;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(ReadZip(*User.File)[2].second, "[Comments]\r\n 3 pump\r\n 12 ?\r\n");
    EXPECT_EQ(Entries.Comment(12), "\xE6\x97\xA5");
}

TEST_F(ZipLogbookTest, LogbookThatHasBeenChangedIsAskedAbout) {
    Folder.Write("lb.act.log", "text and more");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Confirmations, (std::vector<std::string>{
                                      "The logbook file has been changed since it was read. In the archive, "
                                      "comments may belong to other entries. Save all the same?"}));
    ExpectNothingSaved();
    User.Agrees = true;
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Saved);
    EXPECT_EQ(
        User.Confirmations[1],
        "Die Logbuchdatei wurde geändert, seit sie gelesen wurde. Im Archiv können Kommentare zu anderen "
        "Einträgen gehören. Trotzdem speichern?");
    EXPECT_EQ(ReadZip(*User.File)[0].second, "text and more");
}

TEST_F(ZipLogbookTest, ArchiveThatSomebodyElseChangedIsAskedAbout) {
    const auto archive = [&](const char* filters) {
        State.CurrentArchive = *User.File;
        WriteZip(State.CurrentArchive, {{"a.log", "text"}, {"a.fil", filters}, {"a.cmt", OwnComments}});
        return FileContent(State.CurrentArchive);
    };
    std::error_code error;
    archive("[Filters]\r\n");
    State.CurrentArchiveStamp = StampOf(State.CurrentArchive, error);
    const std::string changed = archive("[Filters]\r\nI|4||||1\r\n");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Confirmations,
              (std::vector<std::string>{
                  "The archive has been changed since you opened or saved it, perhaps in another window. Its "
                  "comments and filters would be replaced. Save all the same?",
                  "Das Archiv wurde geändert, seit Sie es geöffnet oder gespeichert haben, vielleicht in "
                  "einem anderen Fenster. Seine Kommentare und Filter würden ersetzt. Trotzdem speichern?"}));
    EXPECT_EQ(FileContent(*User.File), changed);
    EXPECT_TRUE(State.CommentsEdited);
    User.Agrees = true;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.Confirmations.size(), 3U);
    // It is this copy's now.
    User.Agrees = false;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    archive("[Filters]\r\nI|7||||1\r\n");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    // Gone is nothing that could be lost, and another archive is the file dialog's question.
    fs::remove(*User.File);
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    archive("[Filters]\r\nI|3||||1\r\n");
    User.File = Folder / "out/b.qorvix";
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.Confirmations.size(), 4U);
    EXPECT_TRUE(User.Choices.empty());
}

TEST_F(ZipLogbookTest, CommentsOfTheReplacedArchiveAreNotLostUnasked) {
    State.ChangedComments = {3};
    WriteOld(" 0 oil\r\n 1 \"a, b\"\r\n");
    const std::string before = FileContent(*User.File);
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Choices,
              (std::vector<std::string>{
                  "Comments in the archive that the list does not have, or has otherwise: 2\r\n\r\n"
                  "Keep them too? If they are replaced, they are lost.",
                  "Kommentare im Archiv, die in der Liste fehlen oder dort anders lauten: 2\r\n\r\n"
                  "Sollen sie auch erhalten bleiben? Werden sie ersetzt, sind sie verloren."}));
    EXPECT_EQ(User.ChoiceCounts, (std::vector<std::size_t>{2, 2}));
    EXPECT_EQ(FileContent(*User.File), before);
    EXPECT_TRUE(State.CommentsEdited);
    EXPECT_EQ(State.ChangedComments, std::set<EntryNumber>{3});
    EXPECT_EQ(Entries.Comments().size(), 1U);

    User.Chosen = {0};
    EXPECT_EQ(Zip(), ZipOutcome::SavedWithMore);
    EXPECT_EQ(Archived(), " 0 oil\r\n 1 \"a, b\"\r\n 3 pump\r\n");
    EXPECT_EQ(Entries.Comment(1), "a, b");
    EXPECT_FALSE(State.CommentsEdited);
    EXPECT_TRUE(State.ChangedComments.empty());
    // What was kept is not asked about again.
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.Choices.size(), 3U);
    EXPECT_TRUE(User.Confirmations.empty());
}

TEST_F(ZipLogbookTest, CommentsOfTheReplacedArchiveCanBeReplaced) {
    WriteOld(" 0 oil\r\n 3 valve\r\n");
    User.Chosen = {1};
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(Archived(), " 3 pump\r\n");
    EXPECT_EQ(Entries.Comment(0), "");
}

TEST_F(ZipLogbookTest, ChangesOfThePersonAreNotAskedAbout) {
    WriteOld(" 0 oil\r\n 3 valve\r\n 4 \r\n");
    State.ChangedComments = {0, 3}; // the first one was cleared
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(Archived(), " 3 pump\r\n");
    EXPECT_TRUE(User.Choices.empty());
    // They count until they are saved.
    WriteOld(" 0 oil\r\n");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Choices.size(), 1U);
}

TEST_F(ZipLogbookTest, WhereNeitherCommentWasChangedHereBothAreKept) {
    WriteOld(" 3 better\r\n 5 mine too\r\n");
    Entries.SetComment(5, "changed here");
    State.ChangedComments = {5};
    User.Chosen = {0};
    EXPECT_EQ(Zip(), ZipOutcome::SavedWithMore);
    EXPECT_EQ(Archived(), " 3 pump | better\r\n 5 changed here\r\n");
    EXPECT_EQ(Entries.Comment(3), "pump | better");
}

TEST_F(ZipLogbookTest, WhatTheCodePageLackedIsNoOtherComment) {
    Entries.SetComment(12, "\xE6\x97\xA5 a");
    Entries.SetComment(13, "two\nlines");
    User.Agrees = true;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_TRUE(User.Choices.empty());
}

TEST_F(ZipLogbookTest, ArchiveOfTheBeginningOfTheLogbookHoldsItsComments) {
    State.CurrentLogbookFile = Folder.Write("lb.act.log", "text that has grown");
    State.CurrentFileStamp.reset();
    WriteOld(" 0 oil\r\n");
    User.Chosen = {0};
    EXPECT_EQ(Zip(), ZipOutcome::SavedWithMore);
    EXPECT_EQ(ReadZip(*User.File)[0].second, "text that has grown");
    EXPECT_EQ(Archived(), " 0 oil\r\n 3 pump\r\n");
}

TEST_F(ZipLogbookTest, CommentsOfAnotherLogbookCanOnlyBeReplaced) {
    State.ChangedComments = {3};
    for (const char* logbook : {"texT", "Text", "tex", "text and more", "other"}) {
        const bool isBeginning = std::string(logbook) == "tex";
        WriteOld(" 3 valve\r\n 4000000000 oil\r\n", logbook);
        User.Choices.clear();
        User.Chosen = {0};
        EXPECT_EQ(ZipUnseen({isBeginning ? Language::English : Language::German}), ZipOutcome::Saved)
            << logbook;
        EXPECT_EQ(Archived(), " 3 pump\r\n");
        if (isBeginning) // no entry has the one, and the person changed the other
            EXPECT_TRUE(User.Choices.empty());
        else
            EXPECT_EQ(
                User.Choices,
                (std::vector<std::string>{
                    "Kommentare im Archiv zu einem anderen Logbuch oder einem anderen Stand von diesem: "
                    "2\r\n\r\nMit diesem Logbuch können sie nicht erhalten bleiben. Das Archiv "
                    "ersetzen?"}));
        State.ChangedComments = {3};
    }
    EXPECT_EQ(User.ChoiceCounts, std::vector<std::size_t>(4, 1));
    WriteOld(" 0 oil\r\n", "other");
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Choices.back(),
              "Comments in the archive on another logbook, or on another state of this one: 1\r\n\r\n"
              "They cannot be kept with this logbook. Replace the archive?");
    EXPECT_EQ(ReadZip(*User.File)[0].second, "other");
    // None is lost with one that has none, or no others.
    WriteOld("", "other");
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Saved);
    WriteOld(" 3 pump\r\n", "other");
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Saved);
    WriteZip(*User.File, {{"other.log", "other"}});
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Saved);
    WriteZip(*User.File, {{"readme", "no logbook"}, {"a.cmt", "[Comments]\r\n 0 oil\r\n"}});
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Saved);
}

TEST_F(ZipLogbookTest, ArchiveThatCannotBeReadCanBeReplaced) {
    WriteOld(" 0 oil\r\n");
    const std::string whole = FileContent(*User.File);
    std::string damaged = whole;
    damaged[damaged.find("[Comments]")] = '(';
    WriteZip(*User.File, {{"a.log", "text"}, {"a.cmt", "no comments"}});
    const std::string noComments = FileContent(*User.File);
    const std::pair<std::string, std::string> cases[] = {
        {"old", "not a zip archive"},
        {whole.substr(0, whole.size() - 1), "not a zip archive"},
        {damaged, "the archive is damaged"},
        {noComments, "File includes no comment information!"},
    };
    for (const auto& [bytes, reason] : cases) {
        Folder.Write("out/a.qorvix", bytes);
        EXPECT_EQ(ZipUnseen(), ZipOutcome::Cancelled);
        EXPECT_EQ(User.Choices.back(), "The archive that is there cannot be read (" + reason +
                                           ")\r\n\r\nIf it holds comments, they are lost. Replace it?");
        EXPECT_EQ(FileContent(*User.File), bytes);
        User.Chosen = {0};
        EXPECT_EQ(ZipUnseen({Language::German}), ZipOutcome::Saved);
        EXPECT_TRUE(User.Choices.back().starts_with("Das vorhandene Archiv kann nicht gelesen werden ("));
        EXPECT_EQ(Archived(), " 3 pump\r\n");
    }
    EXPECT_EQ(User.ChoiceCounts, std::vector<std::size_t>(8, 1));
    Folder.Write("out/a.qorvix", "");
    EXPECT_EQ(ZipUnseen(), ZipOutcome::Saved);
    EXPECT_EQ(User.Choices.size(), 8U);
}

TEST_F(ZipLogbookTest, ChangedArchiveWithCommentsIsOneQuestion) {
    State.CurrentArchive = *User.File;
    std::error_code error;
    WriteOld("");
    State.CurrentArchiveStamp = StampOf(*User.File, error);
    WriteOld(" 0 oil\r\n");
    User.Chosen = {0};
    EXPECT_EQ(Zip(), ZipOutcome::SavedWithMore);
    EXPECT_EQ(User.Choices,
              (std::vector<std::string>{
                  "The archive has been changed since you opened or saved it, perhaps in another window. Its "
                  "filters will be replaced.\r\n\r\n"
                  "Comments in the archive that the list does not have, or has otherwise: 1\r\n\r\n"
                  "Keep them too? If they are replaced, they are lost."}));
    EXPECT_TRUE(User.Confirmations.empty());
}

TEST_F(ZipLogbookTest, ArchiveThatIsChangedWhileTheUserThinksIsNotReplaced) {
    WriteOld(" 0 oil\r\n");
    User.Chosen = {0};
    User.WhileChoosing = [&] { WriteOld(" 0 oil\r\n 7 of another window\r\n"); };
    EXPECT_EQ(Zip(), ZipOutcome::Failed);
    EXPECT_EQ(User.Messages, (std::vector<std::string>{"The archive could not be saved (" + *User.File +
                                                       ": the archive was changed meanwhile)"}));
    EXPECT_EQ(ReadZip(*User.File)[1].second, "[Comments]\r\n 0 oil\r\n 7 of another window\r\n");
    // The list is as it was.
    EXPECT_EQ(Entries.Comment(0), "");
    EXPECT_EQ(Entries.Comment(3), "pump");
    EXPECT_TRUE(State.CommentsEdited);
}
