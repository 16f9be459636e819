// SPDX-License-Identifier: MIT
#include "rows/TimeKeys.h"

#include "rows/SortKeys.h"

#include <algorithm>
#include <string>

namespace {

// Day 1 is the first day of the year 0, before all readable days.
std::uint64_t KeyOf(const std::optional<LogbookMoment>& moment) {
    constexpr std::chrono::sys_days Begin{std::chrono::year{0} / 1 / 1};
    return moment ? static_cast<std::uint64_t>((*moment - (Begin - std::chrono::days(1))).count())
                  : TimeKeys::None;
}

} // namespace

TimeKeys::TimeKeys(const EntryTable& entries) : entries_(entries), earliest_(KeyOf(LogbookMoment{})) {
    const TimeStamps& stamps = entries.Stamps();
    dates_.reserve(stamps.DateCount());
    std::uint64_t earliest = ~std::uint64_t{0};
    for (std::uint32_t date = 0; date < stamps.DateCount(); ++date) {
        dates_.push_back(KeyOf(ReadMoment(std::string(stamps.DateText(date)) + "00:00:00")));
        if (dates_.back() != None)
            earliest = std::min(earliest, dates_.back());
    }
    if (earliest != ~std::uint64_t{0})
        earliest_ = earliest;
}

std::uint64_t TimeKeys::operator[](EntryNumber number) const {
    PackedStamp stamp;
    if (!entries_.PackedTime(number, stamp))
        return KeyOf(ReadMoment(entries_.Time(number)));
    const std::uint32_t digits = (stamp.Clock & ~PackedStamp::HasMilliseconds) / 1000; // HHMMSS
    const std::uint32_t hour = digits / 10000;
    const std::uint32_t minute = digits / 100 % 100;
    const std::uint32_t second = digits % 100;
    const std::uint64_t date = dates_[stamp.Date];
    if (date == None || hour > 23 || minute > 59 || second > 59)
        return None;
    return date + (hour * 60 + minute) * 60 + second;
}
