// SPDX-License-Identifier: MIT
#include "base/PartFiles.h"
#include "support/Abilities.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

TEST(PartFiles, WritingTouchesTheFileItselfAndItsPartFiles) {
    NEEDS_LINKS();
    const TemporaryFolder folder;
    const std::string target = folder.Write("a.log", "a");
    const std::string part = folder.Write("a.log.qorvix-part-0123456789abcdef", "b");
    const std::string other = folder.Write("b.log", "b");
    std::filesystem::create_symlink(target, folder / "link.log");
    std::filesystem::create_directory(folder / "sub");
    EXPECT_TRUE(WritingTouches(target, target));
    EXPECT_TRUE(WritingTouches(target, folder / "sub/../a.log"));
    EXPECT_TRUE(WritingTouches(folder / "link.log", target));
    EXPECT_TRUE(WritingTouches(target, part));
    EXPECT_TRUE(WritingTouches(folder / "link.log", folder / "sub/../a.log.qorvix-part-0123456789abcdef"));
    EXPECT_FALSE(WritingTouches(target, other));
    EXPECT_FALSE(WritingTouches(other, part));
    EXPECT_FALSE(WritingTouches(folder / "sub/a.log", part));
    EXPECT_FALSE(WritingTouches(folder / "new.log", target));
    std::filesystem::remove(target);
    EXPECT_TRUE(WritingTouches(target, part));
}
