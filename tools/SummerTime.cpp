// SPDX-License-Identifier: MIT
#include "tools/SummerTime.h"

#include <chrono>

namespace {

constexpr std::int64_t Hour = 3600 * 1000;

ClockChange ChangeOf(int year, bool spring) {
    using namespace std::chrono;
    const sys_days sunday = spring ? sys_days(std::chrono::year(year) / March / Sunday[last])
                                   : sys_days(std::chrono::year(year) / October / Sunday[last]);
    const std::int64_t midnight = std::int64_t{sunday.time_since_epoch().count()} * 24 * Hour;
    return spring ? ClockChange{midnight + 2 * Hour, Hour} : ClockChange{midnight + 3 * Hour, -Hour};
}

int YearOf(std::int64_t now) {
    const std::chrono::sys_days day{std::chrono::days{static_cast<int>(now / (24 * Hour))}};
    return static_cast<int>(std::chrono::year_month_day(day).year());
}

} // namespace

SummerTime::SummerTime(std::int64_t now) : year(YearOf(now)), next(ChangeOf(year, spring)) {
    while (next.at <= now)
        Pass();
}

void SummerTime::Pass() {
    if (!spring)
        ++year;
    spring = !spring;
    next = ChangeOf(year, spring);
}
