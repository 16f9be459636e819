// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Cuts one long logbook into exports of a ring memory: a control keeps the last so many bytes, and people
// export them now and then. What two neighbouring exports have in common overlaps.
struct RingOrder {
    std::uint64_t exports = 0;
    std::uint64_t bytes = 0;   // of each export, about
    std::uint64_t overlap = 0; // percent of them that the next export has too, below 100
    std::uint64_t seed = 1;
    std::uint64_t holes = 0; // so many neighbours do not overlap: something between them is lost
    // The ring forgets bytes, not events: the first line may lack its beginning, the last one its end.
    // Otherwise an export holds whole events.
    bool cut = false;
};

// A range of the logbook's bytes; `end` is the first byte behind it.
struct RingPiece {
    std::size_t begin = 0;
    std::size_t end = 0;
};

// The exports from the oldest to the newest. Nothing when the logbook is too short for them, or when there
// are not so many neighbours as holes.
std::optional<std::vector<RingPiece>> CutRing(std::string_view logbook, const RingOrder& order);

// An export as the control writes it: its heading, then the piece. The heading is the version line of an
// operation logbook, the last separator line of a separated one, and nothing for a classic one. A piece that
// begins with a separator line has its heading already.
std::string ExportOf(std::string_view logbook, const RingPiece& piece);
