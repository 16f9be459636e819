// SPDX-License-Identifier: MIT
#include "rows/WantedTime.h"

#include "logbook/EntryStamps.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <string>

namespace {

// The parts of a text between blanks, and between day and clock of ISO 8601.
std::vector<std::string_view> PartsOf(std::string_view text) {
    std::vector<std::string_view> parts;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" T"), text.size());
        if (end > 0)
            parts.push_back(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return parts;
}

// "20101120T141207" as "2010-11-20T14:12:07", and a decimal comma as a point. Any other text as it is.
std::string WithSeparators(std::string_view text) {
    constexpr std::size_t DayLength = 8;
    const auto digitsAt = [&](std::size_t place) {
        return std::min(text.find_first_not_of("0123456789", place), text.size()) - place;
    };
    std::string separated(text);
    std::replace(separated.begin(), separated.end(), ',', '.');
    if (digitsAt(0) != DayLength || (text.size() > DayLength && text[DayLength] != 'T'))
        return separated;
    if (text.size() > DayLength)
        for (std::size_t digits = digitsAt(DayLength + 1) / 2 * 2; digits > 2; digits -= 2)
            separated.insert(DayLength + 1 + digits - 2, ":");
    separated.insert(6, "-");
    separated.insert(4, "-");
    return separated;
}

// "2010-11-20" as a logbook writes it: "20.11.2010". An empty text for anything else.
std::string DayOfIso(std::string_view text) {
    const std::size_t first = text.find('-');
    const std::size_t second = text.find('-', first + 1);
    if (first != 4 || second == std::string_view::npos)
        return {};
    return std::string(text.substr(second + 1)) + '.' +
           std::string(text.substr(first + 1, second - first - 1)) + '.' + std::string(text.substr(0, first));
}

std::string YearOf(std::chrono::sys_days day) {
    return std::to_string(static_cast<int>(std::chrono::year_month_day(day).year()));
}

std::optional<std::chrono::sys_days> ReadDay(std::string_view text,
                                             std::optional<std::chrono::sys_days> day) {
    std::string date(text);
    if (text.find('-') != std::string_view::npos)
        date = DayOfIso(text);
    else if (text.ends_with('.') && day)
        date += YearOf(*day);
    const std::optional<DateAndClock> read = ReadDateAndClock(date);
    return read && !read->Clock ? read->Date : std::nullopt;
}

// What is nearer to the wanted time is less; nothing does not count.
std::optional<std::chrono::milliseconds> Distance(const std::optional<Stamp>& stamp, const Stamp& wanted,
                                                  RowsInTime order) {
    if (!stamp)
        return {};
    const std::chrono::milliseconds later = TimeBetween(wanted, *stamp);
    if (order == RowsInTime::Anyhow)
        return std::chrono::abs(later);
    return later >= later.zero() ? std::optional(later) : std::nullopt;
}

} // namespace

std::optional<Stamp> ReadWantedTime(std::string_view text, std::optional<std::chrono::sys_days> day) {
    std::optional<std::chrono::sys_days> wantedDay;
    std::optional<DateAndClock> clock;
    const std::string separated = WithSeparators(text);
    const std::vector<std::string_view> parts = PartsOf(separated);
    for (const std::string_view part : parts) {
        if (part.find(':') != std::string_view::npos) {
            if (clock)
                return {};
            clock = ReadDateAndClock(part);
            if (!clock || !clock->Clock)
                return {};
        } else {
            if (wantedDay)
                return {};
            wantedDay = ReadDay(part, day);
            if (!wantedDay)
                return {};
        }
    }
    if (!wantedDay)
        wantedDay = day;
    if (parts.empty() || !wantedDay)
        return {};
    return Stamp{*wantedDay + (clock ? *clock->Clock : std::chrono::milliseconds(0)),
                 clock && clock->HasFraction};
}

TimeFound FindTime(const EntryTable& entries, const LogbookRows& rows, const Stamp& wanted,
                   RowsInTime order) {
    const EntryStamps stamps(entries);
    TimeFound found;
    std::optional<std::chrono::milliseconds> nearest;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        const auto distance = Distance(stamps[rows[row].Entry], wanted, order);
        if (!distance || (nearest && *distance >= *nearest))
            continue;
        nearest = distance;
        found.Row = row;
        if (order == RowsInTime::Onward)
            break;
    }
    if (rows.size() == entries.Count())
        return found;
    const std::vector<bool> isShown = ShownEntries(rows, entries.Count());
    for (EntryNumber entry = 0; entry < entries.Count(); ++entry) {
        if (isShown[entry])
            continue;
        const auto distance = Distance(stamps[entry], wanted, order);
        if (!distance || (nearest && *distance >= *nearest))
            continue;
        nearest = distance;
        found.HiddenEntry = entry;
    }
    return found;
}

std::vector<LogbookDay> DaysOf(const EntryTable& entries) {
    const EntryStamps stamps(entries);
    std::map<std::chrono::sys_days, LogbookDay> days;
    LogbookDay* last = nullptr;
    for (EntryNumber entry = 0; entry < entries.Count(); ++entry) {
        const std::optional<Stamp> stamp = stamps[entry];
        if (!stamp)
            continue;
        const auto day = std::chrono::floor<std::chrono::days>(stamp->Moment);
        if (last == nullptr || last->Day != day) {
            last = &days[day];
            last->Day = day;
        }
        ++last->Entries;
        last->Errors += EventTypes::IsError(entries.Kind(entry).EventType) ? 1U : 0U;
    }
    std::vector<LogbookDay> inOrder;
    inOrder.reserve(days.size());
    for (const auto& [day, counts] : days)
        inOrder.push_back(counts);
    return inOrder;
}
