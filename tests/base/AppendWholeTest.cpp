// SPDX-License-Identifier: MIT
#include "base/AppendWhole.h"

#include "support/Abilities.h"
#include "support/OwnerAlone.h"
#include "support/SmallFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class AppendWholeTest : public testing::Test {
  protected:
    FileHandle Make(std::filesystem::path& name) const {
        name = Folder / "comments-XXXXXX";
        std::error_code error;
        FileHandle file = MakeFileToAppend(name, error);
        EXPECT_TRUE(file.IsOpen());
        EXPECT_FALSE(error) << error.message();
        return file;
    }

    TemporaryFolder Folder;
};

} // namespace

TEST_F(AppendWholeTest, AFileIsMadeForItsOwnerUnderANameOfItsOwn) {
    std::filesystem::path one;
    std::filesystem::path other;
    const FileHandle first = Make(one);
    const FileHandle second = Make(other);
    EXPECT_NE(one, other);
    EXPECT_TRUE(one.filename().string().starts_with("comments-"));
    EXPECT_TRUE(IsNameOf(one, first));
    EXPECT_FALSE(IsNameOf(other, first));
    EXPECT_TRUE(IsForOwnerAlone(one));
}

TEST_F(AppendWholeTest, NoFileWithoutItsFolder) {
    std::filesystem::path name = Folder / "missing/comments-XXXXXX";
    std::error_code error;
    EXPECT_FALSE(MakeFileToAppend(name, error).IsOpen());
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}

TEST_F(AppendWholeTest, PiecesFollowEachOther) {
    std::filesystem::path name;
    const FileHandle file = Make(name);
    EXPECT_FALSE(AppendWhole(file, "one\n"));
    EXPECT_FALSE(AppendWhole(file, ""));
    EXPECT_FALSE(AppendWhole(file, "two\n"));
    EXPECT_EQ(FileContent(name), "one\ntwo\n");
}

TEST_F(AppendWholeTest, APieceThatHasNoRoomLeavesNothingOfItself) {
    NEEDS_FILE_SIZE_LIMIT();
    std::filesystem::path name;
    const FileHandle file = Make(name);
    EXPECT_FALSE(AppendWhole(file, "one\n"));
    {
        const SmallFiles small(6);
        EXPECT_EQ(AppendWhole(file, "two\n"), std::errc::file_too_large);
    }
    EXPECT_EQ(FileContent(name), "one\n");
    EXPECT_FALSE(AppendWhole(file, "three\n"));
    EXPECT_EQ(FileContent(name), "one\nthree\n");
}
