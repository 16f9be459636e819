// SPDX-License-Identifier: MIT
#include "history/StitchedLog.h"

#include "base/Paths.h"
#include "base/RunTimeError.h"
#include "base/StopRequest.h"

#include <algorithm>
#include <fstream>
#include <string>

StitchedLog::StitchedLog(std::span<const ExportLines> exports, const StitchPlan& plan)
    : exports_(exports), plan_(plan), duplicates_(exports.size()) {
    for (const std::size_t number : plan.Order)
        parts_.push_back({.Export = number, .Begin = 0, .End = exports[number].Size()});
    for (std::size_t i = 0; i < plan.Pairs.size(); ++i) {
        links_.push_back(LinkOf(plan.Pairs[i].Older, plan.Pairs[i].Newer, plan.Pairs[i].Common));
        parts_[i].End = links_.back().OtherSecond;
        parts_[i + 1].Begin = links_.back().Second;
        parts_[i + 1].At = parts_[i].At + parts_[i].End - parts_[i].Begin;
    }
    for (const StitchPlan::Duplicate& duplicate : plan.Duplicates)
        duplicates_[duplicate.Export] = duplicate.Common
                                            ? LinkOf(duplicate.Of, duplicate.Export, *duplicate.Common)
                                            : Link{.Other = duplicate.Of, .IsSame = true};
}

StitchedLog::Link StitchedLog::LinkOf(std::size_t other, std::size_t newer, const CommonLines& common) const {
    return {.Other = other,
            .First = exports_[newer].Begin(0),
            .Second = exports_[newer].Begin(1),
            .OtherFirst = exports_[other].Begin(common.Place - 1),
            .OtherSecond = exports_[other].Begin(common.Place),
            .FirstLineIsWhole = common.FirstLineIsWhole};
}

void StitchedLog::Write(std::ostream& stream) const {
    std::string block(std::size_t{1} << 20U, '\0');
    for (const Part& part : parts_) {
        std::ifstream file;
        file.rdbuf()->pubsetbuf(nullptr, 0);
        file.open(ToPath(exports_[part.Export].Path()), std::ios::binary);
        file.seekg(static_cast<std::streamoff>(part.Begin));
        for (std::uint64_t left = part.End - part.Begin; left != 0 && stream;) {
            if (StopRequest::IsMade())
                throw RunTimeError("the process was asked to end");
            const auto wanted = static_cast<std::streamsize>(std::min<std::uint64_t>(left, block.size()));
            if (!file.read(block.data(), wanted))
                throw RunTimeError("an export has become shorter");
            stream.write(block.data(), wanted);
            left -= static_cast<std::uint64_t>(wanted);
        }
    }
}

std::optional<std::size_t> StitchedLog::PartOf(std::size_t exportNumber) const {
    const auto found = std::find_if(parts_.begin(), parts_.end(),
                                    [&](const Part& part) { return part.Export == exportNumber; });
    if (found == parts_.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - parts_.begin());
}

// Whether the unfinished last line of an export is the beginning of what another one has at a place.
bool StitchedLog::GoesOnAlike(std::size_t exportNumber, std::size_t other, std::uint64_t otherPlace) const {
    const ExportLines& unfinished = exports_[exportNumber];
    return AreSameBytes(exports_[other], otherPlace, unfinished, unfinished.End(),
                        unfinished.Size() - unfinished.End());
}

// The place in the other export of the link.
std::optional<std::uint64_t> StitchedLog::Along(const Link& link, std::size_t exportNumber,
                                                std::uint64_t place) const {
    if (link.IsSame)
        return place;
    if (place < link.Second) {
        if (place < link.First || !link.FirstLineIsWhole)
            return std::nullopt;
        return link.OtherFirst + (place - link.First);
    }
    const std::uint64_t there = link.OtherSecond + (place - link.Second);
    if (place >= exports_[exportNumber].End() && !GoesOnAlike(exportNumber, link.Other, there))
        return std::nullopt;
    return there;
}

std::optional<std::uint64_t> StitchedLog::PlaceOf(std::size_t exportNumber, std::uint64_t place) const {
    if (const std::optional<Link>& link = duplicates_[exportNumber]) {
        const std::optional<std::uint64_t> there = Along(*link, exportNumber, place);
        return there ? PlaceOf(link->Other, *there) : std::nullopt;
    }
    const std::optional<std::size_t> number = PartOf(exportNumber);
    if (!number)
        return std::nullopt;
    const Part& part = parts_[*number];
    if (place < part.Begin) {
        const Link& link = links_[*number - 1];
        const std::optional<std::uint64_t> there = Along(link, exportNumber, place);
        return there ? PlaceOf(link.Other, *there) : std::nullopt;
    }
    if (place < part.End)
        return part.At + (place - part.Begin);
    if (*number + 1 == parts_.size())
        return std::nullopt;
    const Part& next = parts_[*number + 1];
    const std::uint64_t there = next.Begin + (place - part.End);
    if (place >= exports_[exportNumber].End() && !GoesOnAlike(exportNumber, next.Export, there))
        return std::nullopt;
    return PlaceOf(next.Export, there);
}

StitchedLog::Range StitchedLog::CommonRange(std::size_t pair) const {
    const StitchPlan::Pair& common = plan_.Pairs[pair];
    const ExportLines& older = exports_[common.Older];
    const LineNumber lines = std::min<LineNumber>(common.Common.Lines, older.Count());
    const Part& part = parts_[pair];
    // The last line of the older export is in common.
    const std::uint64_t begin = older.Begin(older.Count() - lines);
    const std::uint64_t at = part.At + part.End - part.Begin; // of Place
    const std::uint64_t first = older.Begin(common.Common.Place);
    return {.Begin = at - (first - begin), .End = at + (older.End() - first)};
}
