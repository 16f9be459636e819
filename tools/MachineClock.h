// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>

class LineBuffer;

// The clock of the machine. It starts early in the morning, on Monday 4 January 2010 when no other day is
// given, and only moves when it is told to; the clock of the computer plays no part.
class MachineClock {
  public:
    static constexpr std::int64_t UsualFirstDay = 14613; // days since 1 January 1970

    explicit MachineClock(std::int64_t firstDay = UsualFirstDay) { SetDay(firstDay); }

    void Advance(std::uint64_t milliseconds);

    // Milliseconds since 1 January 1970 by this clock, which knows no time zones.
    std::int64_t Now() const {
        return day * static_cast<std::int64_t>(DayLength) + static_cast<std::int64_t>(timeOfDay);
    }
    // Sets the clock, forth or back.
    void Set(std::int64_t milliseconds);

    // Counts the days; a new number is a new date.
    std::int64_t Day() const { return day; }
    // YYYY-MM-DD
    std::string IsoDate() const;

    // HH:MM:SS
    void AppendTime(LineBuffer& lines) const;
    // .mmm
    void AppendMilliseconds(LineBuffer& lines) const;
    // Day-first: DD.MM.YYYY HH:MM:SS, with .mmm when asked for.
    void AppendStamp(LineBuffer& lines, bool milliseconds) const;
    // English: Mon Jan 04 2010
    void AppendEnglishDate(LineBuffer& lines) const;

  private:
    static constexpr std::uint64_t FirstTime = 6 * 3600 * 1000 + 12 * 60 * 1000;
    static constexpr std::uint64_t DayLength = 24 * 3600 * 1000;

    void SetDay(std::int64_t newDay);

    std::int64_t day = 0;
    std::uint64_t timeOfDay = FirstTime; // milliseconds
    unsigned dayOfMonth = 1;
    unsigned month = 1;
    unsigned year = 2010;
    unsigned weekday = 0; // 0 is Sunday
};
