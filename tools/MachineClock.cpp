// SPDX-License-Identifier: MIT
#include "tools/MachineClock.h"

#include "tools/LineBuffer.h"

#include <array>
#include <chrono>
#include <cstddef>
#include <string_view>

namespace {

constexpr std::array<std::string_view, 7> Weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> Months{"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                  "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

} // namespace

void MachineClock::Advance(std::uint64_t milliseconds) {
    timeOfDay += milliseconds;
    if (timeOfDay < DayLength)
        return;
    SetDay(day + static_cast<std::int64_t>(timeOfDay / DayLength));
    timeOfDay %= DayLength;
}

void MachineClock::Set(std::int64_t milliseconds) {
    constexpr auto Length = static_cast<std::int64_t>(DayLength);
    SetDay(milliseconds / Length);
    timeOfDay = static_cast<std::uint64_t>(milliseconds % Length);
}

std::string MachineClock::IsoDate() const {
    const auto twoDigits = [](unsigned number) {
        return std::string{static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
    };
    return twoDigits(year / 100) + twoDigits(year % 100) + '-' + twoDigits(month) + '-' +
           twoDigits(dayOfMonth);
}

void MachineClock::SetDay(std::int64_t newDay) {
    day = newDay;
    const std::chrono::sys_days date{std::chrono::days{static_cast<int>(newDay)}};
    const std::chrono::year_month_day parts{date};
    dayOfMonth = static_cast<unsigned>(parts.day());
    month = static_cast<unsigned>(parts.month());
    year = static_cast<unsigned>(static_cast<int>(parts.year()));
    weekday = std::chrono::weekday{date}.c_encoding();
}

void MachineClock::AppendTime(LineBuffer& lines) const {
    const std::uint64_t seconds = timeOfDay / 1000;
    lines.AppendDecimal(seconds / 3600, 2);
    lines.Append(':');
    lines.AppendDecimal(seconds / 60 % 60, 2);
    lines.Append(':');
    lines.AppendDecimal(seconds % 60, 2);
}

void MachineClock::AppendMilliseconds(LineBuffer& lines) const {
    lines.Append('.');
    lines.AppendDecimal(timeOfDay % 1000, 3);
}

void MachineClock::AppendStamp(LineBuffer& lines, bool milliseconds) const {
    lines.AppendDecimal(dayOfMonth, 2);
    lines.Append('.');
    lines.AppendDecimal(month, 2);
    lines.Append('.');
    lines.AppendDecimal(year, 4);
    lines.Append(' ');
    AppendTime(lines);
    if (milliseconds)
        AppendMilliseconds(lines);
}

void MachineClock::AppendEnglishDate(LineBuffer& lines) const {
    lines.Append(Weekdays[static_cast<std::size_t>(weekday)]);
    lines.Append(' ');
    lines.Append(Months[static_cast<std::size_t>(month - 1)]);
    lines.Append(' ');
    lines.AppendDecimal(dayOfMonth, 2);
    lines.Append(' ');
    lines.AppendDecimal(year, 4);
}
