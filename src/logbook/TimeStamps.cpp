// SPDX-License-Identifier: MIT
#include "logbook/TimeStamps.h"

#include <array>
#include <cstddef>

void TimeStamps::Clear() {
    dates_.clear();
    numbers_.clear();
    lastSize_ = NoSize;
}

bool TimeStamps::FindDate(std::string_view date, const CodePage& codePage, std::uint32_t& number) {
    std::string key(date);
    auto found = numbers_.find(key);
    if (found == numbers_.end()) {
        if (dates_.size() == MostDates)
            return false;
        found = numbers_.emplace(std::move(key), DateCount()).first;
        dates_.push_back(codePage.ToUtf8(date));
    }
    number = found->second;
    RememberDate(date, number);
    return true;
}

void TimeStamps::RememberDate(std::string_view date, std::uint32_t number) {
    lastSize_ = NoSize;
    if (date.size() < 8 || date.size() > 16)
        return;
    lastSize_ = date.size();
    lastBegin_ = LoadEight(date.data());
    lastEnd_ = LoadEight(date.data() + date.size() - 8);
    lastNumber_ = number;
}

std::string TimeStamps::Text(PackedStamp packed) const {
    std::uint32_t digits = packed.Clock & ~PackedStamp::HasMilliseconds;
    const bool milliseconds = (packed.Clock & PackedStamp::HasMilliseconds) != 0;
    std::array<char, LongClockLength> clock{'0', '0', ':', '0', '0', ':', '0', '0', '.', '0', '0', '0'};
    for (const std::size_t place : {11U, 10U, 9U, 7U, 6U, 4U, 3U, 1U, 0U}) {
        clock[place] = static_cast<char>('0' + digits % 10);
        digits /= 10;
    }
    const std::string_view date = DateText(packed.Date);
    std::string text;
    text.reserve(date.size() + clock.size());
    return text.append(date).append(clock.data(), milliseconds ? LongClockLength : ClockLength);
}
