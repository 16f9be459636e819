// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>
#include <system_error>

// Why something failed, for the user: in the program's words where it is the program that refuses a file
// (FileProblem), else in those of the system.
std::string ReasonText(const std::error_code& error, Language language);
