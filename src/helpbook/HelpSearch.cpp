// SPDX-License-Identifier: MIT
#include "helpbook/HelpSearch.h"

#include "base/CaseFolding.h"
#include "helpbook/HtmlText.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

using namespace std::string_view_literals;

constexpr std::string_view Blanks = " \t\r\n";

// In UTF-8: those outside ASCII have several bytes.
constexpr std::array Quotes{"\""sv, "„"sv, "“"sv, "”"sv, "«"sv, "»"sv};
constexpr std::array Punctuation{","sv, "."sv, ":"sv, ";"sv, "!"sv, "?"sv, "("sv, ")"sv,
                                 "["sv, "]"sv, "{"sv, "}"sv, "'"sv, "‚"sv, "‘"sv, "’"sv};

template <typename Marks>
std::string_view MarkAtBegin(std::string_view text, const Marks& marks) {
    const auto mark = std::find_if(marks.begin(), marks.end(), [&](auto m) { return text.starts_with(m); });
    return mark == marks.end() ? std::string_view() : *mark;
}

template <typename Marks>
std::string_view MarkAtEnd(std::string_view text, const Marks& marks) {
    const auto mark = std::find_if(marks.begin(), marks.end(), [&](auto m) { return text.ends_with(m); });
    return mark == marks.end() ? std::string_view() : *mark;
}

void SkipBlanksAndPunctuation(std::string_view& text) {
    while (!text.empty()) {
        const std::size_t mark = MarkAtBegin(text, Punctuation).size();
        if (mark == 0 && Blanks.find(text.front()) == std::string_view::npos)
            return;
        text.remove_prefix(std::max<std::size_t>(mark, 1));
    }
}

// Cuts off the text up to the next of these marks, with the mark.
template <typename Marks>
std::string_view TakeUpTo(std::string_view& text, const Marks& marks) {
    std::size_t length = 0;
    while (length < text.size() && MarkAtBegin(text.substr(length), marks).empty())
        ++length;
    const std::string_view taken = text.substr(0, length);
    text.remove_prefix(length);
    text.remove_prefix(MarkAtBegin(text, marks).size());
    return taken;
}

std::string WithSingleBlanks(std::string_view text) {
    std::string result;
    for (const char c : text)
        if (Blanks.find(c) == std::string_view::npos)
            result += c;
        else if (!result.empty() && result.back() != ' ')
            result += ' ';
    if (result.ends_with(' '))
        result.pop_back();
    return result;
}

std::string_view WithoutMarksAtEnd(std::string_view word) {
    while (true) {
        const std::size_t mark =
            std::max(MarkAtEnd(word, Punctuation).size(), MarkAtEnd(word, Quotes).size());
        if (mark == 0)
            return word;
        word.remove_suffix(mark);
    }
}

} // namespace

std::vector<std::string> HelpTerms(std::string_view words) {
    std::vector<std::string> terms;
    const auto add = [&](std::string term) {
        if (!term.empty())
            terms.push_back(std::move(term));
    };
    while (true) {
        SkipBlanksAndPunctuation(words);
        if (words.empty())
            return terms;
        if (const std::string_view quote = MarkAtBegin(words, Quotes); !quote.empty()) {
            words.remove_prefix(quote.size());
            add(WithSingleBlanks(TakeUpTo(words, Quotes)));
        } else {
            add(std::string(WithoutMarksAtEnd(TakeUpTo(words, std::array{" "sv, "\t"sv, "\r"sv, "\n"sv}))));
        }
    }
}

std::vector<HelpHit> SearchHelp(const HelpBook& book, const std::vector<std::string>& terms) {
    std::vector<std::string> wanted;
    std::transform(terms.begin(), terms.end(), std::back_inserter(wanted),
                   [](const std::string& term) { return FoldCase(term); });

    std::vector<HelpHit> inTitle;
    std::vector<HelpHit> inText;
    for (const std::string& page : PagesOf(book)) {
        const std::string name = TitleOf(book, page);
        const std::string title = FoldCase(name);
        const std::string text =
            FoldCase(ReadHtmlText(HelpTextAsUtf8(MemberOf(book, page).value_or(""))).Text);
        const auto isIn = [](const std::string& where) {
            return [&where](const std::string& term) { return where.find(term) != std::string::npos; };
        };
        const bool found =
            !wanted.empty() && std::all_of(wanted.begin(), wanted.end(), [&](const std::string& term) {
                return isIn(title)(term) || isIn(text)(term);
            });
        if (found)
            (std::any_of(wanted.begin(), wanted.end(), isIn(title)) ? inTitle : inText)
                .push_back({name, page});
    }
    inTitle.insert(inTitle.end(), inText.begin(), inText.end());
    return inTitle;
}
