// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>

// The help file of a language: "language/de/Qorvix.chm" in the folder that holds the program. Languages whose
// texts are English have a help file of their own, or none; whether it exists is not looked at.
std::filesystem::path HelpFile(const std::filesystem::path& programFolder, Language language);

// The program that reads help files for the others, in the same folder.
std::filesystem::path HelpReader(const std::filesystem::path& programFolder);
