// SPDX-License-Identifier: MIT
#include "helpbook/HelpSearch.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

HelpBook Book() {
    return {"Help",
            "/a.html",
            {{"Opening", "/a.html", {}}, {"Filters", "/b.html", {}}, {"Über das Öffnen", "/c.html", {}}},
            {{"/a.html", "<title>x</title>Open a logbook. It passes the <b>filt</b>ers."},
             {"/b.html", "What the list shows of a logbook."},
             {"/c.html", "Straße &amp; MASSE"},
             {"/p.png", "logbook"}}};
}

std::vector<std::string> PagesFor(std::string_view words) {
    std::vector<std::string> pages;
    for (const HelpHit& hit : SearchHelp(Book(), HelpTerms(words)))
        pages.push_back(hit.Page);
    return pages;
}

} // namespace

TEST(HelpSearch, AllWordsInTheOrderOfTheContents) {
    EXPECT_THAT(PagesFor("logbook"), ElementsAre("/a.html", "/b.html"));
    EXPECT_THAT(PagesFor("logbook  open"), ElementsAre("/a.html"));
    EXPECT_THAT(PagesFor("logbook nowhere"), IsEmpty());
}

TEST(HelpSearch, PagesWithTheWordInTheTitleComeFirst) {
    EXPECT_THAT(PagesFor("filters"), ElementsAre("/b.html", "/a.html"));
    EXPECT_THAT(SearchHelp(Book(), {"list"}), ElementsAre(HelpHit{"Filters", "/b.html"}));
}

TEST(HelpSearch, CaseMakesNoDifferenceInAnyLanguage) {
    EXPECT_THAT(PagesFor("ÖFFNEN"), ElementsAre("/c.html"));
    EXPECT_THAT(PagesFor("öffnen"), ElementsAre("/c.html"));
    EXPECT_THAT(PagesFor("strasse"), ElementsAre("/c.html"));
    EXPECT_THAT(PagesFor("masse"), ElementsAre("/c.html"));
    EXPECT_THAT(PagesFor("LOGBOOK"), ElementsAre("/a.html", "/b.html"));
}

TEST(HelpSearch, TagsAndReferencesAreNoText) {
    EXPECT_THAT(PagesFor("title"), IsEmpty());
    EXPECT_THAT(PagesFor("amp"), IsEmpty());
    EXPECT_THAT(PagesFor("&"), ElementsAre("/c.html"));
}

TEST(HelpSearch, PunctuationAroundWordsIsNoPartOfThem) {
    EXPECT_THAT(HelpTerms("open, (the) logbook. [filters]: why?"),
                ElementsAre("open", "the", "logbook", "filters", "why"));
    EXPECT_THAT(HelpTerms("3.1 on/off qorvix-cli lb_act.log"),
                ElementsAre("3.1", "on/off", "qorvix-cli", "lb_act.log"));
    EXPECT_THAT(HelpTerms("‚Öffnen‘,"), ElementsAre("Öffnen"));
    EXPECT_THAT(PagesFor("logbook, open!"), ElementsAre("/a.html"));
}

TEST(HelpSearch, QuotesMakeAPhrase) {
    EXPECT_THAT(HelpTerms("\"open a  logbook\" list"), ElementsAre("open a logbook", "list"));
    EXPECT_THAT(HelpTerms("„ein Logbuch“,«une liste»"), ElementsAre("ein Logbuch", "une liste"));
    EXPECT_THAT(HelpTerms("(\"*.log,\")"), ElementsAre("*.log,"));
    EXPECT_THAT(HelpTerms("list \"of a"), ElementsAre("list", "of a"));
    EXPECT_THAT(PagesFor("\"a LOGBOOK\""), ElementsAre("/a.html", "/b.html"));
    EXPECT_THAT(PagesFor("\"open a logbook\""), ElementsAre("/a.html"));
    EXPECT_THAT(PagesFor("\"logbook open\""), IsEmpty());
}

TEST(HelpSearch, NothingToFind) {
    EXPECT_THAT(PagesFor(""), IsEmpty());
    EXPECT_THAT(PagesFor("   "), IsEmpty());
    EXPECT_THAT(HelpTerms(" \"\" ., () \"  \" "), IsEmpty());
    EXPECT_THAT(PagesFor("\xFF\xFE"), IsEmpty());
}
