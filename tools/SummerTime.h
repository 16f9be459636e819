// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

// A change of the clocks in central Europe, in milliseconds by a clock that follows summer time.
struct ClockChange {
    std::int64_t at = 0; // what the clock shows when it is set
    std::int64_t by = 0; // one hour forth or back
};

// The changes, one after the other: the last Sunday of March from 02:00 to 03:00, the last of October from
// 03:00 to 02:00.
class SummerTime {
  public:
    // Begins with the first change behind `now`.
    explicit SummerTime(std::int64_t now);

    const ClockChange& Next() const { return next; }
    // Goes on to the change behind that one.
    void Pass();

  private:
    int year;
    bool spring = true;
    ClockChange next;
};
