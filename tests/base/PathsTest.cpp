// SPDX-License-Identifier: MIT
#include "base/Paths.h"

#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>

TEST(SplitPath, KnowsBothSeparators) {
    const auto split = [](std::string_view path) {
        std::string folder;
        std::string fileName;
        SplitPath(path, folder, fileName);
        return folder + "|" + fileName;
    };
    EXPECT_EQ(split("C:\\a\\b.log"), "C:\\a\\|b.log");
    EXPECT_EQ(split("b.log"), "|b.log");
    EXPECT_EQ(split("/home/user/b.log"), "/home/user/|b.log");
    EXPECT_EQ(split("a/b\\c"), "a/b\\|c");
    EXPECT_EQ(split("a/"), "a/|");
    EXPECT_EQ(split(""), "|");
}

TEST(ItemsIn, AreWhatLiesInAFolder) {
    const TemporaryFolder folder;
    folder.Write("b.log", "x");
    std::filesystem::create_directory(folder / "a");
    std::vector<std::filesystem::path> items = ItemsIn(folder.Path());
    std::sort(items.begin(), items.end());
    EXPECT_EQ(items, (std::vector<std::filesystem::path>{folder / "a", folder / "b.log"}));
    EXPECT_TRUE(ItemsIn(folder / "missing").empty());
    EXPECT_TRUE(ItemsIn(folder / "b.log").empty());
    std::error_code error = std::make_error_code(std::errc::io_error);
    EXPECT_EQ(ItemsIn(folder.Path(), error).size(), 2U);
    EXPECT_FALSE(error);
    EXPECT_TRUE(ItemsIn(folder / "missing", error).empty());
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST(FileExists, MeansThatItCanBeRead) {
    const TemporaryFolder folder;
    EXPECT_TRUE(FileExists(folder.Write("a.log", "x")));
    EXPECT_TRUE(FileExists(folder.Write("empty.log", "")));
    EXPECT_TRUE(FileExists(folder.Write("\xC3\xBC \xE2\x82\xAC.log", "")));
    EXPECT_FALSE(FileExists(folder / "missing.log"));
    EXPECT_FALSE(FileExists(folder.Path().string()));
    EXPECT_FALSE(FileExists(""));
}

TEST(FileExists, IsNotSaidOfWhatIsNoFile) {
    const TemporaryFolder folder;
    for (const std::string& path : NoFiles(folder))
        EXPECT_FALSE(FileExists(path)) << path;
}

TEST(ChangeExtension, ReplacesWhatFollowsTheLastDot) {
    EXPECT_EQ(ChangeExtension("lb.act.log", ".qorvix"), "lb.act.qorvix");
    EXPECT_EQ(ChangeExtension("logbook", ".qorvix"), "logbook.qorvix");
    EXPECT_EQ(ChangeExtension("/a.b/logbook", ".qorvix"), "/a.b/logbook.qorvix");
    EXPECT_EQ(ChangeExtension("C:\\a.b\\x.log", ".fil"), "C:\\a.b\\x.fil");
}
