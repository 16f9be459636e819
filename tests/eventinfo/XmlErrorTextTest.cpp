// SPDX-License-Identifier: MIT
#include "eventinfo/XmlErrorText.h"

#include "support/ReadText.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <array>

namespace {

std::optional<EventTextRecord> Read(const std::string& content, std::int64_t number) {
    const TemporaryFolder folder;
    return ReadXmlErrorText(folder.Write("A_EN.XMT", content), number);
}

const std::string Servo = Lines({"<strings>", "<string id=\"SERVO_LAG\" value=\"18\" class=\"Ev_class_2\">",
                                 "  <text>Servo lag</text>", "  <text1>The axis is blocked.</text1>",
                                 "  <text2>Free the axis.</text2>", "</string>",
                                 "<string id=\"STANDSTILL\" value=\"5\" class=\"Ev_class_15\">",
                                 "<text>Moved</text>", "</string>", "</strings>"});

std::string Fixed(std::string text) {
    FixUpXmlText(text);
    return text;
}

} // namespace

TEST(XmlErrorText, EntryHasAllTexts) {
    EXPECT_EQ(Read(Servo, 18), (EventTextRecord{"SERVO_LAG", "Servo lag", "The axis is blocked.",
                                                "Free the axis.", "Ev_class 2\r\nWarnung\r\nAnzeige"}));
}

TEST(XmlErrorText, UnknownClassIsNamed) {
    EXPECT_EQ(Read(Servo, 5), (EventTextRecord{"STANDSTILL", "Moved", "", "", "Ev_class_15\r\n???"}));
}

TEST(XmlErrorText, NumberIsTheWholeValueInDecimal) {
    EXPECT_FALSE(Read(Servo, 1));
    EXPECT_FALSE(Read(Servo, 8));
    EXPECT_FALSE(Read(Servo, 180));
    EXPECT_FALSE(Read(Servo, 0x18));
    EXPECT_FALSE(Read("<string id=\"a\" value=\"0005\">\n<text>x</text>\n</string>\n", 5));
    EXPECT_FALSE(Read("<string id=\"a\" value='5'>\n<text>x</text>\n</string>\n", 5));
    EXPECT_FALSE(Read("<string id=\"a\" value=\"-1\">\n<text>x</text>\n</string>\n", -1));
    EXPECT_EQ(Read("<string id=\"a\" value=\"65535\">\n<text>x</text>\n</string>\n", 65535)->Message, "x");
}

TEST(XmlErrorText, HitHasTagAndValueInOneLine) {
    EXPECT_FALSE(Read("<string id=\"a\"\n value=\"5\">\n<text>x</text>\n</string>\n", 5));
    EXPECT_FALSE(Read("<string name=\"a\" value=\"5\">\n<text>x</text>\n</string>\n", 5));
    EXPECT_EQ(Read("  <x/> value=\"5\" <string id=\"a\">\n<text>x</text>\n</string>\n", 5),
              (EventTextRecord{"a", "x", "", "", ""}));
}

TEST(XmlErrorText, FirstHitCounts) {
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text>x</text>\n</string>\n"
                   "<string id=\"b\" value=\"5\">\n<text>y</text>\n</string>\n",
                   5)
                  ->Message,
              "x");
}

TEST(XmlErrorText, AttributeWithoutItsSecondQuoteIsEmpty) {
    EXPECT_EQ(Read("value=\"5\" <string id=\"abc\n<text>x</text>\n</string>\n", 5)->Id, "");
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\" class=\"Ev\n<text>x</text>\n</string>\n", 5),
              (EventTextRecord{"a", "x", "", "", ""}));
    EXPECT_EQ(Read("value=\"5\" <string id=", 5), EventTextRecord());
    EXPECT_EQ(Read("value=\"5\" <string id=\"", 5), EventTextRecord());
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\" class=", 5), (EventTextRecord{"a", "", "", "", ""}));
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\" class=\"\">", 5),
              (EventTextRecord{"a", "", "", "", "\r\n???"}));
}

TEST(XmlErrorText, LinesAreJoinedWithoutBlanks) {
    const std::string entry = Lines({"<string id=\"a\" value=\"5\">", "<text>Servo", "lag</te",
                                     "xt><text1>a&#1", "0;b&#10;&#10;c</text1>", "</string>"});
    EXPECT_EQ(Read(entry, 5), (EventTextRecord{"a", "Servolag", "a\r\nb\r\n\r\nc", "", ""}));
}

TEST(XmlErrorText, LineWithTheEndTagIsNotTaken) {
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text>x</text>\n<text1>y</text1></string>\n", 5),
              (EventTextRecord{"a", "x", "", "", ""}));
}

TEST(XmlErrorText, EntryInOneLineGoesOnInTheNext) {
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\"><text>x</text></string>\n"
                   "<string id=\"b\" value=\"6\">\n<text>y</text>\n</string>\n",
                   5),
              (EventTextRecord{"a", "y", "", "", ""}));
}

TEST(XmlErrorText, EndOfTheFileEndsTheEntry) {
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text>x</text>", 5),
              (EventTextRecord{"a", "x", "", "", ""}));
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">", 5), (EventTextRecord{"a", "", "", "", ""}));
}

