// SPDX-License-Identifier: MIT
#include "logbook/EntrySet.h"

#include <bit>

namespace {

// The bits of the word's places from `place` on; 0 for place 64.
std::uint64_t BitsFrom(unsigned place) { return place < 64 ? ~std::uint64_t{0} << place : 0; }

} // namespace

std::size_t EntrySet::Count(EntryNumber first, EntryNumber end) const {
    if (first >= end)
        return 0;
    const std::size_t firstWord = first / 64;
    const std::size_t lastWord = (end - 1) / 64;
    std::size_t count = 0;
    for (std::size_t word = firstWord; word <= lastWord; ++word) {
        std::uint64_t bits = words_[word];
        if (word == firstWord)
            bits &= BitsFrom(first % 64U);
        if (word == lastWord)
            bits &= ~BitsFrom((end - 1) % 64U + 1);
        count += static_cast<std::size_t>(std::popcount(bits));
    }
    return count;
}

std::optional<EntryNumber> EntrySet::FirstFrom(EntryNumber from) const {
    for (std::size_t word = from / 64; word < words_.size(); ++word) {
        std::uint64_t bits = words_[word];
        if (word == from / 64)
            bits &= BitsFrom(from % 64U);
        if (bits != 0)
            return static_cast<EntryNumber>(word * 64 + static_cast<unsigned>(std::countr_zero(bits)));
    }
    return std::nullopt;
}

std::optional<EntryNumber> EntrySet::LastBefore(EntryNumber before) const {
    for (std::size_t word = (std::size_t{before} + 63) / 64; word-- > 0;) {
        std::uint64_t bits = words_[word];
        if (word == before / 64)
            bits &= ~BitsFrom(before % 64U);
        if (bits != 0)
            return static_cast<EntryNumber>(word * 64 + 63 - static_cast<unsigned>(std::countl_zero(bits)));
    }
    return std::nullopt;
}

void EntrySet::AddAll(const EntrySet& other) {
    for (std::size_t word = 0; word < words_.size(); ++word)
        words_[word] |= other.words_[word];
}

std::vector<EntryNumber> EntrySet::Numbers() const {
    std::vector<EntryNumber> numbers;
    numbers.reserve(Count(0, end_));
    for (std::optional<EntryNumber> entry = FirstFrom(0); entry; entry = FirstFrom(*entry + 1))
        numbers.push_back(*entry);
    return numbers;
}
