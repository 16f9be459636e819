// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// How far FindLineBreak may read past the line break that it finds, in bytes.
inline constexpr std::size_t LineBreakOverrun = 32;

// The first CR or LF at or behind `text`; there must be one. One comparison finds all characters up to CR.
// The others among these, of which only the tab is usual in a text, are skipped one by one. Steps of 32 are
// best for lines of 10 to 80 characters. Two calls of memchr would be slower.
inline const char* FindLineBreak(const char* text) {
    const auto isLineBreak = [](char c) { return c == '\n' || c == '\r'; };
#if defined(__SSE2__)
    const __m128i highest = _mm_set1_epi8('\r');
    const auto controlsAt = [&](const char* place) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(place));
        const __m128i above = _mm_subs_epu8(bytes, highest);
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(above, _mm_setzero_si128())));
    };
    for (;; text += 32)
        for (unsigned found = controlsAt(text) | controlsAt(text + 16) << 16U; found != 0; found &= found - 1)
            if (const char* const place = text + std::countr_zero(found); isLineBreak(*place))
                return place;
#else
    while (!isLineBreak(*text))
        ++text;
    return text;
#endif
}
