// SPDX-License-Identifier: MIT
#pragma once

#include "history/StitchedLog.h"
#include "logbook/EntryTable.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <vector>

// A comment of an export's entry.
struct CommentOfExport {
    std::size_t Export = 0;
    std::int64_t Entry = 0;
    std::string Text;

    bool operator==(const CommentOfExport&) const = default;
};

// The comments of the stitched logbook, by its entries.
struct CarriedComments {
    std::map<EntryNumber, std::string> Placed;
    std::vector<CommentOfExport> Unplaced; // those whose entry the logbook does not have so
};

// Gives each comment to the entry of the same raw line: the line that the commented entry of the export
// begins with must be one that an entry of the logbook begins with. At a cut edge an entry may have become
// part of another one; its comment is then not placed.
//
// `comments` come with those of newer exports first. An entry that gets several different ones has them all,
// in this order. One that was joined of several before counts as these, so that stitching again adds nothing.
// `file` holds the written logbook. Reads every export with comments, and the logbook.
CarriedComments CarryComments(const StitchedLog& log, const std::string& file,
                              std::span<const ExportLines> exports,
                              std::span<const CommentOfExport> comments);
