// SPDX-License-Identifier: MIT
#pragma once

#include "history/StitchedLog.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

// What the numbers of entries become, for a pair of exports.
struct StitchCounts {
    std::optional<std::int64_t> CommonEntries; // entries of the logbook that begin in the common lines
    std::optional<std::int64_t> Shift;         // what is added to a number of the newer export
};

// One for each pair of the plan. Nothing stands for what is not known: an error ended a read before, or the
// newer export is not read as the same generation as the logbook. `file` holds the written logbook; reads it
// as far as the last common lines, and the beginnings of the exports.
std::vector<StitchCounts> CountEntries(const StitchedLog& log, const std::string& file,
                                       std::span<const ExportLines> exports, const StitchPlan& plan);
