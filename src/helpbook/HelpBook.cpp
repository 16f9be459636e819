// SPDX-License-Identifier: MIT
#include "helpbook/HelpBook.h"

#include "helpbook/HtmlText.h"

#include <algorithm>
#include <functional>

namespace {

// The file describes itself in its member "#SYSTEM": a version of four bytes, then pieces, each with a kind,
// a length and that many bytes.
struct SystemTexts {
    std::string ContentsFile;
    std::string FirstPage;
    std::string Title;
};

SystemTexts ReadSystemTexts(std::string_view bytes) {
    constexpr unsigned ContentsFile = 0;
    constexpr unsigned FirstPage = 2;
    constexpr unsigned Title = 3;
    const auto number = [&](std::size_t place) {
        return static_cast<unsigned char>(bytes[place]) |
               static_cast<unsigned>(static_cast<unsigned char>(bytes[place + 1])) << 8;
    };
    SystemTexts texts;
    for (std::size_t place = 4; place + 4 <= bytes.size();) {
        const unsigned kind = number(place);
        const std::string_view piece = bytes.substr(place + 4, number(place + 2));
        const std::string text = HelpTextAsUtf8(piece.substr(0, piece.find('\0')));
        if (kind == ContentsFile)
            texts.ContentsFile = '/' + text;
        else if (kind == FirstPage)
            texts.FirstPage = '/' + text;
        else if (kind == Title)
            texts.Title = text;
        place += 4 + piece.size();
    }
    return texts;
}

bool IsPage(std::string_view path) {
    const std::string name = LowerCase(path);
    return name.ends_with(".html") || name.ends_with(".htm");
}

void ForEachTopic(const std::vector<HelpTopic>& topics, const std::function<void(const HelpTopic&)>& visit) {
    for (const HelpTopic& topic : topics) {
        visit(topic);
        ForEachTopic(topic.Topics, visit);
    }
}

std::string WithoutPlace(std::string_view page) { return std::string(page.substr(0, page.find('#'))); }

} // namespace

std::optional<HelpBook> MakeHelpBook(HelpMembers members) {
    HelpBook book;
    book.Members = std::move(members);
    const SystemTexts system = ReadSystemTexts(MemberOf(book, "/#SYSTEM").value_or(""));
    std::optional<std::string_view> contents = MemberOf(book, system.ContentsFile);
    for (auto member = book.Members.begin(); !contents && member != book.Members.end(); ++member)
        if (LowerCase(member->first).ends_with(".hhc"))
            contents = MemberOf(book, member->first);
    book.Contents = ReadHelpContents(HelpTextAsUtf8(contents.value_or("")));
    book.Title = system.Title;

    std::vector<std::string> pages{system.FirstPage};
    ForEachTopic(book.Contents, [&](const HelpTopic& topic) { pages.push_back(WithoutPlace(topic.Page)); });
    const auto first = std::find_if(pages.begin(), pages.end(), [&](const std::string& page) {
        return MemberOf(book, page).has_value();
    });
    if (book.Contents.empty() || first == pages.end())
        return std::nullopt;
    book.FirstPage = *first;
    return book;
}

std::optional<HelpBook> OpenHelpBook(const std::filesystem::path& file, const std::filesystem::path& reader) {
    std::optional<HelpMembers> members = ReadChmFile(file, reader);
    return members ? MakeHelpBook(std::move(*members)) : std::nullopt;
}

std::optional<std::string_view> MemberOf(const HelpBook& book, std::string_view path) {
    const auto found = book.Members.find(path);
    return found == book.Members.end() || found->second.empty()
               ? std::nullopt
               : std::optional<std::string_view>(found->second);
}

std::vector<std::string> PagesOf(const HelpBook& book) {
    std::vector<std::string> pages;
    const auto add = [&](const std::string& page) {
        if (MemberOf(book, page) && std::find(pages.begin(), pages.end(), page) == pages.end())
            pages.push_back(page);
    };
    ForEachTopic(book.Contents, [&](const HelpTopic& topic) { add(WithoutPlace(topic.Page)); });
    for (const auto& [path, content] : book.Members)
        if (IsPage(path))
            add(path);
    return pages;
}

std::string TitleOf(const HelpBook& book, std::string_view page) {
    std::string title;
    ForEachTopic(book.Contents, [&](const HelpTopic& topic) {
        if (title.empty() && IsSameWithoutCase(topic.Page, page))
            title = topic.Title;
    });
    if (!title.empty())
        return title;
    title = ReadHtmlText(HelpTextAsUtf8(MemberOf(book, page).value_or(""))).Title;
    return title.empty() ? std::string(page) : title;
}
