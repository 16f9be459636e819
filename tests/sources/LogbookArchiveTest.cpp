// SPDX-License-Identifier: MIT
#include "sources/LogbookArchive.h"

#include "filter/FilterText.h"
#include "settings/Registry.h"
#include "sources/LogbookSource.h"
#include "support/MemorySettings.h"
#include "support/ReadText.h"
#include "support/ScriptedUser.h"
#include "support/TemporaryFolder.h"
#include "support/ZipWriter.h"

#include <gmock/gmock.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>

namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LogbookArchiveTest : public testing::Test {
  protected:
    LogbookArchiveTest() {
        ReadText(Lines({Header("BERR:    a"), Header("BERR:    b")}), Result);
        FilterDefinition filter;
        ParseFilter("I|0||||1", filter);
        Filters.push_back(filter);
    }

    std::string Log(const std::string& bytes = "the logbook's bytes \xFC\x00\r\n") {
        return Folder.Write("source.a", bytes);
    }

    bool Zip(const std::string& logbook) {
        return ZipLogbook({logbook, Result.Book.Entries, Filters, Encoding, InitZipArchiveDir}, Settings,
                          User, {});
    }

    // The files of a folder, by name.
    std::vector<std::string> FilesIn(const std::filesystem::path& folder) const {
        std::vector<std::string> names;
        for (const auto& item : std::filesystem::directory_iterator(folder))
            names.push_back(item.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    std::filesystem::path MakeFolder(const std::string& name) const {
        const std::filesystem::path folder = std::filesystem::path(Folder.Path()) / name;
        std::filesystem::create_directories(folder);
        return folder;
    }

    TemporaryFolder Folder;
    TempFolder Temp{Folder.Path()};
    ReadResult Result;
    std::vector<FilterDefinition> Filters;
    CodePage Encoding;
    std::string InitZipArchiveDir = "/begin/";
    MemorySettings Store;
    Registry Settings{Store};
    ScriptedUser User;
};

TEST_F(LogbookArchiveTest, NothingHappensWithoutALogbook) {
    EXPECT_FALSE(Zip(""));
    EXPECT_THAT(User.Requests, IsEmpty());
}

TEST_F(LogbookArchiveTest, DialogProposesTheLogbooksNameInTheLastFolder) {
    EXPECT_FALSE(Zip(Log()));
    ASSERT_EQ(User.Requests.size(), 1U);
    const FileRequest& request = User.Requests[0];
    EXPECT_EQ(Text(request.Title, {}), "Save Archive");
    EXPECT_EQ(Text(request.Title, {Language::German}), "Archiv speichern");
    EXPECT_EQ(Text(request.Filter, {}), "Logbook archive (*.qorvix)|*.qorvix");
    EXPECT_EQ(request.Folder, "/begin/");
    EXPECT_EQ(request.FileName, "source.qorvix");
    EXPECT_EQ(request.DefaultExtension, "qorvix");
    EXPECT_THAT(User.Messages, IsEmpty());
    EXPECT_EQ(Store.Writes, 0);
}

TEST_F(LogbookArchiveTest, ArchiveHoldsLogbookFiltersAndComments) {
    const std::string bytes("one\r\ntwo \xFC\0three", 16);
    Result.Book.Entries.SetComment(1, "seen, \"twice\"");
    const std::filesystem::path folder = MakeFolder("archives");
    User.Files = {(folder / "my machine.v2.qorvix").string()};
    EXPECT_TRUE(Zip(Log(bytes)));
    EXPECT_THAT(FilesIn(folder), ElementsAre("my machine.v2.qorvix"));
    EXPECT_THAT(User.Statuses, ElementsAre(TextId::StatusZipping));
    EXPECT_EQ(User.OpenStatuses, 0);
    EXPECT_EQ(InitZipArchiveDir, folder.string() + "/");
    EXPECT_EQ(Settings.ReadLogbookSettingString("InitZipArchiveDir", ""), folder.string() + "/");

    User.Answers = {UserInterface::Answer::Yes};
    const auto source = ResolveSource((folder / "my machine.v2.qorvix").string(), Temp, User, {});
    ASSERT_TRUE(source);
    EXPECT_EQ(FileContent(source->LogbookFile), bytes);
    EXPECT_EQ(FileContent(source->CommentsFile), "[Comments]\r\n 1 \"seen, \"\"twice\"\"\"\r\n");
    EXPECT_EQ(FileContent(source->FilterFile), "[Filters]\r\nI|0||||1\r\n");
}

TEST_F(LogbookArchiveTest, OtherProgramsOpenTheArchive) {
    const std::filesystem::path folder = MakeFolder("other");
    User.Files = {(folder / "größe.qorvix").string()};
    ASSERT_TRUE(Zip(Log("bytes of the logbook")));
    const std::string archive = (folder / "größe.qorvix").string();
    ASSERT_EQ(std::system(("unzip -q -t '" + archive + "' > /dev/null").c_str()), 0);
    ASSERT_EQ(std::system(("unzip -q '" + archive + "' -d '" + folder.string() + "/out'").c_str()), 0);
    EXPECT_EQ(FileContent(folder / "out" / "größe.log"), "bytes of the logbook");
    EXPECT_THAT(FilesIn(folder / "out"), ElementsAre("größe.cmt", "größe.fil", "größe.log"));
}

TEST_F(LogbookArchiveTest, ArchiveOfAnotherProgramIsOpened) {
    const std::filesystem::path folder = MakeFolder("made");
    Folder.Write("made/X.LOG", "log");
    Folder.Write("made/x.log", "lower");
    ASSERT_EQ(std::system(("cd '" + folder.string() +
                           "' && zip -q -0 stored.qorvix x.log && zip -q -9 packed.qorvix x.log")
                              .c_str()),
              0);
    for (const char* name : {"stored.qorvix", "packed.qorvix"}) {
        const auto source = ResolveSource((folder / name).string(), Temp, User, {});
        ASSERT_TRUE(source);
        EXPECT_EQ(FileContent(source->LogbookFile), "lower") << name;
    }
}

TEST_F(LogbookArchiveTest, LogbookMayComeFromTheArchiveThatIsReplaced) {
    const std::string path = Folder / "own.qorvix";
    WriteZip(path, {{"own.log", "bytes of the logbook"}});
    const auto source = ResolveSource(path, Temp, User, {});
    ASSERT_TRUE(source);
    User.Files = {path};
    EXPECT_TRUE(Zip(source->LogbookFile));
    const auto again = ResolveSource(path, Temp, User, {});
    ASSERT_FALSE(again); // it has filters now, and the question about them was cancelled
    User.Answers = {UserInterface::Answer::No};
    EXPECT_EQ(FileContent(ResolveSource(path, Temp, User, {})->LogbookFile), "bytes of the logbook");
}

TEST_F(LogbookArchiveTest, FailuresLeaveTheOldArchiveAndAreTold) {
    const std::filesystem::path folder = MakeFolder("failing");
    const std::string old = Folder.Write("failing/old.qorvix", "old archive");
    MakeFolder("failing/folder.qorvix");
    User.Files = {old, (folder / "folder.qorvix").string(), (folder / "none/x.qorvix").string()};
    EXPECT_FALSE(Zip(Folder / "gone.log"));
    EXPECT_FALSE(Zip(Log()));
    EXPECT_FALSE(Zip(Log()));
    ASSERT_EQ(User.Messages.size(), 3U);
    EXPECT_EQ(User.Messages[0], "The archive could not be written (" + old + "): " + (Folder / "gone.log") +
                                    ": No such file or directory");
    EXPECT_THAT(User.Messages[1],
                StartsWith("The archive could not be written (" + folder.string() + "/folder.qorvix): "));
    EXPECT_THAT(User.Messages[2], HasSubstr("No such file or directory"));
    EXPECT_EQ(FileContent(old), "old archive");
    EXPECT_THAT(FilesIn(folder), ElementsAre("folder.qorvix", "old.qorvix"));
    EXPECT_EQ(InitZipArchiveDir, "/begin/");
    EXPECT_EQ(User.OpenStatuses, 0);
}

TEST_F(LogbookArchiveTest, FullDiskLeavesTheOldArchive) {
    const std::filesystem::path folder = MakeFolder("full");
    const std::string old = Folder.Write("full/old.qorvix", "old archive");
    std::string bytes(1 << 20, ' ');
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * i % 251); // hardly packed
    const std::string log = Log(bytes);
    User.Files = {old};
    // A limit of this process stands for a disk that fills while the archive is written.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit full{400, before.rlim_max};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
    const bool saved = Zip(log);
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_FALSE(saved);
    ASSERT_EQ(User.Messages.size(), 1U);
    EXPECT_THAT(User.Messages[0], HasSubstr("): File too large"));
    EXPECT_EQ(FileContent(old), "old archive");
    EXPECT_THAT(FilesIn(folder), ElementsAre("old.qorvix"));
}

TEST_F(LogbookArchiveTest, LostCharactersAreToldFirst) {
    const std::filesystem::path folder = MakeFolder("lost");
    Result.Book.Entries.SetComment(1, "снег");
    Filters[0].StringFilter = "лёд";
    const std::string path = (folder / "x.qorvix").string();
    User.Files = {path, path};
    User.Answers = {UserInterface::Answer::No, UserInterface::Answer::Yes};
    EXPECT_FALSE(Zip(Log()));
    EXPECT_THAT(FilesIn(folder), IsEmpty());
    EXPECT_THAT(User.Confirmed,
                ElementsAre("Some characters cannot be stored in the archive and would become \"?\":\n"
                            "Comments of the entries 1\nFilters 1\n\nSave the archive all the same?"));
    EXPECT_TRUE(Zip(Log()));
    EXPECT_THAT(FilesIn(folder), ElementsAre("x.qorvix"));
}

TEST(QuestionAboutLosses, NamesTenPlacesAtMost) {
    EXPECT_EQ(QuestionAboutLosses({}, {}, {}), "");
    EXPECT_EQ(QuestionAboutLosses({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {}, {Language::German}),
              "Einige Zeichen lassen sich nicht im Archiv speichern und würden zu \"?\":\n"
              "Kommentare der Einträge 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, ...\n\nArchiv trotzdem speichern?");
}

} // namespace
