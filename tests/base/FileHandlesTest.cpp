// SPDX-License-Identifier: MIT
#include "base/FileHandles.h"

#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(FileHandles, AreClosedByTheirEnd) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "x");
    {
        const FileHandle file = OpenToHold(path);
        EXPECT_EQ(TryLock(file), LockOutcome::Held);
        EXPECT_EQ(TryLock(OpenToHold(path)), LockOutcome::InUse);
    }
    FileHandle file = OpenToHold(path);
    EXPECT_EQ(TryLock(file), LockOutcome::Held);
    FileHandle moved = std::move(file);
    EXPECT_EQ(TryLock(OpenToHold(path)), LockOutcome::InUse);
    moved.Close();
    EXPECT_FALSE(moved.IsOpen());
    EXPECT_EQ(TryLock(OpenToHold(path)), LockOutcome::Held);
}

TEST(FileHandles, FollowNoLinkAndWaitForNoPipe) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    folder.Write("a", "x");
    std::filesystem::create_symlink("a", folder / "link");
    EXPECT_FALSE(OpenToHold(folder / "link").IsOpen());
    EXPECT_FALSE(OpenToHold(folder / "missing").IsOpen());
    EXPECT_FALSE(std::filesystem::exists(folder / "missing"));
    EXPECT_FALSE(IsRegular(OpenToHold(MakePipe(folder, "pipe"))));
    EXPECT_FALSE(IsRegular(OpenToHold(folder.Path())));
    EXPECT_TRUE(IsRegular(OpenToHold(folder / "a")));
    EXPECT_FALSE(IsRegular(FileHandle()));
}

TEST(FileHandles, KnowTheirNames) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "x");
    const FileHandle file = OpenToHold(path);
    std::filesystem::create_symlink("a", folder / "link");
    EXPECT_TRUE(IsNameOf(path, file));
    EXPECT_FALSE(IsNameOf(folder / "link", file));
    std::filesystem::remove(path);
    EXPECT_FALSE(IsNameOf(path, file));
    folder.Write("a", "y");
    EXPECT_FALSE(IsNameOf(path, file));
    EXPECT_FALSE(IsNameOf(path, FileHandle()));
}

TEST(FileHandles, FirstBytesAreAsManyAsThereAre) {
    const TemporaryFolder folder;
    const FileHandle file = OpenToHold(folder.Write("a", "12345"));
    EXPECT_EQ(FirstBytes(file, 3), "123");
    EXPECT_EQ(FirstBytes(file, 5), "12345");
    EXPECT_EQ(FirstBytes(file, 6), "12345");
    EXPECT_EQ(FirstBytes(OpenToHold(folder.Write("empty", "")), 6), "");
    EXPECT_EQ(FirstBytes(FileHandle(), 6), "");
}
