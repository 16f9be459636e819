// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The folder of the running program, UTF-8, without a separator at its end; "" when the system does not know
// it.
std::string ProgramFolder();
