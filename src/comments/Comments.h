// SPDX-License-Identifier: MIT
#pragma once

#include "base/TextFile.h"
#include "logbook/EntryTable.h"
#include "settings/Language.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// Comments files (*.cmt): the line "[Comments]", then for each entry with a comment a line of its number,
// with a blank before and behind it, and the comment, in the code page of the control's files:
//
//     [Comments]
//      12 pump replaced
//      40 "oil, filter"
//
// A comment that holds a comma or a double quote, or begins or ends with a blank, stands in double quotes,
// its own ones doubled. So every comment comes back as it was.

// Room for ten million comments of a hundred characters, or some of millions. A file beyond that is not read.
inline constexpr TextFileBounds CommentsFileBounds{.File = std::uint64_t{2} << 30U, .Line = 16U << 20U};

struct CommentsFileResult {
    enum class Outcome : std::uint8_t {
        Read,
        CannotRead, // Error tells why
        NoHeader,   // the first line is not exactly the header
    };

    Outcome Result = Outcome::Read;
    std::error_code Error;
};

// Hands over each number and comment of a file, whatever logbook they are for, as they stand in it; a comment
// may be empty, and a later one of the same number counts. The result as of CommentLogbook.
CommentsFileResult ReadCommentsFile(const std::string& path, const CodePage& codePage,
                                    const std::function<void(std::int64_t, std::string)>& take);

// Sets the comments of the entries that the file names; the others keep theirs. Without Read none is set,
// except where the file cannot be read to its end, as when memory runs out. An empty file is read as one
// without comments.
//
// Files of other writers may have a comma between number and comment. A comment without quotes ends at a
// comma; what follows on the line is passed over. So are lines that have no number, and numbers that the
// logbook has no entry for: the file may have been written for a longer one.
CommentsFileResult CommentLogbook(const std::string& path, EntryTable& entries, const CodePage& codePage);

// The message for a file that was not Read.
std::string CommentsFileMessage(const std::string& path, const CommentsFileResult& result, Language language);

// The entries whose comments have characters that the code page lacks; a file gets "?" for each. Whoever
// saves comments tells the user before.
std::vector<EntryNumber> CommentsThatLose(const EntryTable& entries, const CodePage& codePage);

// A comment as it comes back from a file.
std::string CommentAsStored(std::string_view comment, const CodePage& codePage);

// Writes the comments of all entries; an existing file is replaced when the new one is whole. Fails for
// comments beyond the bounds, too.
std::error_code SaveComments(const std::string& path, const EntryTable& entries, const CodePage& codePage);
