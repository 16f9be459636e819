// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace AsciiCopyDetail {

// Copies sixteen, eight or four characters; `seen` collects what was copied.
#if defined(__SSE2__)
struct Sixteen {
    static constexpr std::size_t Size = 16;
    __m128i seen = _mm_setzero_si128();

    void Copy(const char* from, char* to) {
        const __m128i characters = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(to), characters);
        seen = _mm_or_si128(seen, characters);
    }
    bool IsAscii() const { return _mm_movemask_epi8(seen) == 0; }
};
#endif

template <typename Number>
struct Several {
    static constexpr std::size_t Size = sizeof(Number);
    Number seen = 0;

    void Copy(const char* from, char* to) {
        Number characters = 0;
        std::memcpy(&characters, from, Size);
        std::memcpy(to, &characters, Size);
        seen = static_cast<Number>(seen | characters);
    }
    bool IsAscii() const { return (seen & static_cast<Number>(0x8080808080808080U)) == 0; }
};

// The text must fill at least one step. The last step overlaps the one before it, so that no character is
// copied singly.
template <typename Step>
bool Copy(std::string_view text, char* to) {
    Step step;
    const std::size_t last = text.size() - Step::Size;
    for (std::size_t place = 0; place < last; place += Step::Size)
        step.Copy(text.data() + place, to + place);
    step.Copy(text.data() + last, to + last);
    return step.IsAscii();
}

} // namespace AsciiCopyDetail

// Copies a text that is all ASCII, as nearly all texts are: it is the same in every code page and in UTF-8.
// Returns false for any other text; the bytes at `to` then have no meaning.
inline bool CopyAscii(std::string_view text, char* to) {
    using namespace AsciiCopyDetail;
#if defined(__SSE2__)
    if (text.size() >= 16)
        return Copy<Sixteen>(text, to);
#endif
    if (text.size() >= 8)
        return Copy<Several<std::uint64_t>>(text, to);
    if (text.size() >= 4)
        return Copy<Several<std::uint32_t>>(text, to);
    unsigned seen = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        to[place] = text[place];
        seen |= static_cast<unsigned char>(text[place]);
    }
    return seen < 0x80;
}
