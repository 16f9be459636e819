// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "support/Abilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <iterator>

namespace {

std::ptrdiff_t FilesIn(const TemporaryFolder& folder) {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
}

} // namespace

TEST(AtomicFile, ReplacesTheFileOnCommit) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    AtomicFile file(path);
    file.Stream() << "new";
    file.Stream().flush();
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(FilesIn(folder), 1);
}

TEST(AtomicFile, WithoutCommitNothingChanges) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    { AtomicFile(path).Stream() << "new"; }
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(FilesIn(folder), 1);
}

TEST(AtomicFile, MayBeWrittenByItsPath) {
    NEEDS_REMOVING_OPEN_FILES();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    AtomicFile file(path);
    // As a library does that replaces the file itself.
    folder.Write("other", "new");
    std::filesystem::rename(folder / "other", file.Path());
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(FilesIn(folder), 1);
    EXPECT_TRUE(AtomicFile(folder / "no/such/folder.txt").Path().empty());
}

TEST(AtomicFile, WhatAKilledProgramLeftIsRemoved) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    folder.Write("a.txt.qorvix-part-0123456789abcdef", "half");
    const auto others = {"a.txt.1234.part",
                         "a.txt.qorvix-part-",
                         "a.txt.qorvix-part-0123456789abcde",
                         "a.txt.qorvix-part-0123456789abcdef0",
                         "a.txt.qorvix-part-0123456789abcdef.bak",
                         "b.txt.qorvix-part-0123456789abcdef",
                         "xa.txt.qorvix-part-0123456789abcdef"};
    for (const char* other : others)
        folder.Write(other, "precious");
    EXPECT_FALSE(AtomicFile(path).Commit());
    EXPECT_EQ(FilesIn(folder), 1 + std::ssize(others));
    for (const char* other : others)
        EXPECT_EQ(FileContent(folder / other), "precious") << other;
}

TEST(AtomicFile, NameInOtherCaseIsNoneOfAPartFile) {
    NEEDS_NAMES_WITH_CASE();
    const TemporaryFolder folder;
    const std::string other = folder.Write("a.txt.qorvix-part-0123456789abcdeF", "precious");
    EXPECT_FALSE(AtomicFile(folder / "a.txt").Commit());
    EXPECT_EQ(FileContent(other), "precious");
}

TEST(AtomicFile, LongestNameHasAPartFileToo) {
    const TemporaryFolder folder;
    const std::string path = folder / std::string(255, 'x');
    folder.Write(std::string(200, 'x') + ".qorvix-part-0123456789abcdef", "half");
    EXPECT_FALSE(AtomicFile(path).Commit());
    EXPECT_TRUE(std::filesystem::is_regular_file(path));
    EXPECT_EQ(FilesIn(folder), 1);
}

TEST(AtomicFile, WhatAnotherIsWritingStays) {
    const TemporaryFolder folder;
    const std::string path = folder / "a.txt";
    AtomicFile first(path);
    first.Stream() << "first";
    AtomicFile second(path);
    second.Stream() << "second";
    folder.Write("a.txt.qorvix-part-0123456789abcdef", "half");
    { const AtomicFile third(path); }
    EXPECT_EQ(FilesIn(folder), 2);
    EXPECT_FALSE(second.Commit());
    EXPECT_FALSE(first.Commit());
    EXPECT_EQ(FileContent(path), "first");
}

TEST(AtomicFile, FailureIsToldWithItsReason) {
    const TemporaryFolder folder;
    AtomicFile file(folder / "no/such/folder.txt");
    file.Stream() << "new";
    EXPECT_EQ(file.Commit(), std::errc::no_such_file_or_directory);
}

TEST(AtomicFile, FollowsLinksToFilesThatAreMissing) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    std::filesystem::create_symlink("second", folder.Path() / "first");
    std::filesystem::create_symlink("a.txt", folder.Path() / "second");
    AtomicFile file(folder / "first");
    file.Stream() << "new";
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(FileContent(folder / "a.txt"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "second"));
}

TEST(AtomicFile, LinksInACircleAreAnError) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.Path() / "a");
    std::filesystem::create_symlink("a", folder.Path() / "b");
    EXPECT_EQ(AtomicFile(folder / "a").Commit(), std::errc::too_many_symbolic_link_levels);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "a"));
}

TEST(AtomicFile, FollowsLinksAndKeepsPermissions) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    std::filesystem::permissions(path, std::filesystem::perms(0640));
    std::filesystem::create_symlink("a.txt", folder.Path() / "link");
    AtomicFile file(folder / "link");
    file.Stream() << "new";
    EXPECT_FALSE(file.Commit());
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "link"));
    EXPECT_EQ(FileContent(path), "new");
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms(0640));
}

TEST(AtomicFile, FollowsAsManyLinksAsTheSystemDoes) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const auto name = [](int number) { return "link" + std::to_string(number); };
    std::filesystem::create_symlink("a.txt", folder.Path() / name(1));
    for (int number = 2; number <= 41; ++number)
        std::filesystem::create_symlink(name(number - 1), folder.Path() / name(number));
    AtomicFile file(folder / name(40));
    file.Stream() << "new";
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(FileContent(folder / "a.txt"), "new");
    EXPECT_EQ(AtomicFile(folder / name(41)).Commit(), std::errc::too_many_symbolic_link_levels);
}
