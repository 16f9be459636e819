// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>

// The help file of a language: "language/de/Qorvix.chm" in the folder that holds the program. A language
// whose texts are English has its own help file, or none. Does not check whether the file exists.
std::filesystem::path HelpFile(const std::filesystem::path& programFolder, Language language);

// The program in the same folder that reads help files for the others.
std::filesystem::path HelpReader(const std::filesystem::path& programFolder);
