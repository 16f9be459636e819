// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>

namespace CLI {
class App;
}

struct PackOptions {
    std::string Source;
    std::string Output;
    std::string Filters;  // a filter file in place of the source's own filters; "" = those
    std::string Comments; // a comments file likewise
    bool AllowLoss = false;
    Language MessageLanguage;
};

// Adds the command, which fills the options when it is the one called.
CLI::App* AddPackCommand(CLI::App& app, PackOptions& options);

// Writes an own archive of a source. It takes over the filters and comments of an own archive; a source
// without filters gets those of a first start. Characters that the files cannot hold end it, unless that is
// allowed.
int RunPack(const PackOptions& options);
