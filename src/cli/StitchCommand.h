// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

struct StitchOptions {
    std::vector<std::string> Sources; // in any order
    std::string Output;               // *.log or *.qorvix
    std::string Format = "text";      // or "jsonl"
    Language MessageLanguage;
};

// Adds the command. When the user calls it, it fills the options.
CLI::App* AddStitchCommand(CLI::App& app, StitchOptions& options);

// Makes one logbook of exports whose lines overlap, and carries the comments of own archives over. Prints
// what each pair of neighbours has in common, a pair a line. Failures are reported on standard error; nothing
// is written then.
int RunStitch(const StitchOptions& options);
