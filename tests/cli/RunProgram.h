// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

struct ProgramResult {
    int ExitStatus = -1;
    std::string Output;
    std::string Errors;
};

// Runs qorvix-cli as the shell would, with the locale "C.UTF-8" and the settings below `configFolder`, or
// none.
ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments,
                                 const std::string& configFolder = "");

// The same with a terminal as standard output, which makes "\r\n" of each "\n".
ProgramResult RunOnTerminal(const std::vector<std::string>& arguments);
