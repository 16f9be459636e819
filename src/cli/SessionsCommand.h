// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"

// Adds the command. When the user calls it, it fills the options.
CLI::App* AddSessionsCommand(CLI::App& app, HistoryOptions& options);

// Prints the sessions of a logbook, from one start of the control to the next: what it records of each.
// Returns the exit status; failures are reported on standard error, and an output file then stays as it was.
int RunSessions(const HistoryOptions& options);
