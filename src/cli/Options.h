// SPDX-License-Identifier: MIT
#pragma once

#include "rows/CsvLine.h"
#include "settings/Language.h"

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
class Validator;
} // namespace CLI

// What the options of several commands have in common.

// The option --language. `ofWhat` says in the help what is in that language, for example "Of messages".
void AddLanguageOption(CLI::App& command, Language& language, const std::string& ofWhat);

// The argument FILE, which is required, and the option --output.
void AddSourceAndOutput(CLI::App& command, std::string& file, std::string& output);

// The option --output.
CLI::Option* AddOutputOption(CLI::App& command, std::string& output);

// The options --format and, for CSV, --separator, --bom and --raw. A form that is "text" at first can be
// that, "jsonl" or "csv"; any other is of rows, and can be "jsonl", "csv" or "html".
std::vector<CLI::Option*> AddFormOptions(CLI::App& command, RowForm& form);

// Refuses a name that is empty.
CLI::Validator NameIsGiven();
