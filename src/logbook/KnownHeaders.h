// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// What one header line's first columns say of its event: the same for each event that has them.
class KnownHeader {
  public:
    // Takes sender and name from the first entry with this header, which was made of `line`; they were cut
    // from its first columns or live as long as the program.
    void TakeFrom(ParsedEntry& entry, std::string_view line);
    bool HasFields() const { return hasFields_; }

    // Gives a later entry these fields, and the place where the number of its kind is remembered. Event type
    // and icon must be those of the first entry.
    void GiveTo(ParsedEntry& entry) {
        entry.Sender = sender_;
        entry.Name = name_;
        entry.KindMemo = &kind_;
    }

  private:
    friend class KnownHeaders;

    std::array<char, 48> columns_{};
    std::uint32_t variant_ = 0;
    std::uint32_t kind_ = ParsedEntry::UnknownKind;
    bool isTaken_ = false;
    bool hasFields_ = false;
    std::string_view sender_;
    std::string_view name_;
};

// The headers of one read that came first. A logbook of millions of events has some hundred, so that cutting
// fields, and finding the kind of an entry by them, is done once a header instead of once an event. Columns
// that decide all this are those up to 44: in no generation the stamp begins before.
class KnownHeaders {
  public:
    static constexpr std::size_t Columns = 44;

    KnownHeaders() : slots_(SlotCount) {}

    // The header with the first columns of `line`; a new one has no fields yet. nullptr when the line is too
    // short, or when too many other headers came first: its fields are cut each time then. It stays valid,
    // and where it is, as long as this object. `variant` tells apart events that these columns alone do not.
    KnownHeader* Find(std::string_view line, std::uint32_t variant = 0);

  private:
    static constexpr unsigned SlotBits = 10;
    static constexpr std::size_t SlotCount = std::size_t{1} << SlotBits;

    std::vector<KnownHeader> slots_;
};
