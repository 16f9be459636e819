// SPDX-License-Identifier: MIT
// Any bytes as members of a help file: the first line holds words to search for; below it stand the file's
// description of itself, the contents and three pages, with a line "==" between them.
#include "FuzzSupport.h"
#include "helpbook/HelpBook.h"
#include "helpbook/HelpSearch.h"
#include "helpbook/HtmlText.h"

#include <algorithm>
#include <set>

namespace {

void CheckTopics(const std::vector<HelpTopic>& topics, int level) {
    constexpr int MostLevels = 34;
    Check(level < MostLevels);
    for (const HelpTopic& topic : topics) {
        Check(!topic.Title.empty() && IsUtf8(topic.Title) && IsUtf8(topic.Page));
        Check(topic.Page.empty() || topic.Page.starts_with('/'));
        CheckTopics(topic.Topics, level + 1);
    }
}

void CheckText(const std::string& text) {
    Check(IsUtf8(text) && text.find("  ") == std::string::npos);
    Check(!text.starts_with(' ') && !text.ends_with(' '));
    Check(text.find_first_of("\t\r\n\f") == std::string::npos);
}

void CheckSearch(const HelpBook& book, const std::vector<std::string>& pages, const std::string& words) {
    const std::vector<std::string> terms = HelpTerms(words);
    const std::vector<HelpHit> hits = SearchHelp(book, terms);
    Check(!terms.empty() || hits.empty());
    for (const HelpHit& hit : hits)
        Check(std::find(pages.begin(), pages.end(), hit.Page) != pages.end() &&
              hit.Title == TitleOf(book, hit.Page));
}

void CheckBook(const HelpBook& book, const std::string& words) {
    Check(!book.Contents.empty() && MemberOf(book, book.FirstPage) && IsUtf8(book.Title));
    CheckTopics(book.Contents, 0);
    const std::vector<std::string> pages = PagesOf(book);
    Check(std::set<std::string>(pages.begin(), pages.end()).size() == pages.size());
    CheckSearch(book, pages, words);
    for (const std::string& page : pages) {
        Check(MemberOf(book, page).has_value());
        const std::string title = TitleOf(book, page);
        const std::vector<std::string> terms = HelpTerms(title);
        const std::vector<HelpHit> hits = SearchHelp(book, terms);
        Check(terms.empty() || std::find(hits.begin(), hits.end(), HelpHit{title, page}) != hits.end());
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = TextOf(data, size);
    const std::string words = HelpTextAsUtf8(TakeLine(rest));
    HelpMembers members;
    for (const char* const path : {"/#SYSTEM", "/toc.hhc", "/a.html", "/B.htm", "/c.html"}) {
        const std::string_view member = TakePart(rest, "\n==\n");
        members.emplace(path, member);
        const HtmlText text = ReadHtmlText(HelpTextAsUtf8(member));
        CheckText(text.Title);
        CheckText(text.Text);
    }
    if (const std::optional<HelpBook> book = MakeHelpBook(std::move(members)))
        CheckBook(*book, words);
    return 0;
}
