// SPDX-License-Identifier: MIT
#include "base/TextSearcher.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace {

// Bytes of a logbook's texts, the commonest first; all others are rarer.
constexpr std::string_view Common = "e nirtasdhul0cgm1obx2|345f678k9z->wpvEAMNSTRPLU";

std::size_t Rarity(char c) { return std::min(Common.find(c), Common.size()); }

char WithBits(char c, char bits) { return static_cast<char>(c | bits); }

} // namespace

TextSearcher::TextSearcher(std::string text) : text_(std::move(text)) {
    for (std::size_t place = 1; place < text_.size(); ++place)
        if (Rarity(text_[place]) > Rarity(text_[rare_]))
            rare_ = place;
    secondRare_ = text_.size() > 1 && rare_ == 0 ? 1 : 0;
    for (std::size_t place = 0; place < text_.size(); ++place)
        if (place != rare_ && Rarity(text_[place]) > Rarity(text_[secondRare_]))
            secondRare_ = place;
}

TextSearcher::TextSearcher(std::string text, std::string_view ignoredBits) : TextSearcher(std::move(text)) {
    ignoredBits_ = ignoredBits;
    exact_ = ignoredBits_.find_first_not_of('\0') == std::string::npos;
    for (std::size_t i = 0; i < text_.size(); ++i)
        text_[i] = WithBits(text_[i], ignoredBits_[i]);
}

bool TextSearcher::FitsAt(const char* place) const {
    for (std::size_t i = 0; i < text_.size(); ++i)
        if (WithBits(place[i], ignoredBits_[i]) != text_[i])
            return false;
    return true;
}

std::size_t TextSearcher::Find(std::string_view in, std::size_t from) const {
    return exact_ ? FindForm<true>(in, from) : FindForm<false>(in, from);
}

template <bool Exact>
std::size_t TextSearcher::FindForm(std::string_view in, std::size_t from) const {
    const std::size_t length = text_.size();
    if (from > in.size() || in.size() - from < length)
        return NotFound;
    if (length == 0)
        return from;
    const char* const begin = in.data();
    const char* place = begin + from;
    const char* const end = begin + in.size() - (length - 1); // of the places
#if defined(__SSE2__)
    const __m128i rare = _mm_set1_epi8(text_[rare_]);
    const __m128i secondRare = _mm_set1_epi8(text_[secondRare_]);
    const __m128i rareIgnored = _mm_set1_epi8(Exact ? '\0' : ignoredBits_[rare_]);
    const __m128i secondIgnored = _mm_set1_epi8(Exact ? '\0' : ignoredBits_[secondRare_]);
    const auto fitsAt = [&](const char* at) {
        __m128i first = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + rare_));
        __m128i second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + secondRare_));
        if constexpr (!Exact) {
            first = _mm_or_si128(first, rareIgnored);
            second = _mm_or_si128(second, secondIgnored);
        }
        return _mm_and_si128(_mm_cmpeq_epi8(first, rare), _mm_cmpeq_epi8(second, secondRare));
    };
    // Thirty-two places at a time; none reads past the end.
    for (; end - place >= 32; place += 32) {
        const __m128i low = fitsAt(place);
        const __m128i high = fitsAt(place + 16);
        if (_mm_movemask_epi8(_mm_or_si128(low, high)) == 0)
            continue;
        auto fits = static_cast<unsigned>(_mm_movemask_epi8(low)) |
                    static_cast<unsigned>(_mm_movemask_epi8(high)) << 16U;
        for (; fits != 0; fits &= fits - 1) {
            const char* const candidate = place + std::countr_zero(fits);
            const bool found = Exact ? std::memcmp(candidate, text_.data(), length) == 0 : FitsAt(candidate);
            if (found)
                return static_cast<std::size_t>(candidate - begin);
        }
    }
#endif
    if constexpr (Exact)
        return in.find(text_, static_cast<std::size_t>(place - begin));
    for (; place != end; ++place)
        if (FitsAt(place))
            return static_cast<std::size_t>(place - begin);
    return NotFound;
}
