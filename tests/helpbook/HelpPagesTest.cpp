// SPDX-License-Identifier: MIT
// The pages of the help as their source has them. What stands in bold is a text of the program.
#include "helpbook/HelpContents.h"
#include "helpbook/HtmlTags.h"
#include "helpbook/HtmlText.h"
#include "settings/Texts.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <set>
#include <sstream>

namespace {

const std::filesystem::path HelpFolder = QORVIX_SOURCE_FOLDER "/help";
constexpr auto Codes = {"en", "de"};

struct Page {
    std::string Html;
    std::string Title;
    std::string Heading;
    std::set<std::string> Links;    // to pages and out of the help
    std::set<std::string> Pictures; // as the page names them
    std::set<std::string> Quoted;   // texts in bold
};

Page ReadPage(const std::filesystem::path& path) {
    Page page;
    page.Html = FileContent(path);
    page.Title = ReadHtmlText(page.Html).Title;
    HtmlTags tags(page.Html);
    std::string* target = nullptr;
    std::string quoted;
    for (HtmlPiece piece; tags.Next(piece);) {
        if (piece.Tag == "a")
            page.Links.insert(HtmlAttribute(piece.Attributes, "href"));
        else if (piece.Tag == "img")
            page.Pictures.insert(HtmlAttribute(piece.Attributes, "src"));
        else if (piece.Tag == "b")
            target = &(quoted = "");
        else if (piece.Tag == "h1")
            target = &page.Heading;
        else if (piece.Tag.empty() && target)
            *target += WithoutCharacterReferences(piece.Text);
        else if (piece.Tag == "/b")
            page.Quoted.insert(quoted);
        if (piece.Tag == "/b" || piece.Tag == "/h1")
            target = nullptr;
    }
    return page;
}

// By their file names.
std::map<std::string, Page> PagesOf(const std::string& code) {
    std::map<std::string, Page> pages;
    for (const auto& item : std::filesystem::directory_iterator(HelpFolder / code))
        if (item.path().extension() == ".html")
            pages[item.path().filename().string()] = ReadPage(item.path());
    return pages;
}

// A text as the help quotes it: without the marks of access keys, and without the blanks and quotation marks
// at its ends that lead to what is put in between.
std::string AsQuoted(std::string_view text) {
    std::string plain(text);
    plain.erase(std::remove(plain.begin(), plain.end(), '&'), plain.end());
    if (plain.find('"') == plain.size() - 1 || plain.rfind('"') == 0)
        plain.erase(std::remove(plain.begin(), plain.end(), '"'), plain.end());
    const std::size_t begin = plain.find_first_not_of(' ');
    return begin == std::string::npos ? "" : plain.substr(begin, plain.find_last_not_of(' ') + 1 - begin);
}

std::set<std::string> TextsOf(bool german) {
    std::set<std::string> texts;
    for (const TextRow& row : TextTable())
        texts.insert(AsQuoted(german ? row.German : row.English));
    return texts;
}

// The buttons of questions, whose texts are Qt's.
const std::set<std::string> QuestionButtons{"Yes", "No", "Ja", "Nein"};

// Every text that a person meets is explained, but for titles, names and labels that say all there is to say.
// A text that is new is looked for on the pages until it stands here.
bool MustBeExplained(const TextRow& row) {
    using enum TextId;
    static constexpr auto NamesOfControls = {lvLogbook, pbTagViewer, txContent,         ProgressBar,
                                             HelpHits,  HelpPage,    OverviewErrorText, SelectionLine};
    static constexpr auto TitlesAndKindsOfFiles = {
        GoToTimeTitle,      OverviewTitle,        OpenTitle,           OpenFilter,
        SaveArchiveFilter,  LogbookSettingsTitle, ExportFiltersTitle,  ExportFiltersFilter,
        ImportFiltersTitle, ImportFiltersFilter,  FilterSettingsTitle, StringSettingsTitle,
        FilterStringTitle,  EventEntryTitle,      SearchTitle,         HelpTitle,
        AboutTitle,         LanguageTitle};
    static constexpr auto Labels = {
        GoToTimeField,      GoToTimeDays,    GoToTimeDay,      lvFilter,         lvFilterStrings,
        StringColumnString, lbEvent,         lbIdent,          lbTime,           lbIndex,
        ButtonFind,         HelpSearchLabel, HelpSearchButton, HelpPagesFound,   AboutDesignation,
        AboutVersion,       AboutLicence,    AboutLibraries,   AboutLicenceText, LanguageLabel,
        LanguageNote,       LanguageEnglish, LanguageGerman,   SortAscending,    SortDescending,
        HistoryCode,        HistoryEnglish,  HistoryGerman,    HistoryFrom,      HistoryIn,
        HistoryOf,          HistoryStarts,   LanguageItalian,  LanguageSpanish,  LanguageFrench,
        LanguageSwedish,    LanguageFinnish, LanguageCzech,    LanguagePolish,   LanguageDanish};
    static constexpr auto OfTakingAlong = {ExportListTitle, ExportListFilter, ErrorTextsTitle,
                                           ErrorTextsArchiveFilter, ErrorTextsFiles};
    static constexpr auto NoWords = {CountSeparator, FilterFileUnreadableAfter};
    static constexpr auto NotShown = {PageSetup};
    const auto isOneOf = [&](const auto& list) {
        return std::find(list.begin(), list.end(), row.Id) != list.end();
    };
    return !isOneOf(NamesOfControls) && !isOneOf(TitlesAndKindsOfFiles) && !isOneOf(Labels) &&
           !isOneOf(OfTakingAlong) && !isOneOf(NoWords) && !isOneOf(NotShown);
}

std::set<std::string> ListedPictures() {
    std::istringstream stream(FileContent(HelpFolder / "pictures.txt"));
    std::set<std::string> names;
    for (std::string name; stream >> name;)
        names.insert("pictures/" + name + ".png");
    return names;
}

} // namespace

