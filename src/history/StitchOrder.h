// SPDX-License-Identifier: MIT
#pragma once

#include "history/ExportLines.h"
#include "history/StitchLines.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

// How exports become one logbook. Exports are named by their places in the list that was given.
struct StitchPlan {
    // Two neighbours in the order of age.
    struct Pair {
        std::size_t Older = 0;
        std::size_t Newer = 0;
        CommonLines Common;
    };
    // An export that adds nothing.
    struct Duplicate {
        std::size_t Export = 0;
        std::size_t Of = 0;
        std::optional<CommonLines> Common; // nothing for the same bytes
    };
    // Why there is no order: for two exports, or for all where First and Second are the same.
    struct Refusal {
        std::size_t First = 0;
        std::size_t Second = 0;
        CommonLines::Reason Why = CommonLines::Reason::NoneInCommon;
        LineNumber Lines = 0;     // of TooFew
        bool NothingAdds = false; // only one export is no duplicate; Order then has it alone
    };

    std::vector<std::size_t> Order; // from the oldest to the newest, without duplicates
    std::vector<Pair> Pairs;        // one fewer
    std::vector<Duplicate> Duplicates;
    std::optional<Refusal> Refused; // then Order and Pairs are empty, unless NothingAdds
};

// Finds out which export continues which, by trying each with each. The order of the list makes no
// difference, except among duplicates: the first of them is kept. Throws RunTimeError when an export can no
// longer be read.
StitchPlan PlanStitch(std::span<const ExportLines> exports);
