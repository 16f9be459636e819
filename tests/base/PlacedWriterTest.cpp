// SPDX-License-Identifier: MIT
#include "base/PlacedWriter.h"

#include "support/Abilities.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

TEST(PlacedWriter, WritesWhereItIsTold) {
    const TemporaryFolder folder;
    std::error_code error;
    PlacedWriter file(folder / "a", error);
    ASSERT_TRUE(file.IsOpen());
    EXPECT_FALSE(error) << error.message();
    std::int64_t place = 0;
    EXPECT_FALSE(file.Write("12345", place));
    EXPECT_EQ(place, 5);
    place = 1;
    EXPECT_FALSE(file.Write("ab", place));
    EXPECT_EQ(place, 3);
    EXPECT_EQ(FileContent(folder / "a"), "1ab45");
    EXPECT_EQ(file.Size(error), 5U);
    EXPECT_FALSE(error) << error.message();
}

TEST(PlacedWriter, KeepsTheFileThatIsThere) {
    NEEDS_PERMISSIONS();
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "old");
    std::filesystem::permissions(path, std::filesystem::perms{0640});
    std::error_code error;
    PlacedWriter file(path, error);
    EXPECT_EQ(FileContent(path), "old");
    EXPECT_EQ(std::filesystem::status(path).permissions(), std::filesystem::perms{0640});
    EXPECT_FALSE(file.Empty());
    EXPECT_EQ(FileContent(path), "");
    PlacedWriter(folder / "new", error);
    EXPECT_EQ(std::filesystem::status(folder / "new").permissions(), std::filesystem::perms{0600});
}

TEST(PlacedWriter, TellsWhatFails) {
    NEEDS_FILE_SIZE_LIMIT();
    const TemporaryFolder folder;
    std::error_code error;
    EXPECT_FALSE(PlacedWriter(folder.Path(), error).IsOpen());
    EXPECT_EQ(error, std::errc::is_a_directory);
    PlacedWriter closed;
    EXPECT_EQ(closed.Empty(), std::errc::bad_file_descriptor);
    EXPECT_EQ(closed.Size(error), 0U);
    EXPECT_EQ(error, std::errc::bad_file_descriptor);
    PlacedWriter file(folder / "a", error);
    const SmallFiles small(4);
    std::int64_t place = 0;
    EXPECT_EQ(file.Write("123456", place), std::errc::file_too_large);
    EXPECT_EQ(place, 4);
}
