// SPDX-License-Identifier: MIT
#include "eventinfo/ClassicPlcErrorText.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

class ClassicPlcErrorText : public testing::Test {
  protected:
    std::optional<EventTextRecord> Read(std::int64_t number) const {
        return ReadClassicPlcErrorText(Folder.Path().string(), number);
    }

    // The cause that the lines of "reason.a" give for error 12.
    std::string Cause(const std::vector<std::string>& lines) const {
        Folder.Write("error.a", "012 m\n");
        Folder.Write("reason.a", Lines(lines));
        return Read(12).value().Cause;
    }

    TemporaryFolder Folder;
};

EventTextRecord Record(std::string message, std::string cause, std::string fix) {
    return {"", std::move(message), std::move(cause), std::move(fix), ""};
}

} // namespace

TEST_F(ClassicPlcErrorText, ThreeFilesGiveTheThreeTexts) {
    Folder.Write("error.a", Lines({"011 other", "012 Coolant level low", "013 another"}));
    Folder.Write("reason.a",
                 Lines({"011 -", "not this", "012 -", "used up", "carried out", "013 -", "nor this"}));
    Folder.Write("fix.a", Lines({"012 -", "fill up", "013 -", "nor this"}));
    EXPECT_EQ(Read(12), Record("Coolant level low", "used up\r\ncarried out", "fill up"));
    EXPECT_FALSE(Read(14));
}

TEST_F(ClassicPlcErrorText, FoundWithoutCauseAndFix) {
    Folder.Write("error.a", "012 m\n");
    EXPECT_EQ(Read(12), Record("m", "", ""));
    Folder.Write("reason.a", "013 -\nother text\n");
    std::filesystem::create_directory(Folder / "fix.a");
    EXPECT_EQ(Read(12), Record("m", "", ""));
}

TEST_F(ClassicPlcErrorText, NothingWithoutItsLineInErrorA) {
    Folder.Write("reason.a", "012 -\ncause text\n");
    Folder.Write("fix.a", "012 -\nfix text\n");
    EXPECT_FALSE(Read(12));
    Folder.Write("error.a", "013 m\n");
    EXPECT_FALSE(Read(12));
}

TEST_F(ClassicPlcErrorText, MessageBeginsAtTheFifthCharacter) {
    Folder.Write("error.a", Lines({"001;one", "002two", "003", "004 ", "005  five"}));
    EXPECT_EQ(Read(1)->Message, "one");
    EXPECT_EQ(Read(2)->Message, "wo");
    EXPECT_EQ(Read(3)->Message, "");
    EXPECT_EQ(Read(4)->Message, "");
    EXPECT_EQ(Read(5)->Message, " five");
}

TEST_F(ClassicPlcErrorText, LinesWithoutANumberArePassedOver) {
    Folder.Write("error.a",
                 Lines({"", "x", "; 12 comment", "12x text", "1 2 text", "-12 text", "012 m", "012 second"}));
    EXPECT_EQ(Read(12)->Message, "m");
    EXPECT_FALSE(Read(0));
    EXPECT_FALSE(Read(1));
    EXPECT_FALSE(Read(-12));
    EXPECT_FALSE(Read(-1));
}

TEST_F(ClassicPlcErrorText, FirstThreeCharactersAreTheNumber) {
    Folder.Write("error.a", Lines({"1234 m", " 45 n", "67  o"}));
    EXPECT_EQ(Read(123)->Message, " m");
    EXPECT_FALSE(Read(1234));
    EXPECT_EQ(Read(45)->Message, "n");
    EXPECT_EQ(Read(67)->Message, "o");
}

TEST_F(ClassicPlcErrorText, LinesWithoutABlankArePassedOver) {
    EXPECT_EQ(Cause({"012", "too early", "012 -", "", "oneword", "first line", "013", "second line", "",
                     "third line"}),
              "first line\r\nsecond line\r\nthird line");
}

TEST_F(ClassicPlcErrorText, StartLineIsANumberBeforeABlank) {
    EXPECT_EQ(Cause({"012x -", "not this", "012 -", "this line"}), "this line");
    EXPECT_EQ(Cause({" 12 -", "not this", "012 -", "this line"}), "this line");
    EXPECT_EQ(Cause({"0123 -", "this line"}), "this line"); // its first three are 012
    EXPECT_EQ(Cause({"12 -", "this line"}), "this line");   // "12 " is 12
    EXPECT_EQ(Cause({"1 2", "not this"}), "");
}

TEST_F(ClassicPlcErrorText, TextOfTheStartLineIsNotTaken) {
    EXPECT_EQ(Cause({"012 heading", "text line"}), "text line");
    EXPECT_EQ(Cause({"012 heading"}), "");
    EXPECT_EQ(Cause({"012 heading", "013 heading"}), "");
}

TEST_F(ClassicPlcErrorText, NumberBeforeABlankEndsTheBlock) {
    EXPECT_EQ(Cause({"012 -", "first line", "5 mm", "not this"}), "first line");
    EXPECT_EQ(Cause({"012 -", "first line", " 5 mm", "5mm and more", "-5 degrees"}),
              "first line\r\n 5 mm\r\n5mm and more\r\n-5 degrees");
}

TEST_F(ClassicPlcErrorText, FirstBlockCounts) {
    EXPECT_EQ(Cause({"012 -", "first block", "012 -", "second block"}), "first block");
    EXPECT_EQ(Cause({"012 -", "013 -", "x y", "012 -", "second block"}), "");
}

TEST_F(ClassicPlcErrorText, FilesAreFoundWhateverTheirCase) {
    Folder.Write("ERROR.A", "012 m\n");
    Folder.Write("Reason.A", "012 -\ncause text\n");
    Folder.Write("FIX.a", "012 -\nfix text\n");
    EXPECT_EQ(Read(12), Record("m", "cause text", "fix text"));
}

TEST_F(ClassicPlcErrorText, FilesAreWindows1252) {
    Folder.Write("error.a", "012 T\xFCr\n");
    Folder.Write("reason.a", "012 -\n\xD6l fehlt\n");
    Folder.Write("fix.a", "012 -\nT\xFCr schlie\xDF\x65n\n");
    EXPECT_EQ(Read(12), Record("Tür", "Öl fehlt", "Tür schließen"));
}

TEST_F(ClassicPlcErrorText, FilesThatCannotBeReadGiveNothing) {
    using namespace std::string_view_literals;
    EXPECT_FALSE(ReadClassicPlcErrorText(Folder / "missing", 12));
    EXPECT_FALSE(ReadClassicPlcErrorText("", 12));
    Folder.Write("error.a", "\0\n012 m\n"sv);
    EXPECT_FALSE(Read(12));
    Folder.Write("error.a", "012 m\n");
    Folder.Write("reason.a", "012 -\nfirst line\nsecond\0 line\n"sv);
    EXPECT_EQ(Read(12), Record("m", "", ""));
    std::filesystem::remove(Folder / "error.a");
    std::filesystem::create_directory(Folder / "error.a");
    EXPECT_FALSE(Read(12));
}
