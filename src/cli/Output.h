// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

// Where a command prints.
struct OutputPlace {
    std::string File; // "" = standard output
    Language MessageLanguage;
};

// True when the output may not be written there, which has then been reported: it would replace one of these
// files, which it is made from, or an existing file of comments, filters or an own archive.
bool RefusesOutput(const OutputPlace& place, const std::vector<std::string>& sources);

// Lets `write` print on the place; `isTerminal` when a person reads it there. A file takes its place as a
// whole, or stays as it was. A pipe or a device cannot be replaced, so it is written to. Returns the exit
// status; failures are reported.
int WriteOutput(const OutputPlace& place,
                const std::function<void(std::ostream& stream, bool isTerminal)>& write);
