// SPDX-License-Identifier: MIT
#include "helpbook/HelpSearch.h"

#include "helpbook/HtmlText.h"
#include "logbook/CaseFolding.h"

#include <algorithm>
#include <sstream>

std::vector<HelpHit> SearchHelp(const HelpBook& book, std::string_view words) {
    std::vector<std::string> wanted;
    std::istringstream stream(FoldCase(words));
    for (std::string word; stream >> word;)
        wanted.push_back(word);

    std::vector<HelpHit> inTitle;
    std::vector<HelpHit> inText;
    for (const std::string& page : PagesOf(book)) {
        const std::string name = TitleOf(book, page);
        const std::string title = FoldCase(name);
        const std::string text =
            FoldCase(ReadHtmlText(HelpTextAsUtf8(MemberOf(book, page).value_or(""))).Text);
        const auto isIn = [](const std::string& where) {
            return [&where](const std::string& word) { return where.find(word) != std::string::npos; };
        };
        const bool found =
            !wanted.empty() && std::all_of(wanted.begin(), wanted.end(), [&](const std::string& word) {
                return isIn(title)(word) || isIn(text)(word);
            });
        if (found)
            (std::any_of(wanted.begin(), wanted.end(), isIn(title)) ? inTitle : inText)
                .push_back({name, page});
    }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}
