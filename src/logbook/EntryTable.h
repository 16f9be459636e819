// SPDX-License-Identifier: MIT
#pragma once

#include "base/BigArray.h"
#include "base/CodePage.h"
#include "base/Prefetch.h"
#include "logbook/EntryKinds.h"
#include "logbook/LogbookEntry.h"
#include "logbook/ParsedEntry.h"
#include "logbook/TimeStamps.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

// The number of an entry: its position in the table, from 0 on. The index column, filters, comments and rows
// use it.
using EntryNumber = std::uint32_t;

// The most entries that a table holds; a list widget counts its rows in 31 bits.
inline constexpr EntryNumber MostEntries = 0x7FFFFFFF;

// All entries of the logbook: 16 bytes an entry, one pool with the data texts of all entries in their order,
// and a short list of the kinds of entry that occur. A filter or a search can run over the pool as it lies in
// memory.
class EntryTable {
  public:
    // Empties the table and prepares it for a logbook of `entries` entries with `textBytes` bytes of text.
    // The figures are estimates that cost address space only.
    void Clear(std::size_t entries = 0, std::size_t textBytes = 0);

    // Empties the table down to one empty entry with this event type and icon number.
    void ResetToOneEmpty(std::int16_t eventType, std::int16_t image);

    // Stores an entry behind the others. Throws RunTimeError when there is no memory, or no number left.
    void Append(const ParsedEntry& entry, const CodePage& codePage);

    // Gives back unused room.
    void Trim();

    EntryNumber Count() const { return static_cast<EntryNumber>(records_.Size()); }

    // False when there is no entry but an empty one.
    bool HasEvents() const { return Count() > 1 || (Count() == 1 && Kind(0).EventType > 0); }

    // The entry with a number below Count, and its single fields for runs over many entries.
    LogbookEntry operator[](EntryNumber number) const;
    const EntryKind& Kind(EntryNumber number) const { return kinds_[records_[number].Kind]; }
    std::string_view Data(EntryNumber number) const;
    std::string Time(EntryNumber number) const;
    std::string_view Comment(EntryNumber number) const;

    // The time stamp in its stored form, for runs that need no text; false when it does not end in a clock
    // time. Stamps has the text before the clock.
    bool PackedTime(EntryNumber number, PackedStamp& stamp) const {
        const Record& record = records_[number];
        stamp = record.Stamp();
        return (record.Clock & StampInText) == 0;
    }
    const TimeStamps& Stamps() const { return stamps_; }

    // Event type, icon, sender and name by kind: entries of the same kind have the same four.
    std::uint32_t KindNumber(EntryNumber number) const { return records_[number].Kind; }
    const EntryKinds& Kinds() const { return kinds_; }

    // Sets the comment (UTF-8) of the entry with a number below Count; an empty text removes it.
    void SetComment(EntryNumber number, std::string_view comment);

    // The comments that are not empty, by entry number.
    const std::map<EntryNumber, std::string>& Comments() const { return comments_; }

    // Exchanges them for others, which must be of this table's entries and not empty. Needs no memory.
    void SwapComments(std::map<EntryNumber, std::string>& others) noexcept { comments_.swap(others); }

    // The data of all entries in their order. If an entry's time stamp does not end in a clock time, the
    // stamp follows the entry's data. The text holds no line feed.
    std::string_view Text() const { return {text_.Data(), text_.Size()}; }

    // Where an entry's data begins in Text, in bytes. With Count as the number: the end of Text.
    std::size_t TextBegin(EntryNumber number) const {
        return number < Count() ? records_[number].TextBegin() : text_.Size();
    }

    // The entry whose part of Text holds a place below the end of Text. Searches from an entry that begins at
    // or before the place; the cost is the logarithm of the distance.
    EntryNumber EntryAt(std::size_t place, EntryNumber from) const;

    // Prefetch the record of an entry, or its data once the record is fetched.
    void PrefetchRecord(EntryNumber number) const { Prefetch(&records_[number]); }
    void PrefetchData(EntryNumber number) const { Prefetch(text_.Data() + records_[number].TextBegin()); }

  private:
    struct Record {
        std::uint64_t TextAndDate; // bits 0-39 where the text begins, 40-63 number of the date
        std::uint32_t Clock;       // of the time stamp; with StampInText set, the stamp's length in Text
        std::uint32_t Kind;

        std::size_t TextBegin() const { return TextAndDate & (MostText - 1); }
        PackedStamp Stamp() const { return {static_cast<std::uint32_t>(TextAndDate >> 40U), Clock}; }
        std::size_t StampLengthInText() const {
            return (Clock & StampInText) != 0 ? Clock & ~StampInText : 0;
        }
    };
    static_assert(sizeof(Record) == 16);
    static constexpr std::uint64_t MostText = std::uint64_t{1} << 40U;
    static constexpr std::uint32_t StampInText = 1U << 31U;

    std::string_view TextOf(EntryNumber number) const {
        const std::size_t begin = records_[number].TextBegin();
        return {text_.Data() + begin, TextBegin(number + 1) - begin};
    }

    BigArray<Record> records_;
    BigArray<char> text_;
    EntryKinds kinds_;
    TimeStamps stamps_;
    std::map<EntryNumber, std::string> comments_;
};
