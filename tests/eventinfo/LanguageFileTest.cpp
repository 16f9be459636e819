// SPDX-License-Identifier: MIT
#include "eventinfo/LanguageFile.h"

#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

using testing::ElementsAre;

namespace {

std::vector<std::string> LinesOf(LanguageFile& file) {
    std::vector<std::string> lines;
    for (std::string_view line; file.ReadLine(line);)
        lines.emplace_back(line);
    return lines;
}

// Names that differ by case only are one name on some file systems.
bool TellsCaseApart(const TemporaryFolder& folder) {
    folder.Write("case", "");
    std::error_code error;
    return !std::filesystem::exists(folder.Path() / "CASE", error);
}

} // namespace

TEST(FindInFolder, CaseOfTheNameDoesNotMatter) {
    const TemporaryFolder folder;
    if (!TellsCaseApart(folder))
        GTEST_SKIP() << "names here have no case";
    folder.Write("errortext.CSV", "");
    std::filesystem::create_directory(folder.Path() / "German");
    EXPECT_EQ(FindInFolder(folder.Path().string(), "ErrorText.csv"), folder / "errortext.CSV");
    EXPECT_EQ(FindInFolder(folder.Path().string() + "/", "GERMAN"), folder / "German");
}

TEST(FindInFolder, ExactNameIsPreferred) {
    const TemporaryFolder folder;
    if (!TellsCaseApart(folder))
        GTEST_SKIP() << "names here have no case";
    for (const char* name : {"eRROR.a", "erROR.a", "errOR.a", "erroR.a", "Error.a", "ERror.a", "ERRor.a"})
        folder.Write(name, "");
    EXPECT_EQ(FindInFolder(folder.Path().string(), "error.a"), folder / "ERRor.a");
    folder.Write("error.a", "");
    EXPECT_EQ(FindInFolder(folder.Path().string(), "error.a"), folder / "error.a");
}

TEST(FindInFolder, MissingNamesStayAsTheyAre) {
    const TemporaryFolder folder;
    folder.Write("fix.a.old", "");
    EXPECT_EQ(FindInFolder(folder.Path().string(), "fix.a"), folder / "fix.a");
    EXPECT_EQ(FindInFolder(folder / "missing", "fix.a"), folder / "missing/fix.a");
    EXPECT_EQ(FindInFolder(folder / "fix.a.old", "x"), folder / "fix.a.old/x");
    EXPECT_EQ(FindInFolder("", "fix.a"), "");
}

TEST(FindInFolder, NamesThatTheSystemRefusesDoNotThrow) {
    const TemporaryFolder folder;
    const std::string name(5000, 'x');
    EXPECT_EQ(FindInFolder(folder.Path().string(), name), folder / name);
    EXPECT_FALSE(LanguageFile(folder / name).Readable());
}

TEST(LanguageFile, LinesEndWithLfOrCrLf) {
    const TemporaryFolder folder;
    LanguageFile file(folder.Write("a.txt", "one\r\n\ntwo\nthree"));
    EXPECT_TRUE(file.Readable());
    EXPECT_THAT(LinesOf(file), ElementsAre("one", "", "two", "three"));
    EXPECT_TRUE(file.Readable());
    std::string_view line = "before";
    EXPECT_FALSE(file.ReadLine(line));
    EXPECT_EQ(line, "");
}

TEST(LanguageFile, TextIsWindows1252) {
    EXPECT_EQ(LanguageFileText("T\xFCr \x80 \x9F"), "Tür € Ÿ");
    EXPECT_EQ(LanguageFileText("\xC3\x9F"), "\u00C3\u0178");
}

TEST(LanguageFile, EmptyFileHasNoLines) {
    const TemporaryFolder folder;
    LanguageFile file(folder.Write("a.txt", ""));
    EXPECT_THAT(LinesOf(file), ElementsAre());
    EXPECT_TRUE(file.Readable());
}

TEST(LanguageFile, MissingFileAndFolderAreNotReadable) {
    const TemporaryFolder folder;
    std::vector<std::string> paths = NoFiles(folder);
    paths.insert(paths.end(), {folder / "missing", folder.Path().string(), std::string()});
    for (const std::string& path : paths) {
        LanguageFile file(path);
        EXPECT_FALSE(file.Readable()) << path;
        EXPECT_THAT(LinesOf(file), ElementsAre());
    }
}

TEST(LanguageFile, FileThatMayNotBeReadIsNotReadable) {
    NEEDS_PERMISSIONS();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "one");
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    std::filesystem::permissions(path, std::filesystem::perms::none);
    const OrdinaryUser user;
    ASSERT_TRUE(user.IsOrdinary());
    EXPECT_FALSE(LanguageFile(path).Readable());
}

TEST(LanguageFile, NulEndsItAsNotReadable) {
    const TemporaryFolder folder;
    using namespace std::string_view_literals;
    LanguageFile file(folder.Write("a.txt", "one\nt\0wo\nthree\n"sv));
    EXPECT_TRUE(file.Readable());
    EXPECT_THAT(LinesOf(file), ElementsAre("one"));
    EXPECT_FALSE(file.Readable());
    EXPECT_THAT(LinesOf(file), ElementsAre());
}

TEST(LanguageFile, TooLargeFileIsNotReadable) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "one\n");
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(LanguageFile::LargestSize));
    EXPECT_TRUE(LanguageFile(path).Readable());
    std::filesystem::resize_file(path, static_cast<std::uintmax_t>(LanguageFile::LargestSize) + 1);
    EXPECT_FALSE(LanguageFile(path).Readable());
}

TEST(LanguageFile, FileThatIsCutShortIsNotReadable) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", std::string(1000, 'x') + "\n");
    LanguageFile file(path);
    ASSERT_TRUE(file.Readable());
    std::filesystem::resize_file(path, 10);
    EXPECT_THAT(LinesOf(file), ElementsAre());
    EXPECT_FALSE(file.Readable());
}
