// SPDX-License-Identifier: MIT
#pragma once

#include "FuzzSupport.h"
#include "settings/UserInterface.h"

#include <functional>

// What the targets of the archives share.

// What is known of a logbook that was unpacked.
using CheckUnpacked = std::function<void(const std::string& content)>;

// Opens the archive "a.zip" of a folder, whose question about the filters is answered so, and checks that
// files come to be in the temporary folder only, and none stays when that ends. Each unpacked file is handed
// to `check`.
void OpenArchive(const ScratchFolder& folder, UserInterface::Answer answer, const CheckUnpacked& check);

inline UserInterface::Answer AnswerOf(std::size_t number) {
    using Answer = UserInterface::Answer;
    return number % 3 == 0 ? Answer::Yes : number % 3 == 1 ? Answer::No : Answer::Cancel;
}
