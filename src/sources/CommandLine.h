// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

// What a command line asks for.
struct CommandLine {
    std::vector<std::string> Sources; // logbooks to open one after the other
    bool Embedded = false;            // the usage is never shown
    bool ShowUsage = false;           // there was an unknown option or "?", and Embedded is not set

    bool operator==(const CommandLine&) const = default;
};

// Reads the command line, everything behind the program's own path as one text. Words are separated by
// blanks; one in double quotes may hold blanks. "-" or "/" begins an option: one with X is ignored, EMB sets
// Embedded, any other shows the usage. An empty pair of quotes takes the rest of the line as its word.
//
// `isFile` decides whether a word that begins with "/" names a file, as on some systems.
CommandLine ParseCommandLine(std::string_view line, const std::function<bool(std::string_view)>& isFile);

// Reads the arguments of the process as one command line. But an argument that names an existing file is that
// file, whatever blanks and quotes its name has, unless it begins with "-" or is "?". A word that begins with
// "/" also names a file when it holds a further "/".
CommandLine ParseArguments(const std::vector<std::string>& arguments,
                           const std::function<bool(const std::string&)>& fileExists);

// The arguments of the process as one command line; puts an argument that holds a blank in double quotes.
std::string JoinArguments(const std::vector<std::string>& arguments);

// The message that explains the command line.
std::string UsageText(Language language);
