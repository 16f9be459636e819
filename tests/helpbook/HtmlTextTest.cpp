// SPDX-License-Identifier: MIT
#include "helpbook/HtmlText.h"

#include <gtest/gtest.h>

TEST(HtmlText, TitleAndTextOfAPage) {
    const HtmlText text =
        ReadHtmlText("<html><head><title>The\n list</title></head><body><h1>The list</h1>\r\n"
                     "<p>Click a <b>header</b>&nbsp;to  sort.</p><p>Done</p></body></html>");
    EXPECT_EQ(text.Title, "The list");
    EXPECT_EQ(text.Text, "The list Click a header to sort. Done");
}

TEST(HtmlText, TagsInsideAWordDoNotPartIt) {
    EXPECT_EQ(ReadHtmlText("log<b>book</b>s").Text, "logbooks");
    EXPECT_EQ(ReadHtmlText("<td>log</td><td>book</td>").Text, "log book");
}

TEST(HtmlText, AnyBlanksAreOne) { EXPECT_EQ(ReadHtmlText("a \t\r\n\fb\fc").Text, "a b c"); }

TEST(HtmlText, AnyBytes) {
    EXPECT_EQ(ReadHtmlText("").Text, "");
    EXPECT_EQ(ReadHtmlText("<title>").Title, "");
    EXPECT_EQ(ReadHtmlText("a < b").Text, "a < b");
}

TEST(HelpTextAsUtf8, Utf8StaysAndOtherTextIsWindows1252) {
    EXPECT_EQ(HelpTextAsUtf8("Öffnen"), "Öffnen");
    EXPECT_EQ(HelpTextAsUtf8("\xD6"
                             "ffnen \x80"),
              "Öffnen €");
    EXPECT_EQ(HelpTextAsUtf8("\xEF\xBB\xBFplain"), "plain");
    EXPECT_EQ(HelpTextAsUtf8(""), "");
}
