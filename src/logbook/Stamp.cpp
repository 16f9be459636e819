// SPDX-License-Identifier: MIT
#include "logbook/Stamp.h"

#include "base/Blanks.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool AreDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), IsDigit); }

// Cuts a number of at most `mostDigits` digits off the beginning of a text; false when there is none.
bool TakeNumber(std::string_view& text, std::size_t mostDigits, unsigned& number) {
    std::size_t length = 0;
    number = 0;
    for (; length < text.size() && length < mostDigits && IsDigit(text[length]); ++length)
        number = number * 10 + static_cast<unsigned>(text[length] - '0');
    text.remove_prefix(length);
    return length > 0;
}

bool Take(std::string_view& text, char c) {
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

std::optional<std::chrono::sys_days> ReadDate(std::string_view text) {
    unsigned day = 0;
    unsigned month = 0;
    unsigned year = 0;
    if (!TakeNumber(text, 2, day) || !Take(text, '.') || !TakeNumber(text, 2, month) || !Take(text, '.') ||
        (text.size() != 2 && text.size() != 4) || !AreDigits(text))
        return {};
    const bool twoDigits = text.size() == 2;
    TakeNumber(text, 4, year);
    if (twoDigits)
        year += year < 30 ? 2000 : 1900;
    const std::chrono::year_month_day date{std::chrono::year{static_cast<int>(year)},
                                           std::chrono::month{month}, std::chrono::day{day}};
    if (year < 100 || !date.ok())
        return {};
    return std::chrono::sys_days(date);
}

// The first three digits of a fraction as a number of three digits.
unsigned Milliseconds(std::string_view fraction) {
    unsigned milliseconds = 0;
    for (std::size_t digit = 0; digit < 3; ++digit)
        milliseconds =
            milliseconds * 10 + (digit < fraction.size() ? static_cast<unsigned>(fraction[digit] - '0') : 0);
    return milliseconds;
}

// Reads the clock of a time text into it; false when it is none.
bool ReadClock(std::string_view text, DateAndClock& time) {
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    unsigned milliseconds = 0;
    if (!TakeNumber(text, 2, hour) || !Take(text, ':') || !TakeNumber(text, 2, minute))
        return false;
    if (!text.empty()) {
        if (!Take(text, ':') || !TakeNumber(text, 2, second))
            return false;
        time.HasFraction = !text.empty();
        if (time.HasFraction) {
            time.HasColonFraction = Take(text, ':');
            if ((!time.HasColonFraction && !Take(text, '.')) || text.empty() || !AreDigits(text))
                return false;
            milliseconds = Milliseconds(text);
        }
    }
    if (hour > 23 || minute > 59 || second > 59)
        return false;
    time.Clock = std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second) +
                 std::chrono::milliseconds(milliseconds);
    return true;
}

} // namespace

std::optional<DateAndClock> ReadDateAndClock(std::string_view text) {
    text = Trim(text);
    const std::size_t blank = FindBlank(text);
    const std::string_view first = text.substr(0, blank);
    const std::string_view second = Trim(text.substr(blank));
    const bool dateFirst = first.find(':') == std::string_view::npos;
    const std::string_view dateText = dateFirst ? first : second;
    const std::string_view clockText = dateFirst ? second : first;
    DateAndClock time;
    time.Date = ReadDate(dateText);
    if (text.empty() || (!time.Date && !dateText.empty()) ||
        (!clockText.empty() && !ReadClock(clockText, time)))
        return {};
    return time;
}

std::optional<Stamp> ReadStamp(std::string_view text) {
    const std::optional<DateAndClock> time = ReadDateAndClock(text);
    if (!time || !time->Date || !time->Clock)
        return {};
    return Stamp{*time->Date + *time->Clock, time->HasFraction};
}

std::string IsoText(const Stamp& stamp) {
    const auto day = std::chrono::floor<std::chrono::days>(stamp.Moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(stamp.Moment - day);
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    std::string iso = text.data();
    if (stamp.HasMilliseconds) {
        std::snprintf(text.data(), text.size(), ".%03d", static_cast<int>(clock.subseconds().count()));
        iso += text.data();
    }
    return iso;
}
