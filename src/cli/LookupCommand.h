// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"
#include "settings/Language.h"

#include <string>

namespace CLI {
class App;
}

struct LookupOptions {
    std::string Data;
    std::string All;        // a logbook, whose codes are looked up instead
    std::string Folder;     // of the language files; "" = the usual ones
    HistoryOptions Listing; // with All: how to print; its File and LanguageFolder come from here
    Language TextLanguage;
};

// Adds the command. When the user calls it, it fills the options.
CLI::App* AddLookupCommand(CLI::App& app, LookupOptions& options);

// Prints the comment that the program proposes for a data text of the list, with LF line ends and one more at
// its end. When it proposes none, nothing is printed and the exit status is 1. With All it prints the codes
// of that logbook instead, see RunLookupAll.
int RunLookup(const LookupOptions& options);
