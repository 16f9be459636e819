// SPDX-License-Identifier: MIT
#include "base/TextFile.h"

#include "base/FileProblem.h"
#include "support/Abilities.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;

constexpr TextFileBounds Wide{.File = 1U << 30U, .Line = 1U << 30U};

class TextFileTest : public testing::Test {
  protected:
    struct Content {
        Lines Read;
        std::error_code Error;
    };

    static Content ReadAll(const std::string& path, const TextFileBounds& bounds = Wide) {
        Content content;
        TextFile file(path, bounds);
        for (std::string_view line; file.ReadLine(line);)
            content.Read.emplace_back(line);
        std::string_view after;
        EXPECT_FALSE(file.ReadLine(after));
        content.Error = file.Error();
        return content;
    }

    Content Read(std::string_view text, const TextFileBounds& bounds = Wide) const {
        return ReadAll(Folder.Write("a.txt", text), bounds);
    }

    TemporaryFolder Folder;
};

} // namespace

TEST_F(TextFileTest, LinesEndWithOrWithoutCarriageReturn) {
    EXPECT_EQ(Read("").Read, Lines{});
    EXPECT_EQ(Read("\n").Read, Lines{""});
    EXPECT_EQ(Read("a").Read, Lines{"a"});
    EXPECT_EQ(Read("a\n").Read, Lines{"a"});
    EXPECT_EQ(Read("a\r\n\r\nb\n\nc\rd\r").Read, (Lines{"a", "", "b", "", "c\rd"}));
    EXPECT_EQ(Read(std::string("a\0b\n", 4)).Read, Lines{std::string("a\0b", 3)});
    EXPECT_FALSE(Read("a\n").Error);
}

TEST_F(TextFileTest, LinesOfAnyLengthAreWhole) {
    std::string text;
    Lines lines;
    for (const std::size_t length : {65535U, 65536U, 65534U, 1U, 0U, 65537U, 200000U, 131072U, 7U}) {
        lines.push_back(std::string(length, static_cast<char>('a' + lines.size())));
        text += lines.back() + (lines.size() % 2 == 0 ? "\n" : "\r\n");
    }
    EXPECT_TRUE(Read(text).Read == lines);
}

TEST_F(TextFileTest, BlocksOfAnySizeGiveTheSameLines) {
    const std::string path = Folder.Write("a.txt", "\r\na\r\n\nbc\rd\r\r\nefgh\r");
    for (std::size_t size = 0; size < 20; ++size) {
        TextFile file(path, Wide, size);
        Lines lines;
        for (std::string_view line; file.ReadLine(line);)
            lines.emplace_back(line);
        EXPECT_EQ(lines, (Lines{"", "a", "", "bc\rd\r", "efgh"})) << size;
    }
}

TEST_F(TextFileTest, TheLongestLineIsRead) {
    constexpr TextFileBounds Bounds{.File = 1000, .Line = 5};
    for (const char* end : {"\r\n", "\n", "\r", ""}) {
        const Content longest = Read(std::string("1\n12345") + end, Bounds);
        EXPECT_EQ(longest.Read, (Lines{"1", "12345"}));
        EXPECT_FALSE(longest.Error);
        const Content longer = Read(std::string("1\n123456") + end, Bounds);
        EXPECT_EQ(longer.Read, Lines{"1"});
        EXPECT_EQ(longer.Error, FileProblem::LineTooLong);
    }
}

TEST_F(TextFileTest, TheLongestLineMayLieInSeveralBlocks) {
    const std::string line(200000, 'x');
    const TextFileBounds bounds{.File = 1000000, .Line = line.size()};
    EXPECT_EQ(Read(line + "\r\n", bounds).Read.size(), 1U);
    EXPECT_EQ(Read(line + "x\n", bounds).Error, FileProblem::LineTooLong);
    EXPECT_EQ(Read(line + "xx\n", bounds).Error, FileProblem::LineTooLong);
}

TEST_F(TextFileTest, NothingIsReadOfAFileThatIsTooLarge) {
    constexpr TextFileBounds Bounds{.File = 6, .Line = 100};
    EXPECT_EQ(Read("1\n2\n3\n", Bounds).Read.size(), 3U);
    const Content larger = Read("1\n2\n3\n\n", Bounds);
    EXPECT_EQ(larger.Read, Lines{});
    EXPECT_EQ(larger.Error, FileProblem::TooLarge);
}

TEST_F(TextFileTest, AFileThatGrowsIsReadToItsBound) {
    const std::string line = std::string(1000, 'x') + "\n";
    const std::string path = Folder.Write("a.txt", line);
    TextFile file(path, {.File = 100000, .Line = 2000});
    std::ofstream more(path, std::ios::app);
    for (int i = 0; i < 200; ++i)
        more << line;
    more.close();
    std::size_t count = 0;
    for (std::string_view read; file.ReadLine(read); ++count) {
    }
    EXPECT_LE(count, 100U);
    EXPECT_EQ(file.Error(), FileProblem::TooLarge);
}

TEST_F(TextFileTest, WhatIsNoFileIsNotOpened) {
    for (const std::string& path : NoFiles(Folder)) {
        const Content content = ReadAll(path);
        EXPECT_EQ(content.Read, Lines{}) << path;
        EXPECT_EQ(content.Error, FileProblem::NoRegularFile) << path;
    }
    EXPECT_EQ(ReadAll(Folder.Path().string()).Error, std::errc::is_a_directory);
    EXPECT_EQ(ReadAll(Folder / "missing").Error, std::errc::no_such_file_or_directory);
    EXPECT_EQ(ReadAll(Folder.Write("a.txt", "") + "/b").Error, BehindAFile);
}

TEST_F(TextFileTest, ALinkToAFileIsFollowed) {
    NEEDS_LINKS();
    Folder.Write("a.txt", "text");
    std::filesystem::create_symlink("a.txt", Folder / "link");
    EXPECT_EQ(ReadAll(Folder / "link").Read, Lines{"text"});
}

TEST(TextFileRoom, EndsWhereReadingDoes) {
    TextFileRoom room({.File = 12, .Line = 5});
    EXPECT_EQ(room.Take("123456"), FileProblem::LineTooLong);
    room = TextFileRoom({.File = 12, .Line = 5});
    EXPECT_FALSE(room.Take("12345"));
    EXPECT_FALSE(room.Take("123"));
    EXPECT_EQ(room.Take(""), FileProblem::TooLarge);
}
