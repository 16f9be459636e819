// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/Stamp.h"

#include <chrono>
#include <limits>
#include <optional>

// Values as numbers to sort by; what is missing comes before all others.

inline double SortNumber(const std::optional<std::chrono::milliseconds>& time) {
    return time ? static_cast<double>(time->count()) : std::numeric_limits<double>::lowest();
}

inline double SortNumber(const std::optional<Stamp>& stamp) {
    return SortNumber(stamp ? std::optional(stamp->Moment.time_since_epoch()) : std::nullopt);
}
