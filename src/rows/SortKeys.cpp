// SPDX-License-Identifier: MIT
#include "rows/SortKeys.h"

#include "base/Blanks.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::chrono::sys_days DayOfClockAlone{std::chrono::year{1899} / 12 / 30};
constexpr std::size_t KeyDigits = 30; // on either side of the point

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

std::optional<std::chrono::seconds> ReadClock(std::string_view text) {
    unsigned hour = 0;
    unsigned minute = 0;
    unsigned second = 0;
    if (!TakeNumber(text, 2, hour) || !Take(text, ':') || !TakeNumber(text, 2, minute))
        return {};
    if (!text.empty()) {
        if (!Take(text, ':') || !TakeNumber(text, 2, second))
            return {};
        if (!text.empty() && (!Take(text, '.') || text.empty() || !AreDigits(text)))
            return {};
    }
    if (hour > 23 || minute > 59 || second > 59)
        return {};
    return std::chrono::hours(hour) + std::chrono::minutes(minute) + std::chrono::seconds(second);
}

} // namespace

std::optional<LogbookMoment> ReadMoment(std::string_view text) {
    text = Trim(text);
    const std::size_t blank = FindBlank(text);
    const std::string_view first = text.substr(0, blank);
    const std::string_view second = Trim(text.substr(blank));
    const bool dateFirst = first.find(':') == std::string_view::npos;
    const std::string_view dateText = dateFirst ? first : second;
    const std::string_view clockText = dateFirst ? second : first;
    const auto date = ReadDate(dateText);
    const auto clock = ReadClock(clockText);
    if (text.empty() || (!date && !dateText.empty()) || (!clock && !clockText.empty()))
        return {};
    return date.value_or(DayOfClockAlone) + clock.value_or(std::chrono::seconds(0));
}

std::string DateKey(std::string_view text) {
    const std::optional<LogbookMoment> moment = ReadMoment(text);
    if (!moment)
        return {};
    const auto day = std::chrono::floor<std::chrono::days>(*moment);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(*moment - day);
    std::array<char, 32> key{};
    std::snprintf(key.data(), key.size(), "%04d%02u%02u%02d%02d%02d", static_cast<int>(date.year()),
                  static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                  static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return key.data();
}

std::string NumberKey(std::string_view text) {
    text = Trim(text);
    bool negative = Take(text, '-');
    if (!negative)
        Take(text, '+');
    const std::size_t point = std::min(text.find('.'), text.size());
    std::string_view whole = text.substr(0, point);
    std::string_view fraction = text.substr(std::min(point + 1, text.size()));
    if (!AreDigits(whole) || !AreDigits(fraction) || (whole.empty() && fraction.empty()))
        return {};
    negative = negative && text.find_first_of("123456789") != std::string_view::npos;

    whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
    fraction = fraction.substr(0, KeyDigits);
    std::string key(KeyDigits - std::min(whole.size(), KeyDigits), '0');
    key.append(whole).append(1, '.').append(fraction).append(KeyDigits - fraction.size(), '0');
    if (!negative)
        return key;
    for (char& c : key)
        c = IsDigit(c) ? static_cast<char>('0' + '9' - c) : c;
    return key + '&';
}
