// SPDX-License-Identifier: MIT
// Own archives that are saved and opened when memory runs out: the archive is as it was or whole as it would
// be, and comments that it lacks are still in the journal.
#include "document/LogbookDocument.h"
#include "faults/FailingMemory.h"
#include "support/MemorySettings.h"
#include "support/ReadText.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipReader.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using enum UserInterface::Answer;

constexpr const char* OldComment = "a comment of the archive that is replaced";
constexpr const char* NewComment = "the pump was replaced in the morning";

// Remembers whether it was told that something went wrong.
class View : public DocumentView {
  public:
    ScriptedUser& User() override { return Person; }
    RecordingProgress& Progress() override { return Reading; }
    Language DialogLanguage() const override { return {}; }
    void CommentsFailed(const std::string&, const CommentsFileResult&) override { Failed = true; }
    void FilteringFailed() override { Failed = true; }
    void ReadingFailed(std::int16_t) override { Failed = true; }

    ScriptedUser Person;
    RecordingProgress Reading;
    bool Failed = false;
};

// The person who knows what is in the archive, and does not replace one that is said to be something else.
class Decisions : public ArchiveDecisions {
  public:
    Decisions(std::string archive, bool keepsOldComments)
        : archive_(std::move(archive)), keepsOldComments_(keepsOldComments) {}

    std::optional<std::string> Archive(const std::string&, const std::string&) override { return archive_; }
    OldComments DecideOn(const ArchivedComments& lost, bool) override {
        if (!keepsOldComments_)
            return OldComments::Replace;
        switch (lost.What) {
        case ArchivedComments::Kind::None:
            return OldComments::Replace; // nobody would be asked
        case ArchivedComments::Kind::OfThisLogbook:
            return OldComments::Keep;
        default:
            return OldComments::Cancel;
        }
    }
    bool AgreesToLosses(std::string_view) override { return true; }
    bool AgreesToChangedLogbook() override { return true; }

  private:
    std::string archive_;
    bool keepsOldComments_;
};

class ArchiveMemory : public testing::Test {
  protected:
    ArchiveMemory() {
        fs::create_directory(Out);
        fs::create_directory(TempParent);
        WriteZip(Archive, {{"a.log", Log.substr(0, Log.find('\n') + 1)},
                           {"a.fil", "[Filters]\r\n"},
                           {"a.cmt", std::string("[Comments]\r\n 0 ") + OldComment + "\r\n"}});
        Old = FileContent(Archive);
    }

    void Prepare() {
        Document.reset();
        Temp.reset();
        fs::remove_all(State);
        fs::remove_all(Out);
        fs::create_directory(Out);
        Folder.Write("out/a.qorvix", Old);
        Temp.emplace(TempParent);
        Store.Values.clear();
        Shown = {};
        Shown.Person.Answers = {Yes, Yes}; // to the archive's filters
        Start();
    }

    void Start() {
        Document = std::make_unique<LogbookDocument>(
            LogbookDocument::Surroundings{.Filters = Filters, .Settings = Settings, .Temp = *Temp},
            CodePage(), State);
        Document->ShowIn(Shown);
    }

    // Opens the logbook and enters a comment that is not in the archive.
    void PrepareToSave(bool keepsOldComments) {
        Prepare();
        ASSERT_TRUE(Document->OpenLogbook(LogFile));
        Document->ChangeComment(1, NewComment);
        Decided.emplace(Archive, keepsOldComments);
    }

    bool Save() { return Document->ZipLogbook(*Decided); }

    std::string CommentsFile(bool keepsOldComments) const {
        return std::string("[Comments]\r\n") +
               (keepsOldComments ? std::string(" 0 ") + OldComment + "\r\n" : "") + " 1 " + NewComment +
               "\r\n";
    }

    void ExpectSaved(bool keepsOldComments) const {
        const auto members = ReadZip(Archive);
        ASSERT_EQ(members.size(), 3U);
        EXPECT_EQ(members[0].second, Log);
        EXPECT_EQ(members[2].second, CommentsFile(keepsOldComments));
    }

