// SPDX-License-Identifier: MIT
#include "logbook/clsFile.h"

#include "base/RunTimeError.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

// Every test runs with tiny blocks, so that each seam between blocks is hit, and with the real ones.
class clsFileTest : public testing::TestWithParam<std::size_t> {
  protected:
    void Open(std::string_view content) {
        ASSERT_TRUE(File.OpenFile(Folder.Write("a.log", content), clsFile::IfEmpty::StayOpen));
    }

    // The next line, and "+" or "-" for what ReadLine returned.
    std::string Next() {
        std::string_view line;
        const bool read = File.ReadLine(line);
        return std::string(line) + (read ? "+" : "-");
    }

    TemporaryFolder Folder;
    clsFile File{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(BlockSizes, clsFileTest, testing::Values(1, 2, 3, 5, 16, clsFile::DefaultBlockSize));

TEST_P(clsFileTest, LinesEndWithLineFeedOrFile) {
    Open("A\r\nB");
    EXPECT_EQ(Next(), "A+");
    EXPECT_FALSE(File.EndOfFile());
    EXPECT_EQ(Next(), "B+");
    EXPECT_TRUE(File.EndOfFile());
    EXPECT_EQ(File.LinesRead(), 1);
}

TEST_P(clsFileTest, EmptyLinesAreLines) {
    Open("A\n\nB\n");
    EXPECT_EQ(Next(), "A+");
    EXPECT_EQ(Next(), "+");
    EXPECT_EQ(Next(), "B+");
    EXPECT_TRUE(File.EndOfFile());
    EXPECT_EQ(Next(), "-");
    EXPECT_EQ(File.LinesRead(), 3);
}

TEST_P(clsFileTest, EmptyLastLineIsToldAsTheEnd) {
    Open("A\n\n");
    EXPECT_EQ(Next(), "A+");
    EXPECT_EQ(Next(), "-");
}

TEST_P(clsFileTest, CarriageReturnIsDroppedWhereverItStands) {
    Open("A\rB\n\r\r\nC\r\r\rD\r\n\rE\r");
    EXPECT_EQ(Next(), "AB+");
    EXPECT_EQ(Next(), "+");
    EXPECT_EQ(Next(), "CD+");
    EXPECT_EQ(Next(), "E+");
    EXPECT_TRUE(File.EndOfFile());
}

TEST_P(clsFileTest, AllBytesComeThrough) {
    std::string line;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\n' && byte != '\r')
            line += static_cast<char>(byte);
    Open(line + "\r\n" + line + line + "\n");
    EXPECT_EQ(Next(), line + "+");
    EXPECT_EQ(Next(), line + line + "+");
}

TEST_P(clsFileTest, SavedPositionGivesExactLookAhead) {
    Open("one\r\ntwo\r\nthree\r\nfour");
    EXPECT_EQ(Next(), "one+");
    File.SavePosition();
    EXPECT_EQ(Next(), "two+");
    EXPECT_EQ(Next(), "three+");
    EXPECT_EQ(Next(), "four+");
    for (int round = 0; round < 2; ++round) {
        File.RestoreSavedPosition();
        EXPECT_EQ(Next(), "two+");
    }
    EXPECT_EQ(Next(), "three+");
    File.SavePosition();
    EXPECT_EQ(Next(), "four+");
    File.RestoreSavedPosition();
    EXPECT_EQ(Next(), "four+");
}

TEST_P(clsFileTest, LinesReadIsNotRestored) {
    Open("a\nb\nc\n");
    File.SavePosition();
    Next();
    Next();
    File.RestoreSavedPosition();
    EXPECT_EQ(File.LinesRead(), 2);
    Next();
    EXPECT_EQ(File.LinesRead(), 3);
    File.RewindFile();
    EXPECT_EQ(File.LinesRead(), 3);
}

TEST_P(clsFileTest, RewindReadsFromTheFirstByte) {
    Open("a\nb\nc");
    Next();
    Next();
    File.RewindFile();
    EXPECT_EQ(Next(), "a+");
    EXPECT_EQ(Next(), "b+");
    EXPECT_EQ(Next(), "c+");
    File.RewindFile();
    EXPECT_EQ(Next(), "a+");
}

TEST_P(clsFileTest, LinesStayValidUntilTheyAreReleased) {
    std::string text;
    for (int i = 0; i < 50; ++i)
        text += "line " + std::to_string(i) + (i % 3 == 0 ? "\r\n" : i % 3 == 1 ? "\n" : "\r\r\n");
    Open(text);
    std::vector<std::string_view> lines(50);
    std::string_view passing;
    for (int i = 0; i < 50; ++i) {
        if (i % 4 == 3) {
            EXPECT_TRUE(File.ReadPassingLine(passing));
            EXPECT_EQ(passing, "line " + std::to_string(i));
        } else {
            EXPECT_TRUE(File.ReadLine(lines[static_cast<std::size_t>(i)]));
        }
        (void)File.NextLineStart();
    }
    for (int i = 0; i < 50; ++i)
        if (i % 4 != 3) {
            EXPECT_EQ(lines[static_cast<std::size_t>(i)], "line " + std::to_string(i));
        }
    File.ReleaseLines();
    EXPECT_FALSE(File.KeepsLines());
}

TEST_P(clsFileTest, PassingLinesKeepNoMemory) {
    Open(std::string(100, 'x') + "\n" + std::string(100, 'y') + "\r\n" + "z");
    std::string_view line;
    EXPECT_TRUE(File.ReadPassingLine(line));
    EXPECT_EQ(line, std::string(100, 'x'));
    EXPECT_TRUE(File.ReadPassingLine(line));
    EXPECT_EQ(line, std::string(100, 'y'));
    EXPECT_TRUE(File.ReadPassingLine(line));
    EXPECT_EQ(line, "z");
    EXPECT_FALSE(File.KeepsLines());
}

TEST_P(clsFileTest, NextLineStartConsumesNothing) {
    Open("one\r\n\r\nx\r\n\rab\n  y");
    const auto start = [&] { return std::string(File.NextLineStart()); };
    EXPECT_EQ(start(), "on");
    EXPECT_EQ(Next(), "one+");
    EXPECT_EQ(start(), "");
    EXPECT_EQ(start(), "");
    EXPECT_EQ(Next(), "+");
    EXPECT_EQ(start(), "x");
    EXPECT_EQ(Next(), "x+");
    EXPECT_EQ(start(), "ab");
    EXPECT_EQ(Next(), "ab+");
    EXPECT_EQ(start(), "  ");
    EXPECT_EQ(Next(), "  y+");
    EXPECT_EQ(start(), "");
    EXPECT_EQ(File.LinesRead(), 4);
}

TEST(clsFileMemory, BlockOfAKeptLineIsKeptBehindAPassingLine) {
    const TemporaryFolder folder;
    clsFile file(8);
    ASSERT_TRUE(
        file.OpenFile(folder.Write("a.log", "a\nb\nxxxxxxxxxxxxxxxx\nc\n"), clsFile::IfEmpty::StayOpen));
    std::string_view line;
    file.ReadLine(line); // the first block is read for it
    file.ReleaseLines();
    std::string_view kept;
    EXPECT_TRUE(file.ReadLine(kept));
    EXPECT_FALSE(file.KeepsLines()) << "it lies in the block that is read from";
    EXPECT_TRUE(file.ReadPassingLine(line));
    EXPECT_TRUE(file.KeepsLines());
    EXPECT_EQ(kept, "b");
}

// The chunk sizes that the position speaks of, seen at each byte.
std::vector<int> ChunkSizes(clsFile& file) {
    std::vector<int> sizes;
    std::string_view line;
    while (!file.EndOfFile()) {
        file.ReadLine(line);
        if (file.BufferLeft() == 0)
            sizes.push_back(file.BufferSize());
    }
    return sizes;
}

TEST_P(clsFileTest, NextAtHandIsTheNextLinesBegin) {
    Open("a1\r\n b2\n\r\n\nc3");
    for (const std::string_view line : {"a1", " b2", "", "", "c3"}) {
        if (const char* const next = File.NextAtHand(); next != nullptr) {
            EXPECT_EQ(std::string_view(next, 1), line.substr(0, 1));
        }
        std::string_view read;
        File.ReadLine(read);
        EXPECT_EQ(read, line);
    }
    EXPECT_EQ(File.NextAtHand(), nullptr);
}

TEST_P(clsFileTest, FileIsReadInChunksThatKeepTheirSizeAfterRewind) {
    Open(std::string(5000, '\n'));
    EXPECT_EQ(ChunkSizes(File), (std::vector{2048, 2048, 904}));
    File.RewindFile();
    EXPECT_EQ(ChunkSizes(File), (std::vector{904, 904, 904, 904, 904, 480}));
}

TEST_P(clsFileTest, CurrentPositionIsAChunkAhead) {
    std::string text = "first\n";
    text.resize(10000, 'x');
    Open(text);
    EXPECT_EQ(File.CurrentPosition(), 1 + 2048);
    Next();
    EXPECT_EQ(File.CurrentPosition(), 6 + 1 + 2048);
    EXPECT_EQ(File.FileLeft(), 9994);
    EXPECT_EQ(File.BufferLeft(), 2042);
    Next();
    EXPECT_EQ(File.CurrentPosition(), 10000 + 1 + 10000 % 2048);
}

TEST_P(clsFileTest, RestoringBeforeTheLastChunkRestoresItsSize) {
    Open(std::string(3000, '\n'));
    File.SavePosition();
    EXPECT_EQ(ChunkSizes(File), (std::vector{2048, 952}));
    File.RestoreSavedPosition();
    EXPECT_EQ(ChunkSizes(File), (std::vector{2048, 952}));
}

TEST_P(clsFileTest, FileThatBecameShorterIsARunTimeError) {
    Open(std::string(600000, 'x'));
    std::filesystem::resize_file(Folder / "a.log", 10);
    EXPECT_THROW(Next(), RunTimeError);
}

TEST(clsFileOpening, MissingFileIsFalse) {
    const TemporaryFolder folder;
    EXPECT_FALSE(clsFile().OpenFile(folder / "missing.log", clsFile::IfEmpty::Close));
    EXPECT_FALSE(clsFile().OpenFile("", clsFile::IfEmpty::Close));
}

TEST(clsFileOpening, FolderIsFalse) {
    const TemporaryFolder folder;
    EXPECT_FALSE(clsFile().OpenFile(folder.Path().string(), clsFile::IfEmpty::Close));
}

TEST(clsFileOpening, EmptyFileIsFalseOnlyWhereItShallBeClosed) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("empty.log", "");
    EXPECT_FALSE(clsFile().OpenFile(path, clsFile::IfEmpty::Close));
    clsFile file;
    EXPECT_TRUE(file.OpenFile(path, clsFile::IfEmpty::StayOpen));
    EXPECT_TRUE(file.EndOfFile());
    std::string_view line;
    EXPECT_FALSE(file.ReadLine(line));
    EXPECT_EQ(line, "");
}

TEST(clsFileOpening, AnObjectOpensOneFileOnly) {
    const TemporaryFolder folder;
    const std::string path = folder.Write("a.log", "x");
    clsFile file;
    EXPECT_TRUE(file.OpenFile(path, clsFile::IfEmpty::Close));
    EXPECT_FALSE(file.OpenFile(path, clsFile::IfEmpty::Close));
    std::string_view line;
    EXPECT_TRUE(file.ReadLine(line));
    file.CloseFile();
    EXPECT_FALSE(file.OpenFile(path, clsFile::IfEmpty::Close));
}

} // namespace
