// SPDX-License-Identifier: MIT
// A program to be killed: enters comments into a logbook, as the window does, notes them in the folder that
// its word names, and never saves them. It says which it could not note, and why.
#include "base/Arguments.h"
#include "base/Paths.h"
#include "comments/CommentJournal.h"
#include "faults/EnteredComments.h"

#include <cstdlib>
#include <iostream>

int main(int count, char** words) {
    EntryTable entries;
    FillCommentedLogbook(entries);
    CommentJournal journal(ToPath(Arguments(count, words).at(0)));
    int status = EXIT_SUCCESS;
    for (const auto& [number, comment] : EnteredComments) {
        entries.SetComment(number, comment);
        if (const std::error_code error = journal.Note(entries, std::span(&number, 1))) {
            std::cerr << comment << ": " << error.message() << '\n';
            status = EXIT_FAILURE;
        }
    }
    return status;
}
