// SPDX-License-Identifier: MIT
#include "history/ExportLines.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

ExportLines Read(const std::string& path) {
    std::error_code error;
    ExportLines lines(path, error);
    EXPECT_FALSE(error) << path;
    return lines;
}

constexpr const char* Separator = "_________Mon Jan 04 2010____________\r\n";

} // namespace

TEST(ExportLines, HeadingUnfinishedLineAndLinesAreApart) {
    const TemporaryFolder folder;
    const ExportLines lines =
        Read(folder.Write("a.log", "Operation Logbook Version 1.0\r\nab\r\n\r\nc\nunfinished"));
    EXPECT_EQ(lines.LogbookForm(), ExportLines::Form::Operation);
    EXPECT_EQ(lines.Heading(), "Operation Logbook Version 1.0\r\n");
    ASSERT_EQ(lines.Count(), 3U);
    EXPECT_EQ(lines.FirstLine(), "ab\r\n");
    EXPECT_EQ(lines.Line(1), "\r\n");
    EXPECT_EQ(lines.Line(2), "c\n");
    EXPECT_EQ(lines.Begin(0), 31U);
    EXPECT_EQ(lines.Begin(3), 39U);
    EXPECT_EQ(lines.End(), 39U);
    EXPECT_EQ(lines.Size(), 49U);
}

TEST(ExportLines, FirstLineDecidesTheForm) {
    const TemporaryFolder folder;
    const auto form = [&](const std::string& text) {
        return Read(folder.Write("a.log", text)).LogbookForm();
    };
    const auto heading = [&](const std::string& text) { return Read(folder.Write("a.log", text)).Heading(); };
    EXPECT_EQ(form("ERR: a\r\n"), ExportLines::Form::Classic);
    EXPECT_EQ(heading("ERR: a\r\n"), "");
    EXPECT_EQ(form(std::string(Separator) + "Reset\r\n"), ExportLines::Form::Separated);
    EXPECT_EQ(heading(std::string(Separator) + "Reset\r\n"), Separator);
    // What is left of a separator line tells no date.
    EXPECT_EQ(form("______\r\nReset\r\n"), ExportLines::Form::Separated);
    EXPECT_EQ(heading("______\r\nReset\r\n"), "");
    EXPECT_EQ(form(""), ExportLines::Form::Classic);
    EXPECT_EQ(Read(folder.Write("a.log", "Operation Logbook Version 1.0")).Count(), 0U);
}

TEST(ExportLines, LinesLongerThanABlockAndManyLinesAreFound) {
    const TemporaryFolder folder;
    const std::string giant(700'000, 'x');
    std::string text = giant + "\r\n" + giant + "\r\n";
    for (int i = 0; i < 3000; ++i)
        text += std::to_string(i) + "\n";
    const ExportLines lines = Read(folder.Write("a.log", text));
    ASSERT_EQ(lines.Count(), 3002U);
    EXPECT_EQ(lines.Hash(0), lines.Hash(1));
    EXPECT_EQ(lines.Line(1), giant + "\r\n");
    for (const LineNumber i : {0U, 253U, 254U, 255U, 510U, 2999U})
        EXPECT_EQ(lines.Line(i + 2), std::to_string(i) + "\n");
    EXPECT_EQ(lines.Begin(3002), text.size());
}

TEST(ExportLines, SeparatorInForceIsTheLastOneBefore) {
    const TemporaryFolder folder;
    const std::string next = "_________Tue Jan 05 2010____________\r\n";
    const ExportLines lines = Read(folder.Write("a.log", std::string(Separator) + "a\r\n" + next + "b\r\n"));
    ASSERT_EQ(lines.Count(), 3U);
    EXPECT_EQ(lines.SeparatorBefore(0), Separator);
    EXPECT_EQ(lines.SeparatorBefore(1), Separator);
    EXPECT_EQ(lines.SeparatorBefore(2), next);
    EXPECT_EQ(Read(folder.Write("a.log", "a\r\n" + next)).SeparatorBefore(1), std::nullopt);
}

TEST(ExportLines, OnlyRegularFilesAreRead) {
    const TemporaryFolder folder;
    std::vector<std::string> names = NoFiles(folder);
    names.push_back(folder.Path().string());
    names.push_back(folder / "missing");
    for (const std::string& name : names) {
        std::error_code error;
        const ExportLines lines(name, error);
        EXPECT_TRUE(error) << name;
        EXPECT_EQ(lines.Count(), 0U);
    }
}

TEST(ExportLines, BytesAreComparedToTheirEnd) {
    const TemporaryFolder folder;
    const ExportLines one = Read(folder.Write("a.log", "12345"));
    const ExportLines other = Read(folder.Write("b.log", "0123456"));
    EXPECT_TRUE(AreSameBytes(one, 0, other, 1, 5));
    EXPECT_FALSE(AreSameBytes(one, 0, other, 1, 6)) << "one ends before";
    EXPECT_FALSE(AreSameBytes(one, 0, other, 0, 2));
    EXPECT_TRUE(AreSameBytes(one, 5, other, 7, 0));
}
