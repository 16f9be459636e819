// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/CodePage.h"
#include "logbook/EntryTable.h"

#include <string>
#include <vector>

// Comments files (*.cmt): the line "[Comments]", then a line for each entry that has a comment: its number
// with a blank before and after it, and the comment, in the code page of the control's files. A comment with
// a comma or a double quote, or with a blank at an end, stands between double quotes, which are doubled
// inside.

// The bytes of a comments file with all comments, in the order of their entries.
std::string CommentsFileText(const EntryTable& entries, const CodePage& codePage);

// The entries whose comments have characters that the code page lacks; the file has "?" for each.
std::vector<EntryNumber> CommentsThatLose(const EntryTable& entries, const CodePage& codePage);

// Writes the comments file. The error tells why that failed; an old file is then as it was.
std::error_code SaveComments(const std::string& path, const EntryTable& entries, const CodePage& codePage);

// Reads a comments file into the entries. Damaged lines and numbers without an entry are passed over, so that
// the comments of a longer logbook load what fits. False when the first line is no header; nothing is then
// read. An empty file, and one that cannot be read, has no comments.
bool CommentLogbook(const std::string& path, EntryTable& entries, const CodePage& codePage);
