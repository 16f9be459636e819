// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

// How far FindLineBreak may read past the line break that it finds, in bytes.
inline constexpr std::size_t LineBreakOverrun = 64;

// The first CR or LF at or behind `text`; there must be one. One look serves both characters, and most lines
// end within the first 64: this is why it is not two calls of memchr.
inline const char* FindLineBreak(const char* text) {
#if defined(__SSE2__)
    const __m128i lf = _mm_set1_epi8('\n');
    const __m128i cr = _mm_set1_epi8('\r');
    const auto breaksAt = [&](std::size_t offset) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text + offset));
        const int found =
            _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(bytes, lf), _mm_cmpeq_epi8(bytes, cr)));
        return static_cast<std::uint64_t>(static_cast<unsigned>(found)) << offset;
    };
    for (;; text += 64)
        if (const std::uint64_t found = breaksAt(0) | breaksAt(16) | breaksAt(32) | breaksAt(48); found != 0)
            return text + std::countr_zero(found);
#else
    while (*text != '\n' && *text != '\r')
        ++text;
    return text;
#endif
}