    void SaveAtEveryAllocation(bool keepsOldComments) {
        AtEveryAllocation([&] { PrepareToSave(keepsOldComments); }, [&] { return Save(); },
                          [&](WorkOutcome outcome) {
                              const bool isOld = FileContent(Archive) == Old;
                              if (outcome == WorkOutcome::Done) {
                                  EXPECT_FALSE(isOld);
                              }
                              if (!isOld)
                                  ExpectSaved(keepsOldComments);
                              const bool hasOld = Document->Entries().Comment(0) == OldComment;
                              EXPECT_EQ(hasOld, keepsOldComments && outcome == WorkOutcome::Done);
                              EXPECT_EQ(Document->Entries().Comment(1), NewComment);
                              if (isOld) {
                                  EXPECT_THAT(NamesIn(State), testing::SizeIs(1));
                              }
                              ExpectSavedNow(keepsOldComments);
                          });
    }

    // With memory it can be saved, and nothing stays.
    void ExpectSavedNow(bool keepsOldComments) {
        EXPECT_TRUE(Save());
        ExpectSaved(keepsOldComments);
        EXPECT_THAT(NamesIn(Out), ElementsAre("a.qorvix"));
        EXPECT_THAT(NamesIn(State), IsEmpty());
        Document.reset();
        Temp.reset();
        EXPECT_THAT(NamesIn(TempParent), IsEmpty());
    }

    static std::vector<std::string> NamesIn(const fs::path& folder) {
        std::vector<std::string> names;
        for (const auto& item : fs::directory_iterator(folder))
            names.push_back(item.path().filename().string());
        return names;
    }

    TemporaryFolder Folder;
    const std::string Log = Lines({Header("BERR:    one"), Header("BERR:    two"), Header("BERR:    three")});
    const std::string LogFile = Folder.Write("b.log", Log);
    const std::string Out = Folder / "out";
    const std::string Archive = Out + "/a.qorvix";
    const std::string State = Folder / "state";
    const std::string TempParent = Folder / "temp";
    std::string Old;
    std::optional<TempFolder> Temp;
    MemorySettings Store;
    Registry Settings{Store};
    StoredActiveFilters Filters{Settings};
    View Shown;
    std::optional<Decisions> Decided;
    std::unique_ptr<LogbookDocument> Document;
};

} // namespace

TEST_F(ArchiveMemory, ArchiveIsReplacedWholeOrNotAtAll) { SaveAtEveryAllocation(false); }

TEST_F(ArchiveMemory, CommentsOfTheOldArchiveAreKeptInBothOrNeither) { SaveAtEveryAllocation(true); }

TEST_F(ArchiveMemory, OpeningLeavesTheArchiveAndTellsOfWhatItLacks) {
    AtEveryAllocation(
        [&] {
            PrepareToSave(true);
            ASSERT_TRUE(Save());
            Old = FileContent(Archive);
            Prepare();
        },
        [&] { return Document->OpenLogbook(Archive); },
        [&](WorkOutcome outcome) {
            EXPECT_EQ(FileContent(Archive), Old);
            // A logbook file that cannot be opened gives no rows.
            if (outcome == WorkOutcome::Done && !Shown.Failed && Shown.Person.Messages.empty() &&
                !Document->Rows().empty()) {
                EXPECT_EQ(Document->Rows().size(), 3U);
                EXPECT_EQ(Document->Entries().Comment(0), OldComment);
                EXPECT_EQ(Document->Entries().Comment(1), NewComment);
            }
            Document.reset();
            Start();
            EXPECT_TRUE(Document->OpenLogbook(Archive)) << testing::PrintToString(Shown.Person.Messages);
            EXPECT_EQ(Document->Entries().Comment(1), NewComment);
            Document.reset();
            Temp.reset();
            EXPECT_THAT(NamesIn(TempParent), IsEmpty());
        });
}
