// SPDX-License-Identifier: MIT
#include "comments/Comments.h"

#include "base/FileProblem.h"
#include "support/EntriesFrom.h"
#include "support/LittleMemory.h"
#include "support/OddFiles.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Outcome = CommentsFileResult::Outcome;
using Comments = std::map<EntryNumber, std::string>;

class CommentsTest : public testing::Test {
  protected:
    CommentsTest() { FillTable(Entries, std::vector<TestEntry>(100, {EventTypes::Info, "a", "", ""})); }

    // The comments that a file with this content gives; they are taken off the entries again.
    Comments Read(const std::string& content, const CodePage& codePage = CodePage()) {
        EXPECT_EQ(CommentLogbook(Folder.Write("a.cmt", content), Entries, codePage).Result, Outcome::Read);
        Comments comments = Entries.Comments();
        for (const auto& comment : comments)
            Entries.SetComment(comment.first, "");
        return comments;
    }

    std::string Saved(const CodePage& codePage = CodePage()) {
        EXPECT_FALSE(SaveComments(Folder / "a.cmt", Entries, codePage));
        return FileContent(Folder / "a.cmt");
    }

    TemporaryFolder Folder;
    EntryTable Entries;
};

} // namespace

TEST_F(CommentsTest, FileHasALineForEachComment) {
    Entries.SetComment(40, "oil, filter");
    Entries.SetComment(0, "first");
    Entries.SetComment(12, "pump \"A\"");
    Entries.SetComment(99, "K\xC3\xBChlung");
    Entries.SetComment(50, "ends with a blank ");
    Entries.SetComment(51, " begins with one");
    Entries.SetComment(3, "removed");
    Entries.SetComment(3, "");
    EXPECT_EQ(Saved(), "[Comments]\r\n"
                       " 0 first\r\n"
                       " 12 \"pump \"\"A\"\"\"\r\n"
                       " 40 \"oil, filter\"\r\n"
                       " 50 \"ends with a blank \"\r\n"
                       " 51 \" begins with one\"\r\n"
                       " 99 K\xFChlung\r\n");
}

TEST_F(CommentsTest, WithoutCommentsTheFileIsItsFirstLine) {
    EXPECT_EQ(Saved(), "[Comments]\r\n");
    EXPECT_EQ(Read("[Comments]\r\n"), Comments{});
}

TEST_F(CommentsTest, EveryCommentComesBackAsItWas) {
    const char* const texts[] = {"text",
                                 "a, b",
                                 ",",
                                 "\"",
                                 "\"\"",
                                 "\"a\" b",
                                 "a \"b\"",
                                 " a",
                                 "a ",
                                 " ",
                                 "  ",
                                 "a\tb",
                                 "\ta\t",
                                 "12",
                                 " 12 text",
                                 "line | next",
                                 "'a'",
                                 "a,\"b\",",
                                 "100% = \\n;#",
                                 "[Comments]",
                                 "K\xC3\xBChlung \xE2\x82\xAC"};
    Comments comments;
    EntryNumber number = 7;
    for (const char* text : texts)
        comments[number += 3] = text;
    for (const auto& [entry, text] : comments)
        Entries.SetComment(entry, text);
    EXPECT_EQ(Read(Saved()), comments);
}

TEST_F(CommentsTest, AnyBytesOfAnyCodePageComeBack) {
    constexpr std::string_view Frequent = " ,\"|a";
    std::mt19937 random(1);
    for (const char* locale : {"en_US", "cs_CZ", "ru_RU", "el_GR", "tr_TR", "lt_LT"}) {
        const CodePage codePage = CodePage::ForLocale(locale);
        for (EntryNumber number = 0; number < Entries.Count(); ++number) {
            std::string bytes;
            for (std::size_t length = random() % 12; bytes.size() < length;) {
                const char byte = random() % 2 == 0 ? Frequent[random() % Frequent.size()]
                                                    : static_cast<char>(random() % 256);
                if (byte != '\r' && byte != '\n')
                    bytes += byte;
            }
            Entries.SetComment(number, codePage.ToUtf8(bytes));
        }
        const Comments before = Entries.Comments();
        EXPECT_TRUE(CommentsThatLose(Entries, codePage).empty());
        EXPECT_EQ(Read(Saved(codePage), codePage), before) << locale;
    }
}