TEST(XmlErrorText, TextsWithoutTheirTagsAreEmpty) {
    const auto texts = [](const std::string& inside) {
        EventTextRecord record =
            Read("<string id=\"a\" value=\"5\">\n" + inside + "\n</string>\n", 5).value();
        return std::array{record.Message, record.Cause, record.Fix};
    };
    using Three = std::array<std::string, 3>;
    EXPECT_EQ(texts("<text>x<text1>y</text1><text2>z</text2>"), (Three{"", "y", "z"}));
    EXPECT_EQ(texts("<text>x</text><text1>y<text2>z</text2>"), (Three{"x", "", "z"}));
    EXPECT_EQ(texts("<text>x</text><text1>y</text1><text2>z"), (Three{"x", "y", ""}));
    EXPECT_EQ(texts("x</text><text>"), (Three{"", "", ""}));
    EXPECT_EQ(texts("</text1><text>x</text><text1>y</text1>"), (Three{"x", "y", ""}));
    EXPECT_EQ(texts("no tags"), (Three{"", "", ""}));
    EXPECT_EQ(texts("<text></text><text1></text1><text2></text2>"), (Three{"", "", ""}));
}

TEST(XmlErrorText, TextWithAnEndTagBeforeItsBeginIsEmpty) {
    const auto texts = [](const std::string& inside) {
        EventTextRecord record =
            Read("<string id=\"a\" value=\"5\">\n" + inside + "\n</string>\n", 5).value();
        return std::array{record.Message, record.Cause, record.Fix};
    };
    using Three = std::array<std::string, 3>;
    EXPECT_EQ(texts("</text><text>x</text><text1>y</text1><text2>z</text2>"), (Three{"", "y", "z"}));
    EXPECT_EQ(texts("<text>x</text></text1><text1>y</text1><text2>z</text2>"), (Three{"x", "", "z"}));
    EXPECT_EQ(texts("<text>x</text><text1>y</text1></text2><text2>z</text2>"), (Three{"x", "y", ""}));
    // The place that counts for a text is the end of the one before it.
    EXPECT_EQ(texts("</text1></text2><text>x</text></text2><text1>y</text1><text2>z</text2>"),
              (Three{"x", "y", "z"}));
    // An empty text has no end: the next is searched for from where this one was.
    EXPECT_EQ(texts("<text>x</text></text1></text2><text1>y</text1><text2>z</text2>"), (Three{"x", "", ""}));
    EXPECT_EQ(texts("</text1></text><text>x</text><text1>y</text1>"), (Three{"", "", ""}));
}

TEST(XmlErrorText, TextsAreSearchedInTheirOrder) {
    // A cause before or in the message and a fix before the cause are passed over.
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text><text1>y</text1>x</text>\n</string>\n", 5),
              (EventTextRecord{"a", "<text1>y</text1>x", "", "", ""}));
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text1>y</text1><text>x</text>\n</string>\n", 5),
              (EventTextRecord{"a", "x", "", "", ""}));
    EXPECT_EQ(
        Read("<string id=\"a\" value=\"5\">\n<text2>z</text2><text>x</text><text1>y</text1>\n</string>\n", 5),
        (EventTextRecord{"a", "x", "y", "", ""}));
}

TEST(XmlErrorText, FileIsWindows1252) {
    EXPECT_EQ(Read("<string id=\"\xDC\" value=\"5\">\n<text>T\xFCr</text>\n</string>\n", 5),
              (EventTextRecord{"Ü", "Tür", "", "", ""}));
}

TEST(XmlErrorText, Utf8UmlautsInTheFileAreRepaired) {
    EXPECT_EQ(Read("<string id=\"a\" value=\"5\">\n<text>Größe, nächste Tür</text>\n</string>\n", 5)->Message,
              "Größe, nächste Tür");
}

TEST(XmlErrorText, QuotesBecomeApostrophes) {
    EXPECT_EQ(
        Read("<string id=\"a\" value=\"5\">\n<text>&quot;F&quot; &gt; 0</text>\n</string>\n", 5)->Message,
        "'F' > 0");
}

TEST(XmlErrorText, FileThatCannotBeReadGivesNothing) {
    const TemporaryFolder folder;
    EXPECT_FALSE(ReadXmlErrorText(folder / "missing.XMT", 5));
    EXPECT_FALSE(ReadXmlErrorText(folder.Path().string(), 5));
    EXPECT_FALSE(Read("", 5));
    using namespace std::string_literals;
    EXPECT_FALSE(Read("\0\n<string id=\"a\" value=\"5\">\n<text>x</text>\n</string>\n"s, 5));
    EXPECT_FALSE(Read("<string id=\"a\" value=\"5\">\n<text>x\0</text>\n</string>\n"s, 5));
    EXPECT_TRUE(Read("<string id=\"a\" value=\"5\">\n<text>x</text>\n</string>\n\0\n"s, 5));
}

TEST(FixUpXmlText, RepairsUmlautsOfUtf8) {
    EXPECT_EQ(Fixed("\u00C3\u0178 \u00C3\u00A4 \u00C3\u00BC \u00C3\u00B6"), "ß ä ü ö");
    EXPECT_EQ(Fixed("\u00C3\u201E \u00C3 \u0178 ä"), "\u00C3\u201E \u00C3 \u0178 ä");
}

TEST(FixUpXmlText, ResolvesThreeEntities) {
    EXPECT_EQ(Fixed("&gt;&quot;&apos;"), ">''");
    EXPECT_EQ(Fixed("&lt;&amp;&#10;&GT;"), "&lt;&amp;&#10;&GT;");
    EXPECT_EQ(Fixed("&amp;gt; &&gt;gt;"), "&amp;gt; &>gt;");
    EXPECT_EQ(Fixed(""), "");
}
