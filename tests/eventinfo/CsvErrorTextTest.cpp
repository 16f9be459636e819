// SPDX-License-Identifier: MIT
#include "eventinfo/CsvErrorText.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

std::optional<EventTextRecord> Read(const std::string& content, std::int64_t number) {
    const TemporaryFolder folder;
    return ReadCsvErrorText(folder.Write("ErrorText.csv", content), number);
}

EventTextRecord Record(std::string message, std::string cause, std::string fix) {
    return {"", std::move(message), std::move(cause), std::move(fix), ""};
}

} // namespace

TEST(CsvErrorText, FieldsAreMessageCauseAndFix) {
    const std::string file =
        Lines({"Number;Message;Cause;Fix", "11;a;b;c", "12;\"Message\";\"Cause\";\"Fix\""});
    EXPECT_EQ(Read(file, 12), Record("Message", "Cause", "Fix"));
    EXPECT_EQ(Read(file, 11), Record("a", "b", "c"));
    EXPECT_FALSE(Read(file, 1));
    EXPECT_FALSE(Read(file, 13));
}

TEST(CsvErrorText, HeaderIsSkipped) {
    EXPECT_EQ(Read("12;header;;\n12;first;;\n12;second;;\n", 12), Record("first", "", ""));
    EXPECT_FALSE(Read("12;header;;", 12));
}

TEST(CsvErrorText, EveryDoubleQuoteIsDropped) {
    EXPECT_EQ(Read("h\n12;\"a \"\"b\"\"\";c\"d;\"\n", 12), Record("a b", "cd", ""));
}

TEST(CsvErrorText, SemicolonInQuotesSeparates) {
    EXPECT_EQ(Read("h\n12;\"a;b\";c;d\n", 12), Record("a", "b", "c"));
}

TEST(CsvErrorText, BarIsALineBreakInCauseAndFix) {
    EXPECT_EQ(Read("h\n12;a|b;c|d||e;|f\n", 12), Record("a|b", "c\r\nd\r\n\r\ne", "\r\nf"));
}

TEST(CsvErrorText, MissingFieldsAreEmpty) {
    EXPECT_EQ(Read("h\n12;a;b\n", 12), Record("a", "b", ""));
    EXPECT_EQ(Read("h\n12;a", 12), Record("a", "", ""));
    EXPECT_EQ(Read("h\n12", 12), Record("", "", ""));
    EXPECT_EQ(Read("h\n12;a;b;c;d;e\n", 12), Record("a", "b", "c"));
}

TEST(CsvErrorText, NumberIsReadAsADecimalInteger) {
    EXPECT_EQ(Read("h\n 0012 ;a;b;c\n", 12), Record("a", "b", "c"));
    EXPECT_EQ(Read("h\n12.5;a;b;c\n", 12), Record("a", "b", "c"));
    EXPECT_FALSE(Read("h\n-12;a;b;c\n", 12));
    EXPECT_FALSE(Read("h\n-1;a;b;c\n99999999999999999999;a;b;c\n", -1));
    EXPECT_EQ(Read("h\n4294967295;a;b;c\n", 0xFFFFFFFF), Record("a", "b", "c"));
}

TEST(CsvErrorText, LineWithoutANumberMatchesNothing) {
    EXPECT_FALSE(Read("h\n\n;a;b;c\nx;a;b;c\n\"0\";a;b;c\n", 0));
    EXPECT_EQ(Read("h\n\n0;a;b;c\n", 0), Record("a", "b", "c"));
}

TEST(CsvErrorText, FileIsWindows1252) {
    EXPECT_EQ(Read("h\n12;T\xFCr;\xC4ndern;gr\xF6\xDF\x65r\n", 12), Record("Tür", "Ändern", "größer"));
}

TEST(CsvErrorText, FileThatCannotBeReadGivesNothing) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadCsvErrorText(folder / "missing.csv", 12));
    EXPECT_FALSE(ReadCsvErrorText(folder.Path().string(), 12));
    EXPECT_FALSE(Read("", 12));
    using namespace std::string_literals;
    EXPECT_FALSE(Read("h\n11;\0;;\n12;a;b;c\n"s, 12));
    EXPECT_FALSE(Read("h\n12;a;\0;c\n"s, 12));
}
