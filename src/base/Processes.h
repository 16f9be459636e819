// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The processes of this computer, by their numbers.
using ProcessNumber = int;

ProcessNumber ThisProcess();

// False when no process has this number. A process may end right after the call.
bool MayRun(ProcessNumber process);

// The name of this computer; "" where it has none.
std::string ComputerName();
