// SPDX-License-Identifier: MIT
// Owners, pipes and limits, which a file has only here.
#include "base/AtomicFile.h"

#include "base/FileProblem.h"
#include "support/OddFiles.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <iterator>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::ptrdiff_t FilesBeside(const TemporaryFolder& folder) {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
}

} // namespace

TEST(AtomicFile, IsItsOwnersAloneUntilItIsInItsPlace) {
    using std::filesystem::perms;
    constexpr perms ForOwner = perms::owner_read | perms::owner_write;
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    for (const perms mode : {perms(0600), perms(0644), perms(0666)}) {
        std::filesystem::permissions(path, mode);
        AtomicFile file(path);
        EXPECT_EQ(std::filesystem::status(file.Path()).permissions(), ForOwner);
        EXPECT_FALSE(file.Commit());
        EXPECT_EQ(std::filesystem::status(path).permissions(), mode);
    }
    const mode_t before = umask(027);
    EXPECT_FALSE(AtomicFile(folder / "new.txt").Commit());
    EXPECT_EQ(umask(before), mode_t(027));
    EXPECT_EQ(std::filesystem::status(folder / "new.txt").permissions(), perms(0640));
}

TEST(AtomicFile, GroupOfTheFileStaysOrHasNoMoreThanAllOthers) {
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can give a file to any group";
    const TemporaryFolder folder;
    std::filesystem::permissions(folder.Path(), std::filesystem::perms::all);
    const std::string path = folder.Write("a.txt", "old");
    EXPECT_EQ(chown(path.c_str(), 0, 1), 0);
    std::filesystem::permissions(path, std::filesystem::perms(0660));
    EXPECT_FALSE(AtomicFile(path).Commit());
    struct stat status {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_gid, gid_t(1));
    EXPECT_EQ(status.st_mode & 07777U, 0660U);
    // This user is not in that group, so the file cannot stay its.
    const OrdinaryUser user;
    EXPECT_FALSE(AtomicFile(path).Commit());
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, status.st_gid == 1 ? 0660U : 0600U);
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
    EXPECT_EQ(FilesBeside(folder), 2);
}

TEST(AtomicFile, WhatCannotBeFlushedDoesNotTakeItsPlace) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.txt", "old");
    const pid_t child = fork();
    if (child == 0) {
        AtomicFile file(path);
        file.Stream() << "new";
        rlimit asManyAsBefore{};
        getrlimit(RLIMIT_NOFILE, &asManyAsBefore);
        const rlimit noMoreFiles{0, asManyAsBefore.rlim_max};
        const bool isLimited = setrlimit(RLIMIT_NOFILE, &noMoreFiles) == 0;
        const std::error_code error = file.Commit();
        // The sanitizers need files for what they look at in a comparison.
        setrlimit(RLIMIT_NOFILE, &asManyAsBefore);
        _exit(isLimited && error == std::errc::too_many_files_open ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    EXPECT_EQ(FileContent(path), "old");
}

TEST(AtomicFile, OnlyFilesAreRemoved) {
    const TemporaryFolder folder;
    const std::string name = folder / "a.txt.qorvix-part-0123456789abcde";
    std::filesystem::create_directory(name + "0");
    std::filesystem::create_symlink("a.txt", name + "1");
    MakePipe(folder, "a.txt.qorvix-part-0123456789abcde2");
    EXPECT_FALSE(AtomicFile(folder / "a.txt").Commit());
    EXPECT_EQ(FilesBeside(folder), 4);
}
