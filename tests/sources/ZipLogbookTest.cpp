// SPDX-License-Identifier: MIT
#include "sources/ZipLogbook.h"

#include "support/EntriesFrom.h"
#include "support/MemorySettings.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"

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

    ZipOutcome Zip(Language language = {}) {
        const ZipOutcome outcome = ZipLogbook(State,
                                              {.Entries = Entries,
                                               .Filters = Filters,
                                               .FileCodePage = Code,
                                               .Temp = Temp,
                                               .Settings = Settings,
                                               .ProgramFolder = "/program/"},
                                              User, language);
        EXPECT_EQ(User.StatusDepth, 0);
        return outcome;
    }

    // Nothing was written, stored or forgotten.
    void ExpectNothingSaved() {
        EXPECT_TRUE(fs::is_empty(Folder / "out"));
        EXPECT_TRUE(Store.Values.empty());
        EXPECT_TRUE(State.CommentsEdited);
        EXPECT_EQ(State.InitZipArchiveDir, "/first/");
    }

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
    const auto archive = [&](const char* content) {
        State.CurrentArchive = Folder.Write("out/a.qorvix", content);
        return State.CurrentArchive;
    };
    std::error_code error;
    State.CurrentArchiveStamp = StampOf(archive("as it was opened"), error);
    archive("with comments of another copy");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    EXPECT_EQ(Zip({Language::German}), ZipOutcome::Cancelled);
    EXPECT_EQ(User.Confirmations,
              (std::vector<std::string>{
                  "The archive has been changed since you opened or saved it, perhaps in another window. Its "
                  "comments and filters would be replaced. Save all the same?",
                  "Das Archiv wurde geändert, seit Sie es geöffnet oder gespeichert haben, vielleicht in "
                  "einem anderen Fenster. Seine Kommentare und Filter würden ersetzt. Trotzdem speichern?"}));
    EXPECT_EQ(FileContent(*User.File), "with comments of another copy");
    EXPECT_TRUE(State.CommentsEdited);
    User.Agrees = true;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.Confirmations.size(), 3U);
    // It is this copy's now.
    User.Agrees = false;
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    archive("changed again");
    EXPECT_EQ(Zip(), ZipOutcome::Cancelled);
    // Gone is nothing that could be lost, and another archive is the file dialog's question.
    fs::remove(*User.File);
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    archive("changed once more");
    User.File = Folder / "out/b.qorvix";
    EXPECT_EQ(Zip(), ZipOutcome::Saved);
    EXPECT_EQ(User.Confirmations.size(), 4U);
}
