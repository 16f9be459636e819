// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <string>
#include <string_view>
#include <vector>

// Makes a pipe that nobody writes into: opening it to read waits for ever. Only after NEEDS_NAMED_PIPES.
std::string MakePipe(const TemporaryFolder& folder, std::string_view name);

// Names of things that are no files: devices that never end or cannot be read, and what else the system has
// of the kind, direct and behind a link.
std::vector<std::string> NoFiles(const TemporaryFolder& folder);
