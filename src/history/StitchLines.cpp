// SPDX-License-Identifier: MIT
#include "history/StitchLines.h"

#include "history/RawStamp.h"

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>

namespace {

using Outcome = CommonLines::Outcome;
using Reason = CommonLines::Reason;
using Form = ExportLines::Form;

// More places than these are too many, whatever they are. Keeps the time linear.
constexpr std::size_t MostPlaces = 64;

CommonLines Not(Reason why, LineNumber lines = 0) { return {.Why = why, .Lines = lines}; }

// Whether the newer export can be of the older one's generation and version. One that lost its heading can be
// of any.
bool HaveSameHeading(const ExportLines& older, const ExportLines& newer) {
    if (newer.Heading().empty())
        return true;
    return newer.LogbookForm() == Form::Operation ? newer.Heading() == older.Heading()
                                                  : older.LogbookForm() == Form::Separated;
}

} // namespace

BeginningOfExport::BeginningOfExport(const ExportLines& newer)
    : newer_(newer), length_(newer.Count() == 0 ? 0 : newer.Count() - 1), borders_(length_) {
    LineNumber border = 0;
    for (LineNumber i = 1; i < length_; ++i) {
        while (border != 0 && PatternHash(i) != PatternHash(border))
            border = borders_[border - 1];
        if (PatternHash(i) == PatternHash(border))
            ++border;
        borders_[i] = border;
    }
}

CommonLines BeginningOfExport::FindIn(const ExportLines& older) const {
    if (!HaveSameHeading(older, newer_))
        return Not(Reason::OtherHeading);
    const Reason unlike =
        older.LogbookForm() == newer_.LogbookForm() ? Reason::NoneInCommon : Reason::OtherHeading;
    const std::vector<Candidate> candidates = CandidatesIn(older);
    if (candidates.empty())
        return Not(unlike);
    if (candidates.size() == MostPlaces)
        return candidates.front().Lines < LeastCommonLines ? Not(Reason::TooFew, candidates.front().Lines)
                                                           : Not(Reason::SeveralPlaces);
    std::vector<Candidate> places;
    for (const Candidate& candidate : candidates)
        if (Fits(older, candidate.Place))
            places.push_back(candidate);
    while (!places.empty()) {
        const CommonLines common = Judge(older, places);
        if (common.What == Outcome::None ||
            AreSameBytes(older, older.Begin(common.Place), newer_, newer_.Begin(1),
                         older.Begin(common.Place + places.front().Lines) - older.Begin(common.Place)))
            return common;
        // Only the hashes were equal.
        places.erase(places.begin());
    }
    return Not(candidates.front().Lines < LeastCommonLines ? unlike : Reason::FirstLineDiffers);
}

// The places with the most lines first. Knuth, Morris and Pratt's search.
std::vector<BeginningOfExport::Candidate> BeginningOfExport::CandidatesIn(const ExportLines& older) const {
    std::vector<Candidate> candidates;
    if (length_ == 0)
        return candidates;
    LineNumber equal = 0;
    for (LineNumber i = 0; i < older.Count(); ++i) {
        const std::uint32_t hash = older.Hash(i);
        while (equal != 0 && hash != PatternHash(equal))
            equal = borders_[equal - 1];
        if (hash == PatternHash(equal))
            ++equal;
        if (equal != length_)
            continue;
        candidates.push_back({.Place = i + 1 - length_, .Lines = length_});
        if (candidates.size() == MostPlaces)
            return candidates;
        equal = borders_[equal - 1];
    }
    for (; equal != 0 && candidates.size() < MostPlaces; equal = borders_[equal - 1])
        candidates.push_back({.Place = older.Count() - equal, .Lines = equal});
    return candidates;
}

bool BeginningOfExport::Fits(const ExportLines& older, LineNumber place) const {
    if (place == 0 || !older.Line(place - 1).ends_with(newer_.FirstLine()))
        return false;
    return newer_.LogbookForm() != Form::Separated || newer_.Heading().empty() ||
           older.SeparatorBefore(place - 1) == newer_.Heading();
}

// Whether the newer export's heading is itself the older one's separator line before line 0, and not one that
// was written anew for the export. Line 0 then was not cut.
bool BeginningOfExport::IsBehindHeading(const ExportLines& older, LineNumber place) const {
    if (newer_.LogbookForm() != Form::Separated || newer_.Heading().empty())
        return false;
    const std::string before = place < 2 ? older.Heading() : older.Line(place - 2);
    return before == newer_.Heading() && older.Line(place - 1) == newer_.FirstLine();
}

BeginningOfExport::Beginning BeginningOfExport::LookAtBeginning(LineNumber lines) const {
    Beginning beginning{.FirstStamp = lines,
                        .HasDate = !newer_.Heading().empty() && newer_.LogbookForm() == Form::Separated};
    RawLineReader reader(newer_.Path(), newer_.Begin(1));
    std::string_view line;
    std::string clock;
    for (LineNumber i = 0; i < lines && reader.Next(line); ++i) {
        if (IsDatedSeparator(line))
            beginning.HasDate = true;
        if (const std::optional<RawStamp> stamp = StampOfRawLine(line)) {
            if (clock.empty()) {
                beginning.FirstStamp = i;
                clock = stamp->Clock;
            }
            beginning.ClockMoves |= clock != stamp->Clock;
            beginning.HasDate |= stamp->HasDate;
        }
        if (beginning.HasDate && beginning.ClockMoves)
            break;
    }
    return beginning;
}

// Whether the newer export, with its unfinished last line, brings nothing that the older one does not have.
bool BeginningOfExport::EndsWithin(const ExportLines& older, const Candidate& candidate) const {
    if (candidate.Lines != length_)
        return false;
    return candidate.Place + candidate.Lines < older.Count() ||
           AreSameBytes(older, older.End(), newer_, newer_.End(), newer_.Size() - newer_.End());
}

// What follows from the places that fit, if the first of them is verified.
CommonLines BeginningOfExport::Judge(const ExportLines& older, const std::vector<Candidate>& places) const {
    const Candidate& longest = places.front();
    const bool headingCounts = IsBehindHeading(older, longest.Place);
    const LineNumber lines = longest.Lines + (headingCounts ? 1 : 0);
    if (lines < LeastCommonLines)
        return Not(Reason::TooFew, lines);
    const Beginning beginning = LookAtBeginning(longest.Lines);
    const bool firstLineHasStamp = headingCounts && StampOfRawLine(newer_.FirstLine());
    if ((beginning.FirstStamp == longest.Lines && !firstLineHasStamp) || !beginning.HasDate)
        return Not(Reason::NoStamp);
    for (std::size_t i = 1; i < places.size(); ++i)
        if (!beginning.ClockMoves ||
            (places[i].Lines >= LeastCommonLines && beginning.FirstStamp < places[i].Lines))
            return Not(Reason::SeveralPlaces);
    return {.What = EndsWithin(older, longest) ? Outcome::Contained : Outcome::Continues,
            .Lines = lines,
            .Place = longest.Place,
            .FirstLineIsWhole = older.Line(longest.Place - 1) == newer_.FirstLine()};
}
