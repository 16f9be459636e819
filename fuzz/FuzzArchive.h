// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzSupport.h"
#include "settings/UserInterface.h"

#include <functional>

// Shared by the targets for archives.

// Checks the content of an unpacked logbook.
using CheckUnpacked = std::function<void(const std::string& content)>;

// Opens the archive "a.zip" of a folder with this answer to the question about the filters. Checks that files
// appear only in the temporary folder, and that none remains when the folder is gone. Calls `check` for each
// unpacked file.
void OpenArchive(const ScratchFolder& folder, UserInterface::Answer answer, const CheckUnpacked& check);

inline UserInterface::Answer AnswerOf(std::size_t number) {
    using Answer = UserInterface::Answer;
    return number % 3 == 0 ? Answer::Yes : number % 3 == 1 ? Answer::No : Answer::Cancel;
}
