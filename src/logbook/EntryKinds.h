// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "logbook/ParsedEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

// What many entries have in common: who reported which sort of event. A logbook of millions of entries has
// some hundred kinds. Each is stored once, and code that depends on these fields alone can decide once a kind
// instead of once an entry. The texts are UTF-8.
struct EntryKind {
    std::int16_t EventType = 0;
    std::int16_t Image = 0;
    std::string Sender;
    std::string Name;

    bool operator==(const EntryKind&) const = default;
};

class EntryKinds {
  public:
    EntryKinds() { Clear(); }

    // The number of an entry's kind, from 0 to below Count. A new kind is stored.
    std::uint32_t NumberOf(const ParsedEntry& entry, const CodePage& codePage) {
        std::uint32_t* const memo = entry.KindMemo != nullptr ? entry.KindMemo : MemoOfNameless(entry);
        if (memo == nullptr)
            return Find(entry, codePage);
        if (*memo == ParsedEntry::UnknownKind)
            *memo = Find(entry, codePage);
        return *memo;
    }

    // The reference is valid until Clear.
    const EntryKind& operator[](std::uint32_t number) const { return kinds_[number].Kind; }
    std::size_t Count() const { return kinds_.size(); }

    void Clear();

  private:
    struct Known {
        EntryKind Kind;
        std::string Sender; // as the file has them
        std::string Name;
    };
    struct Slot {
        std::uint64_t Hash = 0;
        const Known* Place = nullptr; // nullptr = free
        std::uint32_t Number = 0;

        bool IsFree() const { return Place == nullptr; }
    };

    // Remembers the number for an entry with neither sender nor name, such as a key stroke.
    std::uint32_t* MemoOfNameless(const ParsedEntry& entry) {
        const auto row = static_cast<std::uint16_t>(entry.EventType);
        const auto column = static_cast<std::uint16_t>(entry.Image);
        const bool nameless = (entry.Sender.size() | entry.Name.size()) == 0;
        return nameless && row < NamelessSide && column < NamelessSide
                   ? &nameless_[std::size_t{row} * NamelessSide + column]
                   : nullptr;
    }

    std::uint32_t Find(const ParsedEntry& entry, const CodePage& codePage);

    static constexpr std::uint16_t NamelessSide = 16; // above all event types and icons
    std::array<std::uint32_t, NamelessSide * NamelessSide> nameless_{};
    std::deque<Known> kinds_;
    std::vector<Slot> slots_; // a power of two, at most half of them taken
};
