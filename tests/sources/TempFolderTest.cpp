// SPDX-License-Identifier: MIT
#include "sources/TempFolder.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

#include <sys/wait.h>
#include <unistd.h>

namespace {
namespace fs = std::filesystem;
}

TEST(TempFolder, IsMadeForItsOwnerAndRemoved) {
    const TemporaryFolder parent;
    {
        const TempFolder folder(parent.Path());
        EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
        EXPECT_EQ(fs::status(folder.Path()).permissions(), fs::perms::owner_all);
        EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
        parent.Write("Qorvix/a.log", "x");
    }
    EXPECT_FALSE(fs::exists(parent.Path() / "Qorvix"));
}

TEST(TempFolder, WhatACrashedCopyLeftIsEmptiedAndUsed) {
    const TemporaryFolder parent;
    fs::create_directories(parent.Path() / "Qorvix/sub");
    parent.Write("Qorvix/a.log", "x");
    const TempFolder folder(parent.Path());
    EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
    EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(TempFolder, RunningCopyKeepsItsFolder) {
    const TemporaryFolder parent;
    const TempFolder first(parent.Path());
    parent.Write("Qorvix/a.log", "x");
    fs::path own;
    {
        const TempFolder second(parent.Path());
        own = second.Path();
        EXPECT_NE(own, first.Path());
        EXPECT_EQ(own.filename().string().size(), std::string("Qorvix-temp-XXXXXX").size());
        EXPECT_TRUE(own.filename().string().starts_with("Qorvix-temp-"));
        EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    }
    EXPECT_FALSE(fs::exists(own));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, WhatCopiesLeftThatCrashedBesideOthersIsRemoved) {
    const TemporaryFolder parent;
    const TempFolder first(parent.Path());
    const TempFolder second(parent.Path());
    for (const char* left : {"Qorvix-temp-AbCdEf", "Qorvix-backup"}) {
        fs::create_directory(parent.Path() / left);
        parent.Write(std::string(left) + "/a.log", "x");
    }
    parent.Write("Qorvix-temp-file", "x");
    const TempFolder third(parent.Path());
    EXPECT_FALSE(fs::exists(parent.Path() / "Qorvix-temp-AbCdEf"));
    EXPECT_TRUE(fs::exists(parent.Path() / "Qorvix-backup/a.log"));
    EXPECT_TRUE(fs::exists(parent.Path() / "Qorvix-temp-file"));
    for (const TempFolder* running : {&first, &second, &third})
        EXPECT_TRUE(fs::is_directory(running->MakeSubfolder()));
}

TEST(TempFolder, LinkIsNotFollowed) {
    const TemporaryFolder parent;
    fs::create_directory(parent.Path() / "elsewhere");
    parent.Write("elsewhere/precious", "x");
    fs::create_symlink("elsewhere", parent.Path() / "Qorvix");
    {
        const TempFolder folder(parent.Path());
        EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-temp-"));
    }
    EXPECT_EQ(FileContent(parent.Path() / "elsewhere/precious"), "x");
    EXPECT_TRUE(fs::is_symlink(parent.Path() / "Qorvix"));
}

TEST(TempFolder, FileInItsPlaceIsLeftAlone) {
    const TemporaryFolder parent;
    parent.Write("Qorvix", "x");
    const TempFolder folder(parent.Path());
    EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-temp-"));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix"), "x");
}

TEST(TempFolder, NoParentGivesNoFolder) {
    const TempFolder folder{std::filesystem::path()};
    EXPECT_TRUE(folder.Path().empty());
    EXPECT_FALSE(fs::exists("Qorvix"));
}

TEST(TempFolder, MissingParentGivesNoFolder) {
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path() / "missing");
    EXPECT_TRUE(folder.Path().empty());
    EXPECT_TRUE(folder.MakeSubfolder().empty());
}

TEST(TempFolder, RemovedFolderIsMadeAnew) {
    const TemporaryFolder parent;
    {
        const TempFolder folder(parent.Path());
        fs::remove(folder.Path());
        EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
        EXPECT_EQ(folder.Path(), parent.Path() / "Qorvix");
        // Held as the first was.
        EXPECT_NE(TempFolder(parent.Path()).Path(), folder.Path());
    }
    EXPECT_FALSE(fs::exists(parent.Path() / "Qorvix"));
}

TEST(TempFolder, FolderOfAnotherCopyIsNotTakenForTheRemovedOne) {
    const TemporaryFolder parent;
    auto first = std::make_unique<TempFolder>(parent.Path());
    fs::remove(first->Path());
    const TempFolder second(parent.Path());
    parent.Write("Qorvix/a.log", "x");
    EXPECT_EQ(second.Path(), parent.Path() / "Qorvix");
    const fs::path made = first->MakeSubfolder();
    EXPECT_TRUE(fs::is_directory(made));
    EXPECT_EQ(made.parent_path(), first->Path());
    EXPECT_NE(first->Path(), second.Path());
    first.reset();
    EXPECT_FALSE(fs::exists(made.parent_path()));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, EndLeavesTheFolderOfAnotherCopyAlone) {
    const TemporaryFolder parent;
    auto first = std::make_unique<TempFolder>(parent.Path());
    fs::remove(first->Path());
    const TempFolder second(parent.Path());
    parent.Write("Qorvix/a.log", "x");
    first.reset();
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, ParentThatComesBackGivesAFolder) {
    const TemporaryFolder parent;
    const TempFolder folder(parent.Path() / "missing");
    fs::create_directory(parent.Path() / "missing");
    EXPECT_TRUE(fs::is_directory(folder.MakeSubfolder()));
}

TEST(TempFolder, CopiesThatComeAndGoAlwaysHaveAFolder) {
    constexpr int Copies = 3;
    constexpr int Rounds = 2000;
    const TemporaryFolder parent;
    pid_t copies[Copies] = {};
    for (pid_t& copy : copies) {
        copy = fork();
        if (copy != 0)
            continue;
        int without = 0;
        for (int i = 0; i < Rounds; ++i) {
            const TempFolder folder(parent.Path());
            without += !fs::is_directory(folder.Path());
        }
        _exit(without == 0 ? 0 : 1);
    }
    for (const pid_t copy : copies) {
        int status = 0;
        waitpid(copy, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
    }
    EXPECT_TRUE(fs::is_empty(parent.Path()));
}
