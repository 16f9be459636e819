// SPDX-License-Identifier: MIT
#include "helpbook/HtmlText.h"

#include "base/CodePage.h"
#include "helpbook/HtmlTags.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>

namespace {

// Tags inside a word or a sentence; all others stand between two texts.
constexpr std::array<std::string_view, 12> InlineTags{"a", "b",  "/a", "/b",  "code", "/code",
                                                      "i", "em", "/i", "/em", "kbd",  "/kbd"};

bool IsUtf8(std::string_view bytes) {
    const auto* place = reinterpret_cast<const utf8proc_uint8_t*>(bytes.data());
    auto left = static_cast<utf8proc_ssize_t>(bytes.size());
    while (left > 0) {
        utf8proc_int32_t code = 0;
        const utf8proc_ssize_t length = utf8proc_iterate(place, left, &code);
        if (length <= 0)
            return false;
        place += length;
        left -= length;
    }
    return true;
}

void AppendWithSingleBlanks(std::string& text, std::string_view more) {
    for (const char c : more) {
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\f';
        if (!blank)
            text += c;
        else if (!text.empty() && text.back() != ' ')
            text += ' ';
    }
}

} // namespace

std::string HelpTextAsUtf8(std::string_view bytes) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (bytes.starts_with(Mark))
        bytes.remove_prefix(Mark.size());
    return IsUtf8(bytes) ? std::string(bytes) : CodePage().ToUtf8(bytes);
}

HtmlText ReadHtmlText(std::string_view html) {
    HtmlText result;
    std::string* target = &result.Text;
    HtmlTags tags(html);
    for (HtmlPiece piece; tags.Next(piece);) {
        if (piece.Tag.empty())
            AppendWithSingleBlanks(*target, WithoutCharacterReferences(piece.Text));
        else if (piece.Tag == "title")
            target = &result.Title;
        else if (piece.Tag == "/title")
            target = &result.Text;
        else if (std::find(InlineTags.begin(), InlineTags.end(), piece.Tag) == InlineTags.end())
            AppendWithSingleBlanks(*target, " ");
    }
    for (std::string* text : {&result.Title, &result.Text})
        if (text->ends_with(' '))
            text->pop_back();
    return result;
}
