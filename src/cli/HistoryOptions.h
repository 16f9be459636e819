// SPDX-License-Identifier: MIT
#pragma once

#include "rows/CsvLine.h"
#include "settings/Language.h"

#include <string>

namespace CLI {
class App;
class Option;
} // namespace CLI

// What the commands have in common that print what a logbook records of its machine.
struct HistoryOptions {
    std::string File;
    RowForm Form{.Format = "text"}; // or "jsonl", "csv"
    std::string Output;             // "" = standard output
    std::string LanguageFolder;     // of the control's language files; "" = the one beside the program
    bool Partial = false;           // what could be read of a logbook with an error in it
    Language MessageLanguage;       // of the text form, too
};

// Adds them to a command. The file is its argument of that name, and is required.
void AddHistoryOptions(CLI::App& command, HistoryOptions& options);

// The folder of the control's language files that is meant.
std::string LanguageFolder(const std::string& given);

// The option --language-folder.
void AddLanguageFolderOption(CLI::App& command, std::string& folder);

// The option --partial.
CLI::Option* AddPartialOption(CLI::App& command, bool& partial);