TEST(HelpPages, BothLanguagesHaveTheSamePages) {
    std::set<std::string> names[2];
    std::set<std::string> pictures[2];
    int language = 0;
    for (const char* code : Codes) {
        for (const auto& [name, page] : PagesOf(code)) {
            names[language].insert(name);
            pictures[language].insert(page.Pictures.begin(), page.Pictures.end());
        }
        ++language;
    }
    EXPECT_GT(names[0].size(), 20U);
    EXPECT_EQ(names[0], names[1]);
    EXPECT_EQ(pictures[0], pictures[1]);
}

TEST(HelpPages, HeadOfEachPage) {
    for (const std::string code : Codes)
        for (const auto& [name, page] : PagesOf(code)) {
            EXPECT_FALSE(page.Title.empty()) << code << "/" << name;
            EXPECT_EQ(page.Title, page.Heading) << code << "/" << name;
            EXPECT_NE(page.Html.find("content=\"text/html; charset=utf-8\""), std::string::npos) << name;
            EXPECT_NE(page.Html.find("<html lang=\"" + code + "\">"), std::string::npos) << name;
            EXPECT_EQ(HelpTextAsUtf8(page.Html), page.Html) << name;
        }
}

TEST(HelpPages, EachPageIsInTheContentsByItsTitle) {
    for (const std::string code : Codes) {
        std::map<std::string, std::string> titles; // by page
        const std::function<void(const std::vector<HelpTopic>&)> collect =
            [&](const std::vector<HelpTopic>& topics) {
                for (const HelpTopic& topic : topics) {
                    EXPECT_TRUE(titles.try_emplace(topic.Page, topic.Title).second) << topic.Page;
                    collect(topic.Topics);
                }
            };
        collect(ReadHelpContents(FileContent(HelpFolder / code / "Qorvix.hhc")));
        const std::map<std::string, Page> pages = PagesOf(code);
        EXPECT_EQ(titles.size(), pages.size());
        for (const auto& [name, page] : pages)
            EXPECT_EQ(titles['/' + name], page.Title) << code << "/" << name;
        // The project names each page, too.
        const std::string project = FileContent(HelpFolder / code / "Qorvix.hhp");
        for (const auto& [name, page] : pages)
            EXPECT_NE(project.find('\n' + name + '\n'), std::string::npos) << code << "/" << name;
    }
}

TEST(HelpPages, EachLinkLeadsToAPageByItsTitle) {
    int links = 0;
    for (const std::string code : Codes) {
        const std::map<std::string, Page> pages = PagesOf(code);
        for (const auto& [name, page] : pages)
            for (const std::string& link : page.Links) {
                ASSERT_TRUE(pages.contains(link)) << code << "/" << name << " links to " << link;
                EXPECT_NE(page.Html.find("<a href=\"" + link + "\">" + pages.at(link).Title + "</a>"),
                          std::string::npos)
                    << code << "/" << name << " names " << link << " by another title";
                ++links;
            }
    }
    EXPECT_GT(links, 70);
}

TEST(HelpPages, EachPageIsReachedByALink) {
    for (const std::string code : Codes) {
        const std::map<std::string, Page> pages = PagesOf(code);
        std::set<std::string> reached{"index.html", "window.html", "keys.html"};
        for (const auto& [name, page] : pages)
            reached.insert(page.Links.begin(), page.Links.end());
        for (const auto& [name, page] : pages)
            EXPECT_TRUE(reached.contains(name)) << code << "/" << name;
    }
}

TEST(HelpPages, PicturesAreThoseThatAreMade) {
    for (const std::string code : Codes) {
        std::set<std::string> used;
        for (const auto& [name, page] : PagesOf(code))
            used.insert(page.Pictures.begin(), page.Pictures.end());
        EXPECT_EQ(used, ListedPictures()) << code;
    }
}

TEST(HelpPages, EachPictureIsThere) {
    for (const std::string code : Codes)
        for (const std::string& picture : ListedPictures())
            EXPECT_TRUE(FileContent(HelpFolder / code / picture).starts_with("\x89PNG"))
                << code << "/" << picture;
}

TEST(HelpPages, WhatIsQuotedIsATextOfTheProgram) {
    std::size_t quotes = 0;
    for (const std::string code : Codes) {
        const std::set<std::string> texts = TextsOf(code == "de");
        for (const auto& [name, page] : PagesOf(code))
            for (const std::string& quoted : page.Quoted) {
                ++quotes;
                EXPECT_TRUE(texts.contains(quoted) || QuestionButtons.contains(quoted))
                    << code << "/" << name << " quotes: " << quoted;
            }
    }
    EXPECT_GT(quotes, 300U);
}

TEST(HelpPages, TextsAreExplained) {
    for (const std::string code : Codes) {
        std::set<std::string> quoted;
        for (const auto& [name, page] : PagesOf(code))
            quoted.insert(page.Quoted.begin(), page.Quoted.end());
        for (const TextRow& row : TextTable())
            if (MustBeExplained(row)) {
                const std::string text = AsQuoted(code == "de" ? row.German : row.English);
                EXPECT_TRUE(quoted.contains(text)) << code << ", no page explains: " << text;
            }
    }
}
