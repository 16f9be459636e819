// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

struct ProgramResult {
    int ExitStatus = -1;
    std::string Output;
    std::string Errors;
};

// Runs qorvix-cli as the shell would, with the locale "C.UTF-8", the settings below `configFolder`, and the
// user's own data below a folder of that name with "-data" behind it; or with none of both.
ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments,
                                 const std::string& configFolder = "");

// The same with a terminal as standard output, which makes "\r\n" of each "\n".
ProgramResult RunOnTerminal(const std::vector<std::string>& arguments);
