// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"

#include <cstddef>
#include <string>

struct ErrorsOptions : HistoryOptions {
    std::size_t Top = 0;        // so many of the most frequent; 0 = all
    std::string Type = "error"; // or "warning", "all": both
    std::string Filters;        // a filter file; "" = none
};

// Adds the command. When the user calls it, it fills the options.
CLI::App* AddErrorsCommand(CLI::App& app, ErrorsOptions& options);

// Prints which errors a logbook records, the most frequent first. Returns the exit status; failures are
// reported on standard error, and an output file then stays as it was.
int RunErrors(const ErrorsOptions& options);
