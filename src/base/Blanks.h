// SPDX-License-Identifier: MIT
#pragma once

#include "base/CharacterBits.h"
#include "base/ShortText.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

inline constexpr char Blank = ' ';

// The functions look for blanks in eight characters at a time: as one number, whose lowest byte is the first
// character.
namespace BlanksDetail {
inline constexpr std::uint64_t EightBlanks = 0x2020202020202020U;
inline constexpr bool CanLoadEight = std::endian::native == std::endian::little;

// The difference from eight blanks: a byte that is 0 is a blank.
inline std::uint64_t DifferenceFromBlanks(const char* eight) { return LoadEight(eight) ^ EightBlanks; }
} // namespace BlanksDetail

// The text without the blanks (only 0x20) at both ends.
inline std::string_view Trim(std::string_view text) {
    const char* first = text.data();
    const char* last = first + text.size();
    if constexpr (BlanksDetail::CanLoadEight) {
        while (last - first >= 8) {
            const std::uint64_t other = BlanksDetail::DifferenceFromBlanks(first);
            first += std::countr_zero(other) / 8; // 64 / 8 when all are blanks
            if (other != 0)
                break;
        }
        while (last - first >= 8) {
            const std::uint64_t other = BlanksDetail::DifferenceFromBlanks(last - 8);
            last -= std::countl_zero(other) / 8;
            if (other != 0)
                return {first, static_cast<std::size_t>(last - first)};
        }
    }
    while (last != first && last[-1] == Blank)
        --last;
    while (first != last && *first == Blank)
        ++first;
    return {first, static_cast<std::size_t>(last - first)};
}

// The place of the text's first blank; its size when there is none. For texts whose blank is near.
inline std::size_t FindBlank(std::string_view text) {
    std::size_t place = 0;
    if constexpr (BlanksDetail::CanLoadEight)
        for (; text.size() - place >= 8; place += 8) {
            const std::uint64_t other = BlanksDetail::DifferenceFromBlanks(text.data() + place);
            // This sets the highest bit of the lowest byte that is 0, and perhaps of higher bytes.
            const std::uint64_t zero = (other - 0x0101010101010101U) & ~other & 0x8080808080808080U;
            if (zero != 0)
                return place + static_cast<std::size_t>(std::countr_zero(zero)) / 8;
        }
    while (place < text.size() && text[place] != Blank)
        ++place;
    return place;
}

// Trim for a field that is padded with many blanks; they cost nothing here.
inline std::string_view TrimPadded(std::string_view text) {
    if (text.empty() || text.size() > MostCharacterBits)
        return Trim(text);
    const std::uint64_t all = ~std::uint64_t{0} >> (MostCharacterBits - text.size());
    const std::uint64_t other = CharacterBits(text, Blank) ^ all;
    if (other == 0)
        return {};
    const auto first = static_cast<std::size_t>(std::countr_zero(other));
    const auto end = static_cast<std::size_t>(std::bit_width(other));
    return {text.data() + first, end - first};
}
