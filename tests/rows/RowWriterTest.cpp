// SPDX-License-Identifier: MIT
#include "rows/RowWriter.h"

#include "rows/HtmlTable.h"
#include "support/AllRows.h"
#include "support/EntriesFrom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace {

using testing::HasSubstr;
using testing::Not;

class RowWriterTest : public testing::Test {
  protected:
    RowWriterTest() {
        FillTable(Entries, {{EventTypes::Error, "a <b> & \"c\" | 'd'", "PLC", "N1"},
                            {EventTypes::Info, "bell \x07 end", "", ""}});
        Entries.SetComment(0, "first | <second>");
    }

    std::string Written(const RowForm& form, const LogbookRows& rows) const {
        std::ostringstream stream;
        EXPECT_TRUE(WriteRows(Entries, rows, form, stream, [](double) { return true; }));
        return stream.str();
    }
    std::string Html(Language language, const LogbookRows& rows) const {
        RowForm form{.Format = "html"};
        form.Words = language;
        form.Title = "lb <1>";
        return Written(form, rows);
    }

    EntryTable Entries;
};

// How often the part is in the text.
std::size_t CountOf(std::string_view text, std::string_view part) {
    std::size_t count = 0;
    for (std::size_t place = text.find(part); place != std::string_view::npos;
         place = text.find(part, place + part.size()))
        ++count;
    return count;
}

TEST_F(RowWriterTest, RowsStandInTheirOrder) {
    EXPECT_EQ(
        Written({.Format = "csv", .Separator = ';'}, {{1, 0}, {0, 1}}),
        "index;type;event;data;sender;name;time;icon;highlighted;comment\r\n"
        "1;1;Info;bell \x07 end;;;04.01.2010 12:34:56;1;false;\r\n"
        "0;3;Error;\"a <b> & \"\"c\"\" | 'd'\";PLC;N1;04.01.2010 12:34:56;15;true;first | <second>\r\n");
    EXPECT_EQ(CountOf(Written({}, {{1, 0}, {0, 1}}), "\n"), 2U);
    EXPECT_THAT(Written({}, {{1, 0}}), HasSubstr("bell \\u0007 end"));
}

TEST_F(RowWriterTest, WithoutRowsThereIsAHeader) {
    EXPECT_EQ(Written({.Format = "csv", .ByteOrderMark = true}, {}),
              "\uFEFFindex,type,event,data,sender,name,time,icon,highlighted,comment\r\n");
    EXPECT_EQ(Written({}, {}), "");
    EXPECT_EQ(CountOf(Html({}, {}), "<th scope=\"col\">"), 7U);
    EXPECT_THAT(Html({}, {}), testing::EndsWith("<tbody>\n</tbody>\n</table>\n</body>\n</html>\n"));
}

TEST_F(RowWriterTest, HtmlIsAPageOfTheChosenLanguage) {
    const std::string english = Html({}, AllRows(Entries));
    EXPECT_THAT(english,
                testing::StartsWith("<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">"));
    EXPECT_THAT(english, HasSubstr("<title>lb &lt;1&gt;</title>"));
    EXPECT_THAT(english,
                HasSubstr("<tr><th scope=\"col\">Event type</th><th scope=\"col\">Data</th><th scope=\"col\">"
                          "Sender</th><th scope=\"col\">Name</th><th scope=\"col\">Time</th><th "
                          "scope=\"col\">Index</th><th scope=\"col\">Comment</th></tr>"));
    const std::string german = Html({Language::German}, AllRows(Entries));
    EXPECT_THAT(german, HasSubstr("<html lang=\"de\">"));
    EXPECT_THAT(german, HasSubstr("<th scope=\"col\">Ereignistyp</th>"));
    EXPECT_THAT(german, HasSubstr("<th scope=\"col\">Kommentar</th>"));
}

TEST_F(RowWriterTest, HtmlEscapesTextsAndBreaksTheirLines) {
    EXPECT_THAT(
        Html({}, AllRows(Entries)),
        HasSubstr("<tr><td>Error</td><td>a &lt;b&gt; &amp; &quot;c&quot;<br>&#39;d&#39;</td><td>PLC</td>"
                  "<td>N1</td><td>04.01.2010 12:34:56</td><td>0</td><td>first<br>&lt;second&gt;</td></tr>\n"
                  "<tr><td>Info</td><td>bell \\u0007 end</td>"));
    EXPECT_EQ(AsHtmlText("\x1B[31m\tk\xC3\xBChl\xC2\x9B"), "\\u001b[31m\tkühl\\u009b");
}

TEST_F(RowWriterTest, HtmlMarksHighlightsByMoreThanColour) {
    EXPECT_THAT(Html({}, {{0, 1}, {1, 0}}),
                HasSubstr("<tr class=\"highlighted\"><td>Error, highlighted</td>"));
    EXPECT_THAT(Html({Language::German}, {{0, 1}}), HasSubstr("<td>Error, markiert</td>"));
    EXPECT_EQ(CountOf(Html({}, {{0, 1}, {1, 0}}), "class=\"highlighted\""), 1U);
}

TEST_F(RowWriterTest, HtmlRunsNothingAndLoadsNothing) {
    const std::string page = Html({}, AllRows(Entries));
    for (const char* const part : {"<script", "http", "url(", "@import", "<link", "<img"})
        EXPECT_THAT(page, Not(HasSubstr(part)));
    EXPECT_THAT(page, HasSubstr("prefers-color-scheme: dark"));
    EXPECT_THAT(page, HasSubstr("@media print"));
    EXPECT_EQ(CountOf(page, "{"), CountOf(page, "}"));
}

TEST_F(RowWriterTest, WritingEndsWhenItIsNotToGoOn) {
    const LogbookRows rows(1000, {0, 0});
    std::ostringstream stream;
    std::vector<double> percents;
    EXPECT_FALSE(WriteRows(Entries, rows, {}, stream, [&](double percent) {
        percents.push_back(percent);
        return percent < 50;
    }));
    EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
    EXPECT_EQ(percents.front(), 0);
    EXPECT_LT(percents.back(), 55);
    EXPECT_LT(CountOf(stream.str(), "\n"), 550U);
    EXPECT_EQ(CountOf(Written({}, rows), "\n"), 1000U);
}

TEST_F(RowWriterTest, StreamThatFailsEndsTheWriting) {
    std::ostringstream stream;
    stream.setstate(std::ios::badbit);
    int calls = 0;
    EXPECT_FALSE(
        WriteRows(Entries, LogbookRows(1000, {0, 0}), {}, stream, [&](double) { return ++calls > 0; }));
    EXPECT_EQ(calls, 0);
}

} // namespace
