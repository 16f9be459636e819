// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/CodePage.h"
#include "logbook/ParsedEntry.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <vector>

// What entries have in common again and again: who reported which sort of event. A logbook of millions of
// entries has some hundred kinds, so that each is stored once, and whatever depends on these fields alone can
// be decided once a kind instead of once an entry. The texts are UTF-8.
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

    // The number of an entry's kind, which is stored when it is new. Numbers run from 0 up to Count.
    std::uint32_t NumberOf(const ParsedEntry& entry, const CodePage& codePage);

    // The kind stays where it is until Clear.
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
    };

    void DoubleSlots();

    std::deque<Known> kinds_;
    std::vector<Slot> slots_; // a power of two, at most half of them taken
};
