// SPDX-License-Identifier: MIT
#include "helpbook/HelpContents.h"

#include <gtest/gtest.h>

namespace {

std::string Object(const std::string& title, const std::string& page) {
    return "<LI><OBJECT type=\"text/sitemap\"><param name=\"Name\" value=\"" + title +
           "\"><param name=\"Local\" value=\"" + page + "\"></OBJECT>";
}

// Indented lines "title -> page".
std::string Dump(const std::vector<HelpTopic>& topics, const std::string& indent = "") {
    std::string text;
    for (const HelpTopic& topic : topics)
        text += indent + topic.Title + " -> " + topic.Page + "\n" + Dump(topic.Topics, indent + "  ");
    return text;
}

} // namespace

TEST(HelpContents, NestedLists) {
    EXPECT_EQ(Dump(ReadHelpContents("<HTML><BODY><UL>" + Object("Opening", "open.html") + "<UL>" +
                                    Object("Files", "files.html") + Object("Archives", "sub\\a.html#top") +
                                    "</UL>" + Object("Filters &amp; more", "/filters.html") +
                                    "</UL></BODY></HTML>")),
              "Opening -> /open.html\n"
              "  Files -> /files.html\n"
              "  Archives -> /sub/a.html#top\n"
              "Filters & more -> /filters.html\n");
}

TEST(HelpContents, HeadingWithoutAPage) {
    EXPECT_EQ(Dump(ReadHelpContents("<ul><li><object><param name=\"Name\" value=\"Reference\"></object><ul>" +
                                    Object("Keys", "keys.html") + "</ul></ul>")),
              "Reference -> \n  Keys -> /keys.html\n");
}

TEST(HelpContents, CaseOfTheParametersMakesNoDifference) {
    EXPECT_EQ(Dump(ReadHelpContents("<ul><li><object><param name=\"NAME\" value=\"Keys\">"
                                    "<PARAM NAME=\"local\" VALUE=\"keys.html\"></object></ul>")),
              "Keys -> /keys.html\n");
}

TEST(HelpContents, OddOnes) {
    EXPECT_TRUE(ReadHelpContents("").empty());
    EXPECT_TRUE(ReadHelpContents("no contents at all <b>here").empty());
    EXPECT_TRUE(ReadHelpContents("<ul>" + Object("", "untitled.html")).empty());
    EXPECT_EQ(Dump(ReadHelpContents("</ul></ul><ul>" + Object("A", "a.html"))), "A -> /a.html\n");
    // A list that begins with a list.
    EXPECT_EQ(Dump(ReadHelpContents("<ul><ul>" + Object("A", "a.html") + "</ul></ul>")), "A -> /a.html\n");
}

TEST(HelpContents, DeepNestingEnds) {
    std::string html;
    for (int i = 0; i < 100'000; ++i)
        html += "<ul>" + Object("T", "t.html");
    std::size_t depth = 0;
    const std::vector<HelpTopic> contents = ReadHelpContents(html);
    for (const std::vector<HelpTopic>* level = &contents; !level->empty(); level = &level->front().Topics)
        ++depth;
    EXPECT_EQ(depth, 32U);
}
