// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"

int RunExport(const ListOptions& options) { return PrintList(options); }
