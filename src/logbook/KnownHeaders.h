// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/ParsedEntry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

// What one header line's first columns say of its event: the same for each event that has them. One line of
// the processor's cache each.
class alignas(64) KnownHeader {
  public:
    static constexpr std::size_t Columns = 44;

    // Takes sender and name, which were cut from the first columns of `line`.
    void SetFields(std::string_view line, std::string_view sender, std::string_view name);
    bool HasFields() const { return state_ == State::HasFields; }

    std::string_view Sender() const { return At(sender_); }
    std::string_view Name() const { return At(name_); }

    // Where the number of the kind is remembered. All events with this header and variant have the same kind.
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

// The headers of one read that came first. A logbook of millions of events has some hundred, so that cutting
// fields, and finding the kind of an entry by them, is done once a header instead of once an event. The
// columns that decide all this are those up to 44: in no generation the stamp begins before.
class KnownHeaders {
  public:
    KnownHeaders() : slots_(SlotCount) {}

    // The header with the first columns of `line`; a new one has no fields yet. nullptr when the line is too
    // short, or when too many other headers came first: its fields are cut each time then. It stays valid,
    // and where it is, as long as this object. `variant` tells apart events that these columns alone do not.
    KnownHeader* Find(std::string_view line, std::uint8_t variant = 0);

  private:
    static constexpr unsigned SlotBits = 10;
    static constexpr std::size_t SlotCount = std::size_t{1} << SlotBits;

    std::vector<KnownHeader> slots_;
};
