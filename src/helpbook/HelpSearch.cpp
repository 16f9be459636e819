// SPDX-License-Identifier: MIT
#include "helpbook/HelpSearch.h"

#include "helpbook/HtmlText.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sstream>

namespace {

std::string FoldCase(std::string_view text) {
    utf8proc_uint8_t* folded = nullptr;
    const utf8proc_ssize_t length = utf8proc_map(
        reinterpret_cast<const utf8proc_uint8_t*>(text.data()), static_cast<utf8proc_ssize_t>(text.size()),
        &folded, static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(folded, &std::free);
    if (length < 0)
        return std::string(text);
    return {reinterpret_cast<const char*>(folded), static_cast<std::size_t>(length)};
}

} // namespace

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
