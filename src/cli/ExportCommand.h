// SPDX-License-Identifier: MIT
#pragma once

#include "cli/PrintedList.h"

// Prints the list of a logbook, a row a line: all entries, or those that the filters let through. Reports
// failures on standard error; when the logbook cannot be read, nothing is printed.
int RunExport(const ListOptions& options);
