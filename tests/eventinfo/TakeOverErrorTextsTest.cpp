// SPDX-License-Identifier: MIT
#include "eventinfo/TakeOverErrorTexts.h"

#include "eventinfo/ErrorTextFolder.h"
#include "eventinfo/LanguageFile.h"
#include "eventinfo/iZEKEventInfo.h"
#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <map>

namespace {

using testing::ElementsAre;
using testing::StartsWith;
using Contents = std::map<std::string, std::string>;

class TakeOverTest : public testing::Test {
  protected:
    // Writes a file below the folder that is searched.
    void Place(const std::string& name, std::string_view content) const { WriteIn("from", name, content); }
    void Own(const std::string& name, std::string_view content) const { WriteIn("own", name, content); }

    std::unique_ptr<ErrorTextSource> Source(const std::string& place) const {
        return std::make_unique<ErrorTextFolder>(Folder / place, Language());
    }
    ErrorTextPlan Plan(const std::string& place = "from") const {
        return PlanTakeOver(*Source(place), Folder / "own");
    }
    TakeOverResult Take(const std::string& place = "from", Language language = {}) const {
        return TakeOver(*Source(place), Folder / "own", language, [](double) { return true; });
    }

    // What is in the person's own folder.
    Contents OwnFiles() const {
        Contents files;
        std::error_code none;
        for (const auto& item : std::filesystem::recursive_directory_iterator(Folder.Path() / "own", none))
            if (item.is_regular_file())
                files[std::filesystem::relative(item.path(), Folder.Path() / "own").generic_string()] =
                    FileContent(item.path());
        return files;
    }

    TemporaryFolder Folder;

