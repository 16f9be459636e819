// SPDX-License-Identifier: MIT
#include "rows/SortKeys.h"

#include "base/Blanks.h"
#include "logbook/Stamp.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace {

constexpr std::chrono::sys_days DayOfClockAlone{std::chrono::year{1899} / 12 / 30};
constexpr std::size_t KeyDigits = 30; // on either side of the point

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

bool AreDigits(std::string_view text) { return std::all_of(text.begin(), text.end(), IsDigit); }

bool Take(std::string_view& text, char c) {
    if (text.empty() || text.front() != c)
        return false;
    text.remove_prefix(1);
    return true;
}

} // namespace

std::optional<LogbookMoment> ReadMoment(std::string_view text) {
    const std::optional<DateAndClock> time = ReadDateAndClock(text);
    if (!time || time->HasColonFraction)
        return {};
    return time->Date.value_or(DayOfClockAlone) +
           std::chrono::floor<std::chrono::seconds>(time->Clock.value_or(std::chrono::milliseconds(0)));
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
