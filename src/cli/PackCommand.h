// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>

namespace CLI {
class App;
}

struct PackOptions {
    std::string Source;
    std::string Archive;
    std::string Filters;       // a filter file; "" = those of the source, or the one that shows all entries
    std::string Comments;      // a comments file; "" = those of the source
    bool KeepComments = false; // those of the archive that is replaced, too
    bool DropComments = false; // or let them go
    Language MessageLanguage;
};

// Adds the command, which fills the options when it is the one called.
CLI::App* AddPackCommand(CLI::App& app, PackOptions& options);

// Saves a logbook as the program's own archive, with filters and comments. What goes wrong is told on
// standard error; an archive of that name is then as it was. One with comments that would be lost is
// replaced only where an option says what becomes of them.
int RunPack(const PackOptions& options);
