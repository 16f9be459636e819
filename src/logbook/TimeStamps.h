// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "base/ShortText.h"
#include "logbook/ClockTime.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

// A stamp that ends in a clock time, "12:34:56" or "12:34:56.789", as two numbers: one for the text before
// the clock, which all entries of a day share, and one for the clock. They give back the exact text.
struct PackedStamp {
    std::uint32_t Date = 0; // number of the text before the clock, for example "04.01.2010 "; below MostDates
    std::uint32_t Clock = 0; // the digits of the clock as one decimal number, HHMMSSmmm, and HasMilliseconds

    static constexpr std::uint32_t HasMilliseconds = 1U << 30U;

    bool operator==(const PackedStamp&) const = default;
};

class TimeStamps {
  public:
    static constexpr std::uint32_t MostDates = 1U << 24U;

    // False when the stamp does not end in a clock time, or no number is left for its date.
    bool Pack(std::string_view stamp, const CodePage& codePage, PackedStamp& packed) {
        if (stamp.size() < ClockLength)
            return false;
        const char* const end = stamp.data() + stamp.size();
        const bool isLong = stamp.size() >= LongClockLength && end[-4] == '.';
        const char* const clock = end - (isLong ? LongClockLength : ClockLength);
        if (!ReadClock(clock, packed.Clock))
            return false;
        packed.Clock *= 1000;
        if (isLong) {
            std::uint32_t milliseconds = 0;
            if (!ReadMilliseconds(clock + ClockLength, milliseconds))
                return false;
            packed.Clock += milliseconds | PackedStamp::HasMilliseconds;
        }
        const std::string_view date(stamp.data(), static_cast<std::size_t>(clock - stamp.data()));
        packed.Date = lastNumber_;
        return IsLastDate(date) || FindDate(date, codePage, packed.Date);
    }

    std::string Text(PackedStamp packed) const;

    // The text before the clock, in UTF-8, by its number.
    std::string_view DateText(std::uint32_t date) const { return dates_[date]; }
    std::uint32_t DateCount() const { return static_cast<std::uint32_t>(dates_.size()); }

    void Clear();

  private:
    bool FindDate(std::string_view date, const CodePage& codePage, std::uint32_t& number);
    void RememberDate(std::string_view date, std::uint32_t number);

    // A date of 8 to 16 characters is compared with the last one as two numbers that may overlap.
    bool IsLastDate(std::string_view date) const {
        return date.size() == lastSize_ && LoadEight(date.data()) == lastBegin_ &&
               LoadEight(date.data() + date.size() - 8) == lastEnd_;
    }

    std::deque<std::string> dates_;
    std::unordered_map<std::string, std::uint32_t> numbers_; // by the text as the file has it
    std::size_t lastSize_ = NoSize;
    std::uint64_t lastBegin_ = 0;
    std::uint64_t lastEnd_ = 0;
    std::uint32_t lastNumber_ = 0;

    static constexpr std::size_t NoSize = ~std::size_t{0}; // no date yet, or one that is not compared so
};
