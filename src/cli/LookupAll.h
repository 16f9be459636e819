// SPDX-License-Identifier: MIT
#pragma once

#include "cli/HistoryOptions.h"

// Prints the codes of a logbook's errors and warnings, with the control's texts in both languages and what is
// missing. Returns the exit status; failures are reported on standard error, and an output file then stays as
// it was.
int RunLookupAll(const HistoryOptions& options);
