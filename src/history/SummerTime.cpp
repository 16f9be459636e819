// SPDX-License-Identifier: MIT
#include "history/SummerTime.h"

bool MayEndSummerTime(const Stamp& before, const Stamp& after) {
    using namespace std::chrono;
    const sys_days day = floor<days>(after.Moment);
    const year_month_day date(day);
    const sys_days lastSunday = sys_days(date.year() / October / Sunday[last]);
    if (day != lastSunday || before.Moment - day >= hours(6))
        return false;
    const milliseconds back = TimeBetween(after, before);
    return back <= hours(1) && back >= minutes(50);
}
