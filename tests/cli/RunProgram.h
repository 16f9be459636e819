// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

struct ProgramResult {
    int ExitStatus = -1;
    std::string Output;
    std::string Errors;
};

// Runs qorvix-cli as the shell would, with the locale "C.UTF-8" and none of the user's own settings.
ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments);