  private:
    void WriteIn(const char* folder, const std::string& name, std::string_view content) const {
        const std::filesystem::path path = Folder.Path() / folder / name;
        std::filesystem::create_directories(path.parent_path());
        Folder.Write(std::string(folder) + "/" + name, content);
    }
};

TEST_F(TakeOverTest, FilesOfAnyDepthAreTaken) {
    Place("A_EN.XMT", "a");
    Place("deep/er/GERMAN/error.a", "b");
    Place("deep/er/b_de.xmt", "c");
    Place("facilities.csv", "d");
    Place("readme.txt", "x");
    const ErrorTextPlan plan = Plan();
    EXPECT_EQ(plan.Problem, "");
    EXPECT_THAT(plan.Kinds,
                ElementsAre(ErrorTextPlan::Row{1, 1, 0}, ErrorTextPlan::Row{}, ErrorTextPlan::Row{},
                            ErrorTextPlan::Row{0, 1, 0}, ErrorTextPlan::Row{1, 1, 0}));
    EXPECT_FALSE(plan.IsEmpty());
    EXPECT_EQ(OwnFiles(), Contents());
    const TakeOverResult result = Take();
    EXPECT_EQ(result.Taken, 4U);
    EXPECT_EQ(result.Failure, "");
    EXPECT_EQ(
        OwnFiles(),
        (Contents{{"A_EN.XMT", "a"}, {"GERMAN/error.a", "b"}, {"b_de.xmt", "c"}, {"facilities.csv", "d"}}));
}

TEST_F(TakeOverTest, WhatWasTakenIsFound) {
    Place("texts/english/QX_ERROR_HELP.TXT", "938\nM\n\nCorrective action:\nF\n");
    Take();
    const std::vector<std::string> folders{Folder / "own", Folder / "beside"};
    EXPECT_EQ(AutoFillComment("N938 x", {}, folders).Text, "M\r\nReason:\r\n\r\nFix:\r\nF");
    EXPECT_EQ(AutoFillComment("N938 x", {Language::German}, folders).Text, std::nullopt);
}

TEST_F(TakeOverTest, FolderOfOneLanguageMayBeChosenItself) {
    Place("GERMAN/fix.a", "a");
    Take("from/GERMAN");
    EXPECT_EQ(OwnFiles(), (Contents{{"GERMAN/fix.a", "a"}}));
}

TEST_F(TakeOverTest, ReplacedFilesAreKept) {
    NEEDS_NAMES_WITH_CASE();
    Own("a_en.xmt", "mine");
    Own("german/Error.a", "same");
    Own("B_EN.XMT", "untouched");
    Own("notes.txt", "untouched");
    Place("A_EN.XMT", "new");
    Place("GERMAN/error.a", "same");
    const ErrorTextPlan plan = Plan();
    EXPECT_THAT(plan.Replaced, ElementsAre("A_EN.XMT"));
    EXPECT_EQ(plan.Kinds[0], (ErrorTextPlan::Row{1, 0, 1}));
    const TakeOverResult result = Take();
    EXPECT_EQ(result.Taken, 1U);
    EXPECT_EQ(result.Kept, 1U);
    EXPECT_EQ(result.Same, 1U);
    const Contents all{{"a_en.xmt", "new"},
                       {"a_en.xmt.bak", "mine"},
                       {"german/Error.a", "same"},
                       {"B_EN.XMT", "untouched"},
                       {"notes.txt", "untouched"}};
    EXPECT_EQ(OwnFiles(), all);
    // Again there is nothing to do.
    EXPECT_EQ(Take().Same, 2U);
    EXPECT_EQ(OwnFiles(), all);
}

TEST_F(TakeOverTest, OneKeptFileIsBesideTheNewOne) {
    Own("A_EN.XMT", "mine");
    Own("GERMAN/error.a", "same");
    Place("A_EN.XMT", "new");
    Place("GERMAN/error.a", "same");
    const TakeOverResult result = Take();
    EXPECT_EQ(result.Kept, 1U);
    EXPECT_EQ(result.Same, 1U);
    EXPECT_EQ(OwnFiles(),
              (Contents{{"A_EN.XMT", "new"}, {"A_EN.XMT.bak", "mine"}, {"GERMAN/error.a", "same"}}));
}

TEST_F(TakeOverTest, NoKeptFileIsLost) {
    Own("A_EN.XMT", "first");
    for (const char* const content : {"second", "third", "first", "second", ""}) {
        Place("A_EN.XMT", content);
        EXPECT_EQ(Take().Kept, 1U);
    }
    EXPECT_EQ(OwnFiles(), (Contents{{"A_EN.XMT", ""},
                                    {"A_EN.XMT.bak", "first"},
                                    {"A_EN.XMT.bak2", "second"},
                                    {"A_EN.XMT.bak3", "third"}}));
    Place("A_EN.XMT", "fourth"); // in place of an empty one
    EXPECT_EQ(Take().Failure, "");
    EXPECT_EQ(OwnFiles()["A_EN.XMT"], "fourth");
    EXPECT_EQ(OwnFiles()["A_EN.XMT.bak4"], "");
}

TEST_F(TakeOverTest, OfSeveralTheTopmostIsTaken) {
    Place("new/A_EN.XMT", "top");
    Place("new/old/a_en.xmt", "deep");
    Place("zzz/A_EN.XMT", "later");
    EXPECT_EQ(Plan().Kinds[0], (ErrorTextPlan::Row{1, 0, 0}));
    Take();
    EXPECT_EQ(OwnFiles(), (Contents{{"A_EN.XMT", "top"}}));
}

TEST_F(TakeOverTest, LinksAndWhatIsNoFileAreLeft) {
    NEEDS_LINKS();
    Place("x.txt", "");
    Folder.Write("secret", "secret");
    std::filesystem::create_symlink(Folder / "secret", Folder / "from/A_EN.XMT");
    std::filesystem::create_directory(Folder / "outside");
    Folder.Write("outside/B_EN.XMT", "outside");
    std::filesystem::create_directory_symlink(Folder / "outside", Folder / "from/link");
    std::filesystem::create_directory_symlink(Folder / "from", Folder / "from/loop");
    MakePipe(Folder, "from/C_EN.XMT");
    std::filesystem::create_directory(Folder / "from/D_EN.XMT");
    EXPECT_TRUE(Plan().IsEmpty());
    EXPECT_EQ(Take().Taken, 0U);
    EXPECT_EQ(OwnFiles(), Contents());
}

TEST_F(TakeOverTest, LargerFilesThanTheControlsAreLeft) {
    Place("A_EN.XMT", "");
    Place("B_EN.XMT", "");
    std::filesystem::resize_file(Folder / "from/A_EN.XMT", LanguageFile::LargestSize);
    std::filesystem::resize_file(Folder / "from/B_EN.XMT", LanguageFile::LargestSize + 1);
    const ErrorTextPlan plan = Plan();
    EXPECT_EQ(plan.Kinds[0].English, 1U);
    EXPECT_THAT(plan.TooLarge, ElementsAre("B_EN.XMT"));
    EXPECT_EQ(Take().Taken, 1U);
    EXPECT_EQ(std::filesystem::file_size(Folder / "own/A_EN.XMT"), LanguageFile::LargestSize);
}

TEST_F(TakeOverTest, FolderThatCannotBeSearchedIsTold) {
    NEEDS_PERMISSIONS();
    EXPECT_EQ(Plan("missing").Problem, "No such file or directory");
    EXPECT_TRUE(Plan("missing").IsEmpty());
    Place("A_EN.XMT", "a");
    std::filesystem::permissions(Folder / "from", std::filesystem::perms::none);
    {
        const OrdinaryUser ordinary;
        if (ordinary.IsOrdinary()) {
            EXPECT_EQ(ErrorTextFolder(Folder / "from", {Language::German}).Problem(), "Keine Berechtigung");
        }
    }
    std::filesystem::permissions(Folder / "from", std::filesystem::perms::owner_all);
}

TEST_F(TakeOverTest, FolderOfTooMuchIsNotSearchedToItsEnd) {
    NEEDS_LINKS();
    Place("A_EN.XMT", "a");
    // With these, as many items as are searched.
    Place("many/x", "");
    for (std::size_t i = 3; i < ErrorTextFolder::MostItems; ++i)
        std::filesystem::create_symlink("x", Folder / "from/many/" + std::to_string(i));
    EXPECT_EQ(Plan().Problem, "");
    EXPECT_FALSE(Plan().IsEmpty());
    Place("one more", "");
    EXPECT_EQ(Plan().Problem, "Too much lies there to search it all. Choose a folder that holds less.");
    EXPECT_TRUE(Plan().IsEmpty());
}

TEST_F(TakeOverTest, MoreThanAControlHasIsNotTaken) {
    Place("A_EN.XMT", "a");
    Place("many/x", "");
    for (std::size_t i = 1; i < ErrorTextSource::MostFiles; ++i)
        Place("many/" + std::to_string(i) + "_EN.XMT", "");
    EXPECT_EQ(Plan().Problem, "");
    Place("many/one more_EN.XMT", "");
    EXPECT_EQ(Plan().Problem, "Too much lies there to search it all. Choose a folder that holds less.");
    EXPECT_TRUE(Plan().IsEmpty());
    std::filesystem::remove_all(Folder / "from/many");
    for (int i = 0; i < 5; ++i) {
        const std::string name = std::to_string(i) + "_EN.XMT";
        Place(name, "");
        std::filesystem::resize_file(Folder / ("from/" + name), ErrorTextSource::MostBytes / 5);
    }
    EXPECT_EQ(Plan().Problem, "");
    Place("5_EN.XMT", std::string(100, 'x'));
    EXPECT_EQ(Plan().Problem, "Too much lies there to search it all. Choose a folder that holds less.");
}

// What is written belongs into the folder, and replaces files alone.
TEST_F(TakeOverTest, LinksAndPipesInTheOwnFolderStayAndTheOthersAreTaken) {
    NEEDS_LINKS();
    Folder.Write("strangers.txt", "precious");
    Place("A_EN.XMT", "a");
    Place("B_EN.XMT", "b");
    Place("C_EN.XMT", "c");
    Place("D_EN.XMT", "d");
    Own("C_EN.XMT", "mine");
    std::filesystem::create_symlink(Folder / "strangers.txt", Folder / "own/A_EN.XMT");
    MakePipe(Folder, "own/B_EN.XMT");
    std::filesystem::create_symlink(Folder / "nowhere", Folder / "own/C_EN.XMT.bak");
    EXPECT_THAT(Plan().Replaced, ElementsAre("C_EN.XMT"));
    const TakeOverResult result = Take();
    EXPECT_THAT(result.Failure, StartsWith("A_EN.XMT: "));
    EXPECT_EQ(result.Taken, 2U);
    EXPECT_EQ(FileContent(Folder.Path() / "strangers.txt"), "precious");
    EXPECT_FALSE(std::filesystem::exists(Folder / "nowhere"));
    EXPECT_EQ(FileContent(Folder.Path() / "own/C_EN.XMT"), "c");
    EXPECT_EQ(FileContent(Folder.Path() / "own/C_EN.XMT.bak2"), "mine");
    EXPECT_EQ(FileContent(Folder.Path() / "own/D_EN.XMT"), "d");
    EXPECT_TRUE(std::filesystem::is_fifo(Folder / "own/B_EN.XMT"));
}

TEST_F(TakeOverTest, FailureIsLeftOutAndNamed) {
    Place("A_EN.XMT", "a");
    Place("GERMAN/error.a", "b");
    Own("GERMAN", "a file where the folder belongs");
    const TakeOverResult result = Take("from", {Language::German});
    EXPECT_EQ(result.Taken, 1U);
    EXPECT_THAT(result.Failure, StartsWith("GERMAN/error.a: "));
    EXPECT_EQ(OwnFiles()["GERMAN"], "a file where the folder belongs");
}

TEST_F(TakeOverTest, FolderThatMayNotBeWrittenStaysAsItIs) {
    NEEDS_PERMISSIONS();
    Place("A_EN.XMT", "new");
    Own("A_EN.XMT", "mine");
    std::filesystem::permissions(Folder / "own", std::filesystem::perms(0555));
    std::filesystem::permissions(Folder.Path(), std::filesystem::perms(0755));
    std::filesystem::permissions(Folder / "from", std::filesystem::perms(0755));
    {
        const OrdinaryUser ordinary;
        if (!ordinary.IsOrdinary())
            GTEST_SKIP() << "needs permissions that apply";
        const TakeOverResult result = Take();
        EXPECT_EQ(result.Failure, "A_EN.XMT: Permission denied");
        EXPECT_EQ(result.Taken, 0U);
    }
    EXPECT_EQ(OwnFiles(), (Contents{{"A_EN.XMT", "mine"}}));
}

TEST_F(TakeOverTest, MayBeEnded) {
    for (const char* const name : {"A_EN.XMT", "B_EN.XMT", "C_EN.XMT", "D_EN.XMT"})
        Place(name, "a");
    const TakeOverResult result =
        TakeOver(*Source("from"), Folder / "own", {}, [](double percent) { return percent < 50; });
    EXPECT_TRUE(result.IsEnded);
    EXPECT_EQ(result.Taken, 2U);
    EXPECT_EQ(OwnFiles().size(), 2U);
}

TEST_F(TakeOverTest, OwnFolderItselfChangesNothing) {
    Own("A_EN.XMT", "a");
    Own("A_EN.XMT.bak", "older");
    EXPECT_EQ(Take("own").Same, 1U);
    EXPECT_EQ(Take(".").Same, 1U);
    EXPECT_EQ(OwnFiles(), (Contents{{"A_EN.XMT", "a"}, {"A_EN.XMT.bak", "older"}}));
}

} // namespace