TEST_F(CommentsTest, FilesOfOtherWritersAreRead) {
    const std::pair<const char*, const char*> lines[] = {
        {"12 text", "text"},       {" 12 text of more words", "text of more words"},
        {"  12   text", "text"},   {"12,text", "text"},
        {" 12 ,text", "text"},     {" 12 , text", "text"},
        {"12,\"a, b\"", "a, b"},   {"12\"text\"", "text"},
        {"012 text", "text"},      {"12 a, b", "a"},
        {"12 \"a\" b", "a"},       {"12 \"a\"\"b\" c", "a\"b"},
        {"12 \"\"", ""},           {"12 \"no closing quote, but a comma", "no closing quote, but a comma"},
        {"12 a \"b\"", "a \"b\""}, {"12 K\xFChlung", "K\xC3\xBChlung"},
        {"12 text ", "text "},
    };
    for (const auto& [line, text] : lines) {
        const Comments expected = *text == '\0' ? Comments{} : Comments{{12, text}};
        EXPECT_EQ(Read(std::string("[Comments]\r\n") + line + "\r\n"), expected) << line;
    }
}

TEST_F(CommentsTest, LinesMayEndWithLineFeedOrNotAtAll) {
    EXPECT_EQ(Read("[Comments]\n 1 a\n 2 b"), (Comments{{1, "a"}, {2, "b"}}));
}

TEST_F(CommentsTest, DamagedLinesArePassedOver) {
    EXPECT_EQ(Read("[Comments]\r\n"
                   " 1 a\r\n"
                   "\r\n"
                   "no number\r\n"
                   "2nd text\r\n"
                   "2.5 text\r\n"
                   ", text\r\n"
                   "\"3\" text\r\n"
                   " 4\r\n"
                   "[Comments]\r\n"
                   "\x01\x02\x03\r\n"
                   " 5 b\r\n"),
              (Comments{{1, "a"}, {5, "b"}}));
}

TEST_F(CommentsTest, NumbersWithoutAnEntryAreSkippedInSilence) {
    EXPECT_EQ(Read("[Comments]\r\n"
                   " 99 last\r\n"
                   " 100 a\r\n"
                   "-1 a\r\n"
                   " 4294967296 a\r\n"
                   " 99999999999999999999999999 a\r\n"
                   "-99999999999999999999999999 a\r\n"),
              (Comments{{99, "last"}}));
}

TEST_F(CommentsTest, LaterLineOfAnEntryCounts) {
    EXPECT_EQ(Read("[Comments]\r\n 1 a\r\n 1 b\r\n"), (Comments{{1, "b"}}));
}

TEST_F(CommentsTest, EntriesThatTheFileDoesNotNameKeepTheirComments) {
    Entries.SetComment(1, "old");
    Entries.SetComment(2, "old");
    EXPECT_EQ(Read("[Comments]\r\n 2 new\r\n"), (Comments{{1, "old"}, {2, "new"}}));
}

TEST_F(CommentsTest, OtherFirstLineIsNoCommentsFile) {
    for (const char* content :
         {"\r\n", "[comments]\r\n 1 a\r\n", "[Comments] \r\n 1 a\r\n", " 1 a\r\n", "[Filters]\r\n"}) {
        const std::string path = Folder.Write("b.cmt", content);
        const CommentsFileResult result = CommentLogbook(path, Entries, CodePage());
        EXPECT_EQ(result.Result, Outcome::NoHeader) << content;
        EXPECT_TRUE(Entries.Comments().empty()) << content;
        for (const std::int32_t language : {Language::English, Language::German})
            EXPECT_EQ(CommentsFileMessage(path, result, {language}), "File includes no comment information!");
    }
}

TEST_F(CommentsTest, EmptyFileHasNoComments) { EXPECT_EQ(Read(""), Comments{}); }

TEST_F(CommentsTest, FileThatCannotBeReadIsTold) {
    const std::string missing = Folder / "missing.cmt";
    const CommentsFileResult result = CommentLogbook(missing, Entries, CodePage());
    EXPECT_EQ(result.Result, Outcome::CannotRead);
    EXPECT_EQ(CommentsFileMessage(missing, result, {Language::English}),
              "Cannot read comments file (" + missing + ": No such file or directory)");
    EXPECT_EQ(CommentsFileMessage(missing, result, {Language::German}),
              "Kommentardatei kann nicht gelesen werden (" + missing + ": Datei oder Ordner nicht gefunden)");
    EXPECT_EQ(CommentLogbook(Folder.Path().string(), Entries, CodePage()).Error, std::errc::is_a_directory);
}

