// SPDX-License-Identifier: MIT
#include "logbook/KnownHeaders.h"

#include "logbook/ShortText.h"

#include <bit>
#include <cstring>
#include <functional>

namespace {

// Where the columns are loaded, eight at a time; the last step overlaps the one before it.
constexpr std::array<std::size_t, 6> Steps{0, 8, 16, 24, 32, KnownHeaders::Columns - 8};

} // namespace

void KnownHeader::TakeFrom(ParsedEntry& entry, std::string_view line) {
    // What was cut from the line is cut from the same columns here, which stay.
    const auto kept = [&](std::string_view field) {
        const std::less<> before;
        const bool isCut = !field.empty() && !before(field.data(), line.data()) &&
                           before(field.data(), line.data() + KnownHeaders::Columns);
        return isCut ? std::string_view(columns_.data() + (field.data() - line.data()), field.size()) : field;
    };
    sender_ = kept(entry.Sender);
    name_ = kept(entry.Name);
    hasFields_ = true;
    GiveTo(entry);
}

KnownHeader* KnownHeaders::Find(std::string_view line, std::uint32_t variant) {
    if (line.size() < Columns)
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
        std::uint64_t difference = header.variant_ ^ variant;
        for (std::size_t i = 0; i < Steps.size(); ++i)
            difference |= LoadEight(header.columns_.data() + Steps[i]) ^ eights[i];
        if (difference == 0 && header.isTaken_)
            return &header;
        if (!header.isTaken_) {
            std::memcpy(header.columns_.data(), line.data(), Columns);
            header.variant_ = variant;
            header.isTaken_ = true;
            return &header;
        }
    }
    return nullptr;
}
