// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

inline constexpr char Blank = ' ';

// Blanks are looked for eight characters at a time: as one number, in which the first character is the lowest
// byte.
namespace BlanksDetail {
inline constexpr std::uint64_t EightBlanks = 0x2020202020202020U;
inline constexpr bool CanLoadEight = std::endian::native == std::endian::little;

// What differs from eight blanks: the bytes that are 0 are blanks.
inline std::uint64_t DifferenceFromBlanks(const char* eight) {
    std::uint64_t value = 0;
    std::memcpy(&value, eight, 8);
    return value ^ EightBlanks;
}
} // namespace BlanksDetail

// The text without the blanks (0x20, nothing else) at both ends.
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
            // The lowest byte that is 0 gets its highest bit set; higher bytes may get it, too.
            const std::uint64_t zero = (other - 0x0101010101010101U) & ~other & 0x8080808080808080U;
            if (zero != 0)
                return place + static_cast<std::size_t>(std::countr_zero(zero)) / 8;
        }
    while (place < text.size() && text[place] != Blank)
        ++place;
    return place;
}

inline constexpr std::size_t MostBlankBits = 64;

// Which of the characters are blanks, of a text of at most MostBlankBits: the lowest bit is the first
// character. One look at a text, from which its words are then taken without another.
inline std::uint64_t BlankBits(std::string_view text) {
    std::uint64_t bits = 0;
#if defined(__SSE2__)
    const __m128i blanks = _mm_set1_epi8(Blank);
    const auto bitsOf = [&](__m128i sixteen) {
        return static_cast<std::uint64_t>(
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(sixteen, blanks))));
    };
    const char* const begin = text.data();
    const std::size_t size = text.size();
    // The last step overlaps the one before it, so that nothing outside of the text is read.
    if (size >= 16) {
        const auto load = [&](std::size_t place) {
            return _mm_loadu_si128(reinterpret_cast<const __m128i*>(begin + place));
        };
        for (std::size_t place = 0; place + 16 < size; place += 16)
            bits |= bitsOf(load(place)) << place;
        return bits | bitsOf(load(size - 16)) << (size - 16);
    }
    if (size >= 8) {
        const auto load = [&](std::size_t place) {
            return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(begin + place));
        };
        const std::uint64_t both = bitsOf(_mm_unpacklo_epi64(load(0), load(size - 8)));
        return (both & 0xFFU) | both >> 8U << (size - 8);
    }
#endif
    for (std::size_t place = 0; place < text.size(); ++place)
        bits |= static_cast<std::uint64_t>(text[place] == Blank ? 1 : 0) << place;
    return bits;
}

// Trim for a field that is filled up with many blanks, or none; these cost nothing here.
inline std::string_view TrimPadded(std::string_view text) {
    if (text.empty() || text.size() > MostBlankBits)
        return Trim(text);
    const std::uint64_t all = ~std::uint64_t{0} >> (MostBlankBits - text.size());
    const std::uint64_t other = BlankBits(text) ^ all;
    if (other == 0)
        return {};
    const auto first = static_cast<std::size_t>(std::countr_zero(other));
    const auto end = static_cast<std::size_t>(std::bit_width(other));
    return {text.data() + first, end - first};
}
