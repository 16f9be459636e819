// SPDX-License-Identifier: MIT
#include "logbook/AtomicFile.h"

#include "logbook/FileProblem.h"
#include "support/OddFiles.h"
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
    for (const char* left : {"a.txt.1234.part", "a.txt.5.part.Xy12Zz"})
        folder.Write(left, "half");
    const auto others = {"a.txt.part",     "a.txt.12.party", "a.txt.12a.part", "b.txt.12.part",
                         "a.txt.12.part1", "xa.txt.12.part", "a.txt..part"};
    for (const char* other : others)
        folder.Write(other, "precious");
    EXPECT_FALSE(AtomicFile(path).Commit());
    EXPECT_EQ(FilesIn(folder), 1 + std::ssize(others));
    for (const char* other : others)
        EXPECT_EQ(FileContent(folder / other), "precious") << other;
}

TEST(AtomicFile, WhatAnotherIsWritingStays) {
    const TemporaryFolder folder;
    const std::string path = folder / "a.txt";
    AtomicFile first(path);
    first.Stream() << "first";
    AtomicFile second(path);
    second.Stream() << "second";
    folder.Write("a.txt.1234.part", "half");
    { const AtomicFile third(path); }
    EXPECT_FALSE(second.Commit());
    EXPECT_FALSE(first.Commit());
    EXPECT_EQ(FileContent(path), "first");
}

TEST(AtomicFile, APipeIsNotReplaced) {
    const TemporaryFolder folder;
    const std::string pipe = MakePipe(folder, "pipe");
    std::filesystem::create_symlink("pipe", folder / "link");
    for (const std::string& path : {pipe, folder / "link"}) {
        AtomicFile file(path);
        file.Stream() << "new";
        EXPECT_TRUE(file.Path().empty());
        EXPECT_EQ(file.Commit(), FileProblem::NoRegularFile);
    }
    EXPECT_TRUE(std::filesystem::is_fifo(pipe));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link"));
    EXPECT_EQ(FilesIn(folder), 2);
}

TEST(AtomicFile, FailureIsToldWithItsReason) {
    const TemporaryFolder folder;
    AtomicFile file(folder / "no/such/folder.txt");
    file.Stream() << "new";
    EXPECT_EQ(file.Commit(), std::errc::no_such_file_or_directory);
}

TEST(AtomicFile, FollowsLinksToFilesThatAreMissing) {
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
    const TemporaryFolder folder;
    std::filesystem::create_symlink("b", folder.Path() / "a");
    std::filesystem::create_symlink("a", folder.Path() / "b");
    EXPECT_EQ(AtomicFile(folder / "a").Commit(), std::errc::too_many_symbolic_link_levels);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path() / "a"));
}

TEST(AtomicFile, FollowsLinksAndKeepsPermissions) {
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
