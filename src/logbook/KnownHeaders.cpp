// SPDX-License-Identifier: MIT
#include "logbook/KnownHeaders.h"

#include "base/ShortText.h"

#include <bit>
#include <cstring>

namespace {

// The places to load the columns from, eight at a time; the last step overlaps the one before it.
constexpr std::array<std::size_t, 6> Steps{0, 8, 16, 24, 32, KnownHeader::Columns - 8};

} // namespace

void KnownHeader::SetFields(std::string_view line, std::string_view sender, std::string_view name) {
    const auto fieldOf = [&](std::string_view text) {
        return text.empty() ? Field{}
                            : Field{static_cast<std::uint8_t>(text.data() - line.data()),
                                    static_cast<std::uint8_t>(text.size())};
    };
    sender_ = fieldOf(sender);
    name_ = fieldOf(name);
    state_ = State::HasFields;
}

KnownHeader* KnownHeaders::Find(std::string_view line, std::uint8_t variant) {
    if (line.size() < KnownHeader::Columns)
        return nullptr;
    std::array<std::uint64_t, Steps.size()> eights;
    std::uint64_t mixed = variant;
    for (std::size_t i = 0; i < Steps.size(); ++i) {
        eights[i] = LoadEight(line.data() + Steps[i]);
        mixed = std::rotl(mixed, 11) ^ eights[i];
    }
    std::size_t slot = mixed * 0x9E3779B97F4A7C15U >> (64U - SlotBits);
    constexpr int MostLooks = 4;
    for (int look = 0; look < MostLooks; ++look, slot = (slot + 1) % SlotCount) {
        KnownHeader& header = slots_[slot];
        std::uint64_t difference = std::uint64_t{header.variant_} ^ variant;
        for (std::size_t i = 0; i < Steps.size(); ++i)
            difference |= LoadEight(header.columns_.data() + Steps[i]) ^ eights[i];
        if (difference == 0 && header.state_ != KnownHeader::State::Free)
            return &header;
        if (header.state_ == KnownHeader::State::Free) {
            std::memcpy(header.columns_.data(), line.data(), KnownHeader::Columns);
            header.variant_ = variant;
            header.state_ = KnownHeader::State::Taken;
            return &header;
        }
    }
    return nullptr;
}
