// SPDX-License-Identifier: MIT
#include "base/UnicodeCase.h"

#include "base/AsciiCase.h"

#include <utf8proc.h>

#include <algorithm>
#include <map>

namespace {

constexpr char32_t CodePoints = 0x110000;

struct Character {
    utf8proc_int32_t CodePoint;
    std::size_t Length; // in bytes; 0 = no UTF-8
};

Character CharacterAt(std::string_view text, std::size_t place) {
    Character character{};
    const utf8proc_ssize_t length =
        utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(text.data() + place),
                         static_cast<utf8proc_ssize_t>(text.size() - place), &character.CodePoint);
    character.Length = length > 0 ? static_cast<std::size_t>(length) : 0;
    return character;
}

void Append(std::string& text, utf8proc_int32_t codePoint) {
    utf8proc_uint8_t bytes[4];
    const utf8proc_ssize_t length = utf8proc_encode_char(codePoint, bytes);
    text.append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

bool IsAscii(char c) { return static_cast<unsigned char>(c) < 0x80; }

// For each lower-case character, the other characters that become it.
std::map<char32_t, std::vector<char32_t>> MakeCapitals() {
    std::map<char32_t, std::vector<char32_t>> capitals;
    for (char32_t c = 0; c < CodePoints; ++c)
        if (const utf8proc_int32_t lower = utf8proc_tolower(static_cast<utf8proc_int32_t>(c));
            static_cast<char32_t>(lower) != c)
            capitals[static_cast<char32_t>(lower)].push_back(c);
    return capitals;
}

} // namespace

void UnicodeLower(std::string_view text, std::string& lower) {
    lower.clear();
    for (std::size_t place = 0; place < text.size();) {
        if (IsAscii(text[place])) {
            lower += LowerCase(text[place++]);
            continue;
        }
        const Character character = CharacterAt(text, place);
        if (character.Length == 0) {
            lower += text[place++];
            continue;
        }
        Append(lower, utf8proc_tolower(character.CodePoint));
        place += character.Length;
    }
}

std::string UnicodeLower(std::string_view text) {
    std::string lower;
    UnicodeLower(text, lower);
    return lower;
}

std::vector<char32_t> FormsOfLower(char32_t lower) {
    // Going through all characters takes some milliseconds.
    static const std::map<char32_t, std::vector<char32_t>> Capitals = MakeCapitals();
    std::vector<char32_t> forms;
    if (const auto capitals = Capitals.find(lower); capitals != Capitals.end())
        forms = capitals->second;
    if (static_cast<char32_t>(utf8proc_tolower(static_cast<utf8proc_int32_t>(lower))) == lower)
        forms.push_back(lower);
    return forms;
}

std::size_t CharacterCount(std::string_view text) {
    const auto begins = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), begins));
}

bool IsUtf8(std::string_view text) {
    for (std::size_t place = 0; place < text.size();) {
        const std::size_t length = IsAscii(text[place]) ? 1 : CharacterAt(text, place).Length;
        if (length == 0)
            return false;
        place += length;
    }
    return true;
}
