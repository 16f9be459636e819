// SPDX-License-Identifier: MIT
#pragma once

#include "rows/CsvLine.h"
#include "settings/Language.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

// What the commands have in common that print what a logbook records of its machine.
struct HistoryOptions {
    std::string File;
    RowForm Form{.Format = "text"}; // or "jsonl", "csv"
    std::string Output;             // "" = standard output
    std::string LanguageFolder;     // of the control's language files; "" = the usual ones
    bool Partial = false;           // what could be read of a logbook with an error in it
    Language MessageLanguage;       // of the text form, too
};

// Adds them to a command. The file is its argument of that name, and is required.
void AddHistoryOptions(CLI::App& command, HistoryOptions& options);

// The folders of the control's language files that are meant, in the order in which they are searched.
std::vector<std::string> LanguageFolders(const std::string& given);

// The option --language-folder.
void AddLanguageFolderOption(CLI::App& command, std::string& folder);

// The option --partial.
CLI::Option* AddPartialOption(CLI::App& command, bool& partial);
