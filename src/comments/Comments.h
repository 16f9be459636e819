// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextFile.h"
#include "logbook/EntryTable.h"
#include "settings/Language.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Comments files (*.cmt): the line "[Comments]", then a line for each entry with a comment: its number, with
// a blank before and behind it, and the comment, in the code page of the control's files:
//
//     [Comments]
//      12 pump replaced
//      40 "oil, filter"
//
// A comment that holds a comma or a double quote, or begins or ends with a blank, stands in double quotes,
// and its own quotes are doubled. So every comment comes back unchanged.

// Room for ten million comments of a hundred characters, or for some comments of millions. A larger file is
// not read.
inline constexpr TextFileBounds CommentsFileBounds{.File = std::uint64_t{2} << 30U, .Line = 16U << 20U};

struct CommentsFileResult {
    enum class Outcome : std::uint8_t {
        Read,
        CannotRead, // Error says why
        NoHeader,   // the first line is not exactly the header
    };

    Outcome Result = Outcome::Read;
    std::error_code Error;
};

// Calls `take` with each number and comment in the file, whatever the logbook. A comment may be empty, and a
// later one of the same number counts. The result is as for CommentLogbook.
CommentsFileResult ReadCommentsFile(const std::string& path, const CodePage& codePage,
                                    const std::function<void(std::int64_t, std::string)>& take);

// Sets the comments of the entries that the file names; the others keep theirs. Unless the result is Read,
// sets none, except when the file cannot be read to its end, as when memory runs out. An empty file counts as
// one without comments.
//
// Files of other writers may have a comma between number and comment. A comment without quotes ends at a
// comma; the rest of the line is ignored. Lines without a number are ignored, and so are numbers without an
// entry in the logbook: the file may have been written for a longer one.
CommentsFileResult CommentLogbook(const std::string& path, EntryTable& entries, const CodePage& codePage);

// The message for a file that was not Read.
std::string CommentsFileMessage(const std::string& path, const CommentsFileResult& result, Language language);

// The entries whose comments have characters that the code page lacks; a file gets "?" for each. The caller
// must warn the user before it saves the comments.
std::vector<EntryNumber> CommentsThatLose(const EntryTable& entries, const CodePage& codePage);

// A comment as a file would give it back.
std::string CommentAsStored(std::string_view comment, const CodePage& codePage);

// The first line of a comments file.
inline constexpr std::string_view CommentsFileHeader = "[Comments]";

// The line of a comments file for a comment, without its end.
std::string CommentsFileLine(EntryNumber number, std::string_view comment, const CodePage& codePage);

// Writes the comments of all entries, or these by entry number; replaces an existing file when the new one is
// whole. Also fails for comments beyond the bounds.
std::error_code SaveComments(const std::string& path, const EntryTable& entries, const CodePage& codePage);
std::error_code SaveComments(const std::string& path, const std::map<EntryNumber, std::string>& comments,
                             const CodePage& codePage);