TEST_F(CommentsTest, FileIsInTheCodePageOfTheUser) {
    const CodePage czech = CodePage::ForLocale("cs_CZ.UTF-8");
    Entries.SetComment(1, "\xC5\x99"); // r with caron
    EXPECT_EQ(Saved(czech), "[Comments]\r\n 1 \xF8\r\n");
    EXPECT_EQ(Read(Saved(czech), czech), (Comments{{1, "\xC5\x99"}}));
}

TEST_F(CommentsTest, WhatTheCodePageLacksIsKnownBeforehand) {
    Entries.SetComment(1, "a\xC3\xA4");
    Entries.SetComment(5, "\xC5\x99");
    Entries.SetComment(9, "\xE6\x97\xA5, \xE6\x9C\xAC");
    EXPECT_EQ(CommentsThatLose(Entries, CodePage()), (std::vector<EntryNumber>{5, 9}));
    EXPECT_EQ(Saved(), "[Comments]\r\n 1 a\xE4\r\n 5 ?\r\n 9 \"?, ?\"\r\n");
}

TEST_F(CommentsTest, LineBreaksDoNotEndALine) {
    Entries.SetComment(1, "a\r\nb\nc\rd");
    EXPECT_EQ(Read(Saved()), (Comments{{1, "a | b | c | d"}}));
}

TEST_F(CommentsTest, FailedSaveLeavesTheFileAsItWas) {
    EXPECT_EQ(SaveComments(Folder / "no/such/a.cmt", Entries, CodePage()),
              std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(Folder / "folder.cmt");
    EXPECT_EQ(SaveComments(Folder / "folder.cmt", Entries, CodePage()), std::errc::is_a_directory);
}

TEST_F(CommentsTest, WhatIsNoFileIsNotOpened) {
    for (const std::string& path : NoFiles(Folder)) {
        const CommentsFileResult result = CommentLogbook(path, Entries, CodePage());
        EXPECT_EQ(result.Result, Outcome::CannotRead);
        EXPECT_EQ(result.Error, FileProblem::NoRegularFile);
        EXPECT_EQ(CommentsFileMessage(path, result, {Language::German}),
                  "Kommentardatei kann nicht gelesen werden (" + path + ": keine gewöhnliche Datei)");
    }
}

TEST_F(CommentsTest, LongCommentsComeBack) {
    Entries.SetComment(3, std::string(700000, '"') + std::string(700000, ','));
    Entries.SetComment(4, std::string(CommentsFileBounds.Line - 3, 'x'));
    const Comments before = Entries.Comments();
    EXPECT_TRUE(Read(Saved()) == before);
}

TEST_F(CommentsTest, LineBeyondTheBoundEndsTheFile) {
    const std::string path = Folder.Write(
        "long.cmt", "[Comments]\r\n 1 a\r\n 2 " + std::string(CommentsFileBounds.Line, 'x') + "\r\n 3 c\r\n");
    const CommentsFileResult result = CommentLogbook(path, Entries, CodePage());
    EXPECT_EQ(result.Result, Outcome::CannotRead);
    EXPECT_EQ(CommentsFileMessage(path, result, {Language::English}),
              "Cannot read comments file (" + path + ": a line is too long)");
    EXPECT_EQ(Entries.Comments(), (Comments{{1, "a"}}));
}

TEST_F(CommentsTest, FileBeyondTheBoundIsNotRead) {
    const std::string path = Folder.Write("large.cmt", "[Comments]\r\n 1 a\r\n");
    std::filesystem::resize_file(path, CommentsFileBounds.File + 1);
    EXPECT_EQ(CommentLogbook(path, Entries, CodePage()).Error, FileProblem::TooLarge);
    EXPECT_EQ(Entries.Comments(), Comments{});
}

TEST_F(CommentsTest, CommentThatCouldNotBeReadAgainIsNotSaved) {
    const std::string path = Folder.Write("a.cmt", "old");
    Entries.SetComment(4, std::string(CommentsFileBounds.Line - 2, 'x'));
    EXPECT_EQ(SaveComments(path, Entries, CodePage()), FileProblem::LineTooLong);
    EXPECT_EQ(FileContent(path), "old");
}

TEST_F(CommentsTest, WithoutMemoryTheFileCannotBeRead) {
    if (!MemoryCanBeLittle)
        GTEST_SKIP() << "memory cannot be limited here";
    const std::string path = Folder.Write("a.cmt", "[Comments]\r\n 1 a\r\n 2 " + std::string(10000000, 'x'));
    EXPECT_TRUE(HoldsWithLittleMemory(4U << 20U, [&] {
        return CommentLogbook(path, Entries, CodePage()).Error == std::errc::not_enough_memory;
    }));
}
