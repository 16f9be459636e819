// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The processes of this computer, by their numbers.
using ProcessNumber = int;

ProcessNumber ThisProcess();

// False only where no process has the number; the answer may be out of date at once.
bool MayRun(ProcessNumber process);

// The name of this computer; "" where it has none.
std::string ComputerName();
