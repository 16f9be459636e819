// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

// What a time text names: a day, a clock time, or both.
struct DateAndClock {
    std::optional<std::chrono::sys_days> Date;
    std::optional<std::chrono::milliseconds> Clock; // below a day
    bool HasFraction = false;                       // of a second
    bool HasColonFraction = false;                  // and a colon stands before it
};

// Reads "day.month.year", a clock time "h:m", "h:m:s" or "h:m:s.fraction", or both in either order with
// blanks between. Years have two digits (00 to 29 mean 20xx, 30 to 99 mean 19xx) or four, from 0100 on. Of a
// fraction three digits count. Nothing when the text is something else, or names a day or time that does not
// exist. Some controls write a colon before the fraction.
std::optional<DateAndClock> ReadDateAndClock(std::string_view text);

// The moment that an entry's time names. A logbook has local time, and does not say which.
struct Stamp {
    std::chrono::sys_time<std::chrono::milliseconds> Moment; // local time
    bool HasMilliseconds = false;                            // otherwise it is known to the second

    bool operator==(const Stamp&) const = default;
};

// Nothing unless the text names both a day and a clock time.
std::optional<Stamp> ReadStamp(std::string_view text);

// The time from one stamp to the other, negative when the second is the earlier one. In whole seconds unless
// both have milliseconds: a stamp without them may be up to a second later than it says.
inline std::chrono::milliseconds TimeBetween(const Stamp& from, const Stamp& to) {
    using std::chrono::floor;
    using std::chrono::seconds;
    if (from.HasMilliseconds && to.HasMilliseconds)
        return to.Moment - from.Moment;
    return floor<seconds>(to.Moment) - floor<seconds>(from.Moment);
}

// ISO 8601: "2010-01-04T12:45:02", or "2010-01-04T12:45:02.123" for a stamp with milliseconds.
std::string IsoText(const Stamp& stamp);
