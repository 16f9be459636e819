// SPDX-License-Identifier: MIT
#include "sources/Comments.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <random>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

class CommentsTest : public testing::Test {
  protected:
    // A logbook of three entries.
    CommentsTest() {
        ReadText(Lines({Header("BERR:    a"), Header("BERR:    b"), Header("BERR:    c")}), Result);
        EXPECT_EQ(Entries().Count(), 3U);
    }

    EntryTable& Entries() { return Result.Book.Entries; }

    bool Read(std::string_view text) {
        return CommentLogbook(Folder.Write("x.cmt", text), Entries(), CodePage());
    }

    std::string ReadOne(const std::string& line) {
        Entries().SetComment(1, "");
        EXPECT_TRUE(Read("[Comments]\r\n" + line + "\r\n"));
        return std::string(Entries().Comment(1));
    }

    TemporaryFolder Folder;
    ReadResult Result;
};

TEST_F(CommentsTest, LogbookWithoutCommentsGivesTheHeaderAlone) {
    EXPECT_EQ(CommentsFileText(Entries(), CodePage()), "[Comments]\r\n");
}

TEST_F(CommentsTest, NumberHasABlankBeforeAndBehind) {
    Entries().SetComment(2, "late");
    Entries().SetComment(0, "Kühlung | geprüft");
    EXPECT_EQ(CommentsFileText(Entries(), CodePage()), "[Comments]\r\n 0 K\xFChlung | gepr\xFC"
                                                       "ft\r\n 2 late\r\n");
}

TEST_F(CommentsTest, TextThatWouldNotSurviveIsQuoted) {
    Entries().SetComment(0, "a,b");
    Entries().SetComment(1, "say \"x\"");
    Entries().SetComment(2, " blank ");
    EXPECT_EQ(CommentsFileText(Entries(), CodePage()),
              "[Comments]\r\n 0 \"a,b\"\r\n 1 \"say \"\"x\"\"\"\r\n 2 \" blank \"\r\n");
}

TEST_F(CommentsTest, FileIsSavedAndReadAgain) {
    Entries().SetComment(1, "Ursache: \"P2\", 3 bar");
    const std::string path = Folder / "x.cmt";
    EXPECT_FALSE(SaveComments(path, Entries(), CodePage()));
    Entries().SetComment(1, "");
    EXPECT_TRUE(CommentLogbook(path, Entries(), CodePage()));
    EXPECT_THAT(Entries().Comments(), ElementsAre(Pair(1U, "Ursache: \"P2\", 3 bar")));
    EXPECT_TRUE(SaveComments(Folder / "missing/x.cmt", Entries(), CodePage()));
}

TEST_F(CommentsTest, FileWithoutItsHeaderIsRefused) {
    EXPECT_FALSE(Read("[Filters]\r\n 0 text\r\n"));
    EXPECT_FALSE(Read("[comments]\r\n 0 text\r\n"));
    EXPECT_FALSE(Read("\r\n[Comments]\r\n 0 text\r\n"));
    EXPECT_THAT(Entries().Comments(), IsEmpty());
}

TEST_F(CommentsTest, EmptyAndMissingFilesHaveNoComments) {
    EXPECT_TRUE(Read(""));
    EXPECT_TRUE(CommentLogbook(Folder / "missing.cmt", Entries(), CodePage()));
    EXPECT_TRUE(CommentLogbook(Folder.Path(), Entries(), CodePage()));
    EXPECT_THAT(Entries().Comments(), IsEmpty());
}

TEST_F(CommentsTest, NumbersWithoutAnEntryArePassedOver) {
    EXPECT_TRUE(
        Read("[Comments]\r\n 0 first\r\n 3 x\r\n 4294967295 x\r\n 99999999999 x\r\n-1 x\r\n 2 last\r\n"));
    EXPECT_THAT(Entries().Comments(), ElementsAre(Pair(0U, "first"), Pair(2U, "last")));
}

TEST_F(CommentsTest, FormsOfOtherWritersAreRead) {
    EXPECT_EQ(ReadOne(" 1 text"), "text");
    EXPECT_EQ(ReadOne("1 text"), "text");
    EXPECT_EQ(ReadOne(" 1 ,text"), "text");
    EXPECT_EQ(ReadOne("1,\"text\""), "text");
    EXPECT_EQ(ReadOne("   1    text  "), "text  ");
    EXPECT_EQ(ReadOne(" 1 text, and more"), "text");
    EXPECT_EQ(ReadOne(" 1 \"a, \"\"b\"\"\" rest, 3"), "a, \"b\"");
    EXPECT_EQ(ReadOne(" 1 say \"x\""), "say \"x\"");
    EXPECT_EQ(ReadOne(" 1 \"\""), "");
    EXPECT_EQ(ReadOne(" 1 "), "");
    EXPECT_EQ(ReadOne(" 1"), "");
}

TEST_F(CommentsTest, DamagedLinesArePassedOver) {
    for (const char* line : {"", "text", " 1text", " 1 \"not closed", " x 1 text", " 1.5 text", ",1 text"})
        EXPECT_EQ(ReadOne(line), "") << line;
    EXPECT_TRUE(Read("[Comments]\n 0 a\nnonsense\n\n 2 c"));
    EXPECT_THAT(Entries().Comments(), ElementsAre(Pair(0U, "a"), Pair(2U, "c")));
}

TEST_F(CommentsTest, CharactersThatTheCodePageLacksAreTold) {
    Entries().SetComment(0, "fine ü €");
    Entries().SetComment(2, "снег");
    EXPECT_THAT(CommentsThatLose(Entries(), CodePage()), ElementsAre(2U));
    Entries().SetComment(2, "");
    EXPECT_THAT(CommentsThatLose(Entries(), CodePage()), IsEmpty());
}

TEST_F(CommentsTest, AnyCommentSurvives) {
    std::mt19937 random(7);
    const std::string_view pieces[] = {"a", " ", ",", "\"", " | ", "ü", "€", "1", "\t", "x y", "\xC2\x81"};
    for (int round = 0; round < 2000; ++round) {
        std::string comment;
        for (std::size_t i = random() % 6 + 1; i > 0; --i)
            comment += pieces[random() % std::size(pieces)];
        Entries().SetComment(1, comment);
        const std::string text = CommentsFileText(Entries(), CodePage());
        Entries().SetComment(1, "");
        ASSERT_TRUE(Read(text));
        ASSERT_EQ(Entries().Comment(1), comment) << text;
    }
}

} // namespace
