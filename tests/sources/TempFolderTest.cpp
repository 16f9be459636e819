// SPDX-License-Identifier: MIT
#include "sources/TempFolder.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <memory>

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
        EXPECT_EQ(own.filename().string().size(), std::string("Qorvix-XXXXXX").size());
        EXPECT_TRUE(own.filename().string().starts_with("Qorvix-"));
        EXPECT_EQ(fs::status(own).permissions(), fs::perms::owner_all);
    }
    EXPECT_FALSE(fs::exists(own));
    EXPECT_EQ(FileContent(parent.Path() / "Qorvix/a.log"), "x");
}

TEST(TempFolder, LinkIsNotFollowed) {
    const TemporaryFolder parent;
    fs::create_directory(parent.Path() / "elsewhere");
    parent.Write("elsewhere/precious", "x");
    fs::create_symlink("elsewhere", parent.Path() / "Qorvix");
    {
        const TempFolder folder(parent.Path());
        EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-"));
    }
    EXPECT_EQ(FileContent(parent.Path() / "elsewhere/precious"), "x");
    EXPECT_TRUE(fs::is_symlink(parent.Path() / "Qorvix"));
}

TEST(TempFolder, FileInItsPlaceIsLeftAlone) {
    const TemporaryFolder parent;
    parent.Write("Qorvix", "x");
    const TempFolder folder(parent.Path());
    EXPECT_TRUE(folder.Path().filename().string().starts_with("Qorvix-"));
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
