// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The names of journals show whose they are, for disks without locks: "comments-<computer>-<process>-XXXXXX".

// The name of a new journal of this process; its last six characters are still to be chosen.
std::string JournalNamePattern();

// True unless the name is that of a process of this computer that no longer runs.
bool MayBeInUse(std::string_view name);
