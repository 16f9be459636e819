// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>

namespace CLI {
class App;
class Validator;
} // namespace CLI

// What the options of several commands have in common.

// The option --language. `ofWhat` says in the help what is in that language, for example "Of messages".
void AddLanguageOption(CLI::App& command, Language& language, const std::string& ofWhat);

// The argument FILE, which is required, and the option --output.
void AddSourceAndOutput(CLI::App& command, std::string& file, std::string& output);

// Refuses a name that is empty.
CLI::Validator NameIsGiven();
