// SPDX-License-Identifier: MIT
#include "eventinfo/ClassicNcErrorText.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

std::optional<EventTextRecord> Read(const std::string& content, std::int64_t number) {
    const TemporaryFolder folder;
    return ReadClassicNcErrorText(folder.Write("qx_error_help.txt", content), number);
}

std::optional<EventTextRecord> Read215(const std::vector<std::string>& lines) {
    return Read(Lines(lines), 215);
}

EventTextRecord Record(std::string message, std::string cause, std::string fix) {
    return {"", std::move(message), std::move(cause), std::move(fix), ""};
}

} // namespace

TEST(ClassicNcErrorText, BlockHasMessageCauseAndFix) {
    const std::vector<std::string> block = {"104",
                                            "Format",
                                            "",
                                            "Cause of error:",
                                            "other",
                                            "",
                                            "215",
                                            "Not referenced",
                                            "-----",
                                            "Cause of error:",
                                            "cause 1",
                                            "cause 2",
                                            "Corrective action:",
                                            "fix 1",
                                            "fix 2",
                                            "",
                                            "not this"};
    EXPECT_EQ(Read215(block), Record("Not referenced", "cause 1\r\ncause 2", "fix 1\r\nfix 2"));
    EXPECT_EQ(Read(Lines(block), 104), Record("Format", "other", ""));
}

TEST(ClassicNcErrorText, HeadingsAreKnownInBothLanguages) {
    EXPECT_EQ(Read215({"215", "m", "", "Fehlerursache:", "c", "Fehlerbehebung:", "f"}),
              Record("m", "c", "f"));
    EXPECT_EQ(Read215({"215", "m", "", "Cause of error:", "c", "Fehlerbehebung:", "f"}),
              Record("m", "c", "f"));
    EXPECT_EQ(Read215({"215", "m", "", "Fehlerursache:", "c", "Corrective action:", "f"}),
              Record("m", "c", "f"));
}

TEST(ClassicNcErrorText, HeadingsAreComparedExactly) {
    for (const char* heading : {"Cause of error", "cause of error:", " Cause of error:", "Cause of error: "})
        EXPECT_EQ(Read215({"215", "m", "", heading, "c", "Corrective action:", "f"}), Record("m", "", ""))
            << heading;
    EXPECT_EQ(Read215({"215", "m", "", "Cause of error:", "c", "Corrective action: ", "f"}),
              Record("m", "c\r\nCorrective action: \r\nf", ""));
}

TEST(ClassicNcErrorText, HitIsTheNumberAndNothingElse) {
    EXPECT_FALSE(Read215({"0215", "m"}));
    EXPECT_FALSE(Read215({" 215", "m"}));
    EXPECT_FALSE(Read215({"215 ", "m"}));
    EXPECT_FALSE(Read215({"N215", "m"}));
    EXPECT_FALSE(Read215({"2150", "m"}));
    EXPECT_FALSE(Read("-1\nm\n", -1));
    EXPECT_EQ(Read("0\nm\n", 0), Record("m", "", ""));
}

TEST(ClassicNcErrorText, FirstHitCounts) {
    EXPECT_EQ(Read215({"215", "first", "", "", "", "215", "second"}), Record("first", "", ""));
}

TEST(ClassicNcErrorText, FixMayComeWithoutACause) {
    EXPECT_EQ(Read215({"215", "m", "", "Corrective action:", "f 1", "f 2", "", "x"}),
              Record("m", "", "f 1\r\nf 2"));
    EXPECT_EQ(Read215({"215", "m", "", "Fehlerbehebung:", "f"}), Record("m", "", "f"));
}

TEST(ClassicNcErrorText, EmptyLineAfterTheCauseEndsTheBlock) {
    EXPECT_EQ(Read215({"215", "m", "", "Cause of error:", "c", "", "Corrective action:", "f"}),
              Record("m", "c", ""));
}

TEST(ClassicNcErrorText, FirstLineBehindAHeadingIsAlwaysTaken) {
    EXPECT_EQ(Read215({"215", "m", "", "Cause of error:", "", "c", "", "x"}), Record("m", "\r\nc", ""));
    EXPECT_EQ(Read215({"215", "m", "", "Cause of error:", "Corrective action:", "c", "Fehlerbehebung:", "f"}),
              Record("m", "Corrective action:\r\nc", "f"));
    EXPECT_EQ(Read215({"215", "m", "", "Corrective action:", "", "f", "", "x"}), Record("m", "", "\r\nf"));
}

TEST(ClassicNcErrorText, FixGoesOnOverFurtherHeadings) {
    EXPECT_EQ(Read215({"215", "m", "", "Corrective action:", "f", "Cause of error:", "c"}),
              Record("m", "", "f\r\nCause of error:\r\nc"));
}

TEST(ClassicNcErrorText, LineBehindTheMessageIsSkippedWhateverItIs) {
    EXPECT_EQ(Read215({"215", "m", "Cause of error:", "x", "Corrective action:", "f"}), Record("m", "", ""));
}

TEST(ClassicNcErrorText, FileMayEndAnywhere) {
    const std::vector<std::string> lines = {
        "215", "m", "-", "Cause of error:", "c 1", "c 2", "Corrective action:", "f 1", "f 2"};
    const std::vector<EventTextRecord> expected = {Record("", "", ""),
                                                   Record("m", "", ""),
                                                   Record("m", "", ""),
                                                   Record("m", "", ""),
                                                   Record("m", "c 1", ""),
                                                   Record("m", "c 1\r\nc 2", ""),
                                                   Record("m", "c 1\r\nc 2", ""),
                                                   Record("m", "c 1\r\nc 2", "f 1"),
                                                   Record("m", "c 1\r\nc 2", "f 1\r\nf 2")};
    std::string content;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        content += lines[i];
        EXPECT_EQ(Read(content, 215), expected[i]) << content;
        content += "\n";
        EXPECT_EQ(Read(content, 215), expected[i]) << content;
    }
}

TEST(ClassicNcErrorText, FileIsWindows1252) {
    EXPECT_EQ(Read("215\nT\xFCr\n\nFehlerursache:\n\xD6l\nFehlerbehebung:\nschlie\xDF\x65n\n", 215),
              Record("Tür", "Öl", "schließen"));
}

TEST(ClassicNcErrorText, FileThatCannotBeReadGivesNothing) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadClassicNcErrorText(folder / "missing.txt", 215));
    EXPECT_FALSE(ReadClassicNcErrorText(folder.Path().string(), 215));
    EXPECT_FALSE(Read("", 215));
    using namespace std::string_literals;
    EXPECT_FALSE(Read("\0\n215\nm\n\n"s, 215));
    EXPECT_FALSE(Read("215\nm\n\nCause of error:\nc\0\n"s, 215));
}
