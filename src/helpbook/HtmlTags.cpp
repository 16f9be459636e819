// SPDX-License-Identifier: MIT
#include "helpbook/HtmlTags.h"

#include "base/AsciiCase.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <utility>

namespace {

constexpr std::string_view Blanks = " \t\r\n\f";

constexpr auto NamedCharacters = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"amp", "&"},
    {"lt", "<"},
    {"gt", ">"},
    {"quot", "\""},
    {"apos", "'"},
    {"nbsp", " "},
    {"auml", "ä"},
    {"ouml", "ö"},
    {"uuml", "ü"},
    {"Auml", "Ä"},
    {"Ouml", "Ö"},
    {"Uuml", "Ü"},
    {"szlig", "ß"},
});

void AppendUtf8(std::string& text, std::uint32_t code) {
    const auto byte = [&](std::uint32_t value) { text += static_cast<char>(value); };
    if (code < 0x80) {
        byte(code);
    } else if (code < 0x800) {
        byte(0xC0 | code >> 6);
        byte(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
        byte(0xE0 | code >> 12);
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    } else {
        byte(0xF0 | code >> 18);
        byte(0x80 | (code >> 12 & 0x3F));
        byte(0x80 | (code >> 6 & 0x3F));
        byte(0x80 | (code & 0x3F));
    }
}

// Appends the character for the name between "&" and ";"; false when the name is unknown.
bool AppendReference(std::string& text, std::string_view name) {
    if (name.starts_with('#')) {
        const bool hexadecimal = name.size() > 1 && LowerCase(name[1]) == 'x';
        name.remove_prefix(hexadecimal ? 2 : 1);
        std::uint32_t code = 0;
        const auto [end, error] =
            std::from_chars(name.data(), name.data() + name.size(), code, hexadecimal ? 16 : 10);
        const bool isCharacter = code > 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
        if (name.empty() || error != std::errc() || end != name.data() + name.size() || !isCharacter)
            return false;
        AppendUtf8(text, code);
        return true;
    }
    for (const auto& [known, character] : NamedCharacters)
        if (name == known) {
            text += character;
            return true;
        }
    return false;
}

} // namespace

bool HtmlTags::SkipBehind(std::string_view end) {
    const auto found = std::search(rest_.begin(), rest_.end(), end.begin(), end.end(),
                                   [](char a, char b) { return LowerCase(a) == b; });
    if (found == rest_.end())
        return false;
    rest_.remove_prefix(static_cast<std::size_t>(found - rest_.begin()) + end.size());
    return true;
}

bool HtmlTags::Next(HtmlPiece& piece) {
    piece = {};
    while (rest_.starts_with("<!--"))
        if (!SkipBehind("-->"))
            rest_ = {};
    if (rest_.empty())
        return false;
    const std::size_t end = rest_.front() == '<' ? rest_.find('>') : std::string_view::npos;
    if (end == std::string_view::npos) {
        const std::size_t next = rest_.find('<', 1);
        piece.Text = rest_.substr(0, next);
        rest_.remove_prefix(piece.Text.size());
        return true;
    }
    const std::string_view tag = rest_.substr(1, end - 1);
    const std::size_t blank = tag.find_first_of(Blanks);
    piece.Tag = LowerCase(tag.substr(0, blank));
    if (piece.Tag.empty())
        piece.Tag = "!";
    if (blank != std::string_view::npos)
        piece.Attributes = tag.substr(blank);
    rest_.remove_prefix(end + 1);
    if ((piece.Tag == "script" || piece.Tag == "style") && !SkipBehind("</" + piece.Tag + ">"))
        rest_ = {};
    return true;
}

std::string HtmlAttribute(std::string_view attributes, std::string_view name) {
    while (true) {
        const std::size_t begin = attributes.find_first_not_of(Blanks);
        if (begin == std::string_view::npos)
            return {};
        attributes.remove_prefix(begin);
        const std::string_view key = attributes.substr(0, attributes.find_first_of(" \t\r\n\f="));
        attributes.remove_prefix(key.empty() ? 1 : key.size());
        std::string_view value;
        const std::size_t sign = attributes.find_first_not_of(Blanks);
        if (!key.empty() && sign != std::string_view::npos && attributes[sign] == '=') {
            attributes.remove_prefix(sign + 1);
            const std::size_t at = attributes.find_first_not_of(Blanks);
            attributes.remove_prefix(at == std::string_view::npos ? attributes.size() : at);
            const bool quoted = attributes.starts_with('"') || attributes.starts_with('\'');
            if (quoted) {
                const char quote = attributes.front();
                attributes.remove_prefix(1);
                value = attributes.substr(0, attributes.find(quote));
                attributes.remove_prefix(value.size());
                if (!attributes.empty())
                    attributes.remove_prefix(1);
            } else {
                value = attributes.substr(0, attributes.find_first_of(Blanks));
                attributes.remove_prefix(value.size());
            }
        }
        if (IsSameWithoutCase(key, name))
            return WithoutCharacterReferences(value);
    }
}

std::string WithoutCharacterReferences(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t mark = text.find('&');
        plain += text.substr(0, mark);
        if (mark == std::string_view::npos)
            break;
        text.remove_prefix(mark + 1);
        const std::size_t end = text.substr(0, 12).find(';');
        if (end != std::string_view::npos && AppendReference(plain, text.substr(0, end)))
            text.remove_prefix(end + 1);
        else
            plain += '&';
    }
    return plain;
}
