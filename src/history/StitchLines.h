// SPDX-License-Identifier: MIT
#pragma once

#include "history/ExportLines.h"

#include <cstdint>
#include <vector>

// How many lines two exports must have in common, a stamp among them, so that one place proves anything.
inline constexpr LineNumber LeastCommonLines = 8;

// The lines that an older and a newer export of one logbook have in common: the control's ring drops lines at
// its beginning and gets lines at its end, so the newer export begins within the older one.
//
//     older:  a b c d e f g h i j k l un          Place 3, Lines 9: d to l. The unfinished line does not
//     count. newer:      cut d e f g h i j k l m n o     Line 0, which may have been cut, must end as the
//     older line c does.
struct CommonLines {
    enum class Outcome : std::uint8_t {
        Continues, // the newer export continues the older one
        Contained, // all lines of the newer export lie in the older one
        None,      // Why says why not
    };
    enum class Reason : std::uint8_t {
        NoneInCommon,
        TooFew,           // Lines says how many
        NoStamp,          // none with a date among them, or in the heading that both have
        SeveralPlaces,    // the newer export may begin at more than one place
        FirstLineDiffers, // the lines before the common ones do not end alike
        OtherHeading,     // of another generation or version
    };

    Outcome What = Outcome::None;
    Reason Why = Reason::NoneInCommon;
    LineNumber Lines = 0;          // in common
    LineNumber Place = 0;          // the older export's line that the newer one's line 1 equals
    bool FirstLineIsWhole = false; // the newer export's line 0 equals the older one's line before Place
};

// Looks for the beginning of one newer export in older ones. Costs memory and time in proportion to the
// number of lines, whatever they are, also where all lines are equal.
class BeginningOfExport {
  public:
    // The export must outlive this object.
    explicit BeginningOfExport(const ExportLines& newer);

    // Finds the one place in the older export from which on all of its lines equal the beginning of the newer
    // one; the heading and line 0 of the newer one are left out. In a separated logbook, the separator line
    // in force there must be the newer one's heading.
    //
    // Places with fewer than LeastCommonLines count as further places if the clock stands still in all common
    // lines: then nothing shows which of the equal lines are the same.
    CommonLines FindIn(const ExportLines& older) const;

  private:
    // A place where lines are equal by their hashes, up to the end of the older export or of the newer one.
    struct Candidate {
        LineNumber Place = 0;
        LineNumber Lines = 0;
    };
    // What the first lines of the newer export say about time.
    struct Beginning {
        LineNumber FirstStamp = 0; // the number of lines where there is none
        bool HasDate = false;
        bool ClockMoves = false;
    };

    std::uint32_t PatternHash(LineNumber i) const { return newer_.Hash(i + 1); }
    std::vector<Candidate> CandidatesIn(const ExportLines& older) const;
    bool Fits(const ExportLines& older, LineNumber place) const;
    bool IsBehindHeading(const ExportLines& older, LineNumber place) const;
    Beginning LookAtBeginning(LineNumber lines) const;
    bool EndsWithin(const ExportLines& older, const Candidate& candidate) const;
    CommonLines Judge(const ExportLines& older, const std::vector<Candidate>& places) const;

    const ExportLines& newer_;
    LineNumber length_ = 0; // the lines behind line 0
    std::vector<LineNumber>
        borders_; // for each of them, how many lines before and with it equal the beginning, itself excluded
};
