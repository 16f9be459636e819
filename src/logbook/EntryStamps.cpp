// SPDX-License-Identifier: MIT
#include "logbook/EntryStamps.h"

#include <string>

EntryStamps::EntryStamps(const EntryTable& entries) : entries_(entries) {
    const TimeStamps& stamps = entries.Stamps();
    dates_.reserve(stamps.DateCount());
    for (std::uint32_t date = 0; date < stamps.DateCount(); ++date) {
        const std::optional<DateAndClock> time =
            ReadDateAndClock(std::string(stamps.DateText(date)) + "00:00:00");
        dates_.push_back(time && time->Clock ? time->Date : std::nullopt);
    }
}
