// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The folder of the program that runs, UTF-8, without a separator behind it; "" when the system does not
// tell.
std::string ProgramFolder();
