// SPDX-License-Identifier: MIT
#include "base/VisibleControls.h"

#include <algorithm>
#include <cstddef>

namespace {

unsigned Byte(char c) { return static_cast<unsigned char>(c); }

// The number of bytes of the text's first character; 1 also for a byte that begins no character.
std::size_t CharacterLength(std::string_view text) {
    struct Lead {
        unsigned First; // of the bytes that begin such a character
        unsigned Last;
        unsigned Second; // the least second byte
        unsigned Highest;
        std::size_t Length;
    };
    constexpr Lead Leads[] = {{0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
                              {0xE1, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
                              {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};
    const unsigned first = Byte(text.front());
    for (const Lead& lead : Leads) {
        if (first < lead.First || first > lead.Last)
            continue;
        const bool isWhole = text.size() >= lead.Length && Byte(text[1]) >= lead.Second &&
                             Byte(text[1]) <= lead.Highest &&
                             std::all_of(text.begin() + 2, text.begin() + static_cast<long>(lead.Length),
                                         [](char c) { return (Byte(c) & 0xC0U) == 0x80U; });
        return isWhole ? lead.Length : 1;
    }
    return 1;
}

bool IsControl(unsigned character) { return character < 0x20 || (character >= 0x7F && character <= 0x9F); }

} // namespace

std::string WithVisibleControls(std::string_view utf8, std::string_view kept) {
    constexpr std::string_view Digits = "0123456789abcdef";
    std::string text;
    text.reserve(utf8.size());
    for (;;) {
        const auto special =
            std::find_if(utf8.begin(), utf8.end(), [](char c) { return Byte(c) < 0x20 || Byte(c) >= 0x7F; });
        const auto plain = static_cast<std::size_t>(special - utf8.begin());
        text.append(utf8.substr(0, plain));
        utf8.remove_prefix(plain);
        if (utf8.empty())
            return text;
        const std::size_t length = CharacterLength(utf8);
        // U+0080 to U+009F have their number as the second byte.
        const bool isSecond = length == 2 && Byte(utf8.front()) == 0xC2;
        const unsigned number = Byte(utf8[isSecond ? 1 : 0]);
        if ((length == 1 || isSecond) && IsControl(number) &&
            kept.find(utf8.front()) == std::string_view::npos)
            text.append("\\u00").append({Digits[number >> 4U], Digits[number & 0xFU]});
        else
            text.append(utf8.substr(0, length));
        utf8.remove_prefix(length);
    }
}
