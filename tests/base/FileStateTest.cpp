// SPDX-License-Identifier: MIT
#include "base/FileState.h"

#include "support/Abilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(FileState, TellsAFileFromTheOneThatTakesItsPlace) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "one");
    const FileState before = StateOf(path);
    EXPECT_EQ(before.Size, 3);
    EXPECT_EQ(StateOf(path), before);
    // Of the same size and the same time.
    const std::string other = folder.Write("b", "two");
    std::filesystem::last_write_time(other, std::filesystem::last_write_time(path));
    std::filesystem::rename(other, path);
    EXPECT_NE(StateOf(path), before);
    EXPECT_EQ(StateOf(path).Seconds, before.Seconds);
    std::filesystem::create_symlink("a", folder / "link");
    EXPECT_EQ(StateOf(folder / "link"), StateOf(path));
    std::filesystem::remove(path);
    EXPECT_EQ(StateOf(path), FileState());
}
