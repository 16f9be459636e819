// SPDX-License-Identifier: MIT
#pragma once

#include "history/ExportLines.h"
#include "history/StitchOrder.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <ostream>
#include <span>
#include <vector>

// The one logbook that exports become: each one up to where the next begins, without the headings and first
// lines of all but the oldest, and with the unfinished line of the newest only.
class StitchedLog {
  public:
    // The exports and the plan, which refuses nothing, must outlive this object.
    StitchedLog(std::span<const ExportLines> exports, const StitchPlan& plan);

    // Writes the logbook in pieces. Throws RunTimeError when an export can no longer be read as it was.
    void Write(std::ostream& stream) const;

    std::uint64_t Size() const { return parts_.back().At + parts_.back().End - parts_.back().Begin; }

    // Where a raw line that begins at this place of an export, in bytes, begins in the logbook. Nothing for a
    // line that the logbook does not have so: a heading, a first line that was cut, an unfinished line that
    // went on otherwise.
    std::optional<std::uint64_t> PlaceOf(std::size_t exportNumber, std::uint64_t place) const;

    // Where the lines that a pair has in common begin and end in the logbook.
    struct Range {
        std::uint64_t Begin = 0;
        std::uint64_t End = 0;
    };
    Range CommonRange(std::size_t pair) const;

  private:
    // Bytes of an export that are in the logbook, from At on.
    struct Part {
        std::size_t Export = 0;
        std::uint64_t Begin = 0;
        std::uint64_t End = 0;
        std::uint64_t At = 0;
    };
    // How the lines of an export lie in another one: from Second on where OtherSecond is.
    struct Link {
        std::size_t Other = 0;
        std::uint64_t First = 0; // the beginning of line 0
        std::uint64_t Second = 0;
        std::uint64_t OtherFirst = 0;
        std::uint64_t OtherSecond = 0;
        bool FirstLineIsWhole = false;
        bool IsSame = false; // byte for byte
    };

    Link LinkOf(std::size_t other, std::size_t newer, const CommonLines& common) const;
    std::optional<std::uint64_t> Along(const Link& link, std::size_t exportNumber, std::uint64_t place) const;
    std::optional<std::size_t> PartOf(std::size_t exportNumber) const;
    bool GoesOnAlike(std::size_t exportNumber, std::size_t other, std::uint64_t otherPlace) const;

    std::span<const ExportLines> exports_;
    const StitchPlan& plan_;
    std::vector<Part> parts_;                     // in the order of the plan
    std::vector<Link> links_;                     // of each part but the first to the one before it
    std::vector<std::optional<Link>> duplicates_; // by export
};
