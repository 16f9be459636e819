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
    bool KeepComments = false; // keep those of the archive that is replaced, too
    bool DropComments = false; // let those go
    Language MessageLanguage;
};

// Adds the command. When the user calls it, it fills the options.
CLI::App* AddPackCommand(CLI::App& app, PackOptions& options);

// Saves a logbook as the program's own archive, with filters and comments. Failures are reported on standard
// error; an archive of that name then stays as it was. An archive whose comments would be lost is replaced
// only if an option says what becomes of them.
int RunPack(const PackOptions& options);
