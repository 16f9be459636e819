// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// What a header line's first columns say about its event; it is the same for every event with these columns.
// Fills one line of the processor's cache.
class alignas(64) KnownHeader {
  public:
    static constexpr std::size_t Columns = 44;

    // Stores sender and name; both must lie in the first columns of `line`.
    void SetFields(std::string_view line, std::string_view sender, std::string_view name);
    bool HasFields() const { return state_ == State::HasFields; }

    std::string_view Sender() const { return At(sender_); }
    std::string_view Name() const { return At(name_); }

    // Remembers the number of the kind. All events with this header and variant have the same kind.
    std::uint32_t* KindMemo() { return &kind_; }

  private:
    friend class KnownHeaders;

    enum class State : std::uint8_t { Free, Taken, HasFields };
    struct Field {
        std::uint8_t Begin = 0;
        std::uint8_t Length = 0;
    };

    std::string_view At(Field field) const { return {columns_.data() + field.Begin, field.Length}; }

    std::array<char, Columns> columns_{};
    std::uint32_t kind_ = ParsedEntry::UnknownKind;
    Field sender_;
    Field name_;
    std::uint8_t variant_ = 0;
    State state_ = State::Free;
};

// The first headers of one read. A logbook of millions of events has some hundred, so the read cuts fields
// and finds the kind once a header instead of once an event. The columns up to 44 decide this: in no
// generation does the stamp begin before their end.
class KnownHeaders {
  public:
    KnownHeaders() : slots_(SlotCount) {}

    // The header with the first columns of `line`; a new one has no fields yet. nullptr when the line is too
    // short or too many other headers came first; the caller then cuts the fields each time. The pointer is
    // valid as long as this object. `variant` distinguishes events that have the same columns.
    KnownHeader* Find(std::string_view line, std::uint8_t variant = 0);

  private:
    static constexpr unsigned SlotBits = 10;
    static constexpr std::size_t SlotCount = std::size_t{1} << SlotBits;

    std::vector<KnownHeader> slots_;
};
