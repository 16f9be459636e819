// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

inline constexpr std::size_t MostCharacterBits = 64;

// Where a character stands in a text of at most MostCharacterBits characters: one bit for each place, the
// lowest for the first. A caller reads the text once and then takes its words from the bits.
inline std::uint64_t CharacterBits(std::string_view text, char character) {
    std::uint64_t bits = 0;
#if defined(__SSE2__)
    const __m128i wanted = _mm_set1_epi8(character);
    const auto bitsOf = [&](__m128i sixteen) {
        return static_cast<std::uint64_t>(
            static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(sixteen, wanted))));
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
        bits |= static_cast<std::uint64_t>(text[place] == character ? 1 : 0) << place;
    return bits;
}
