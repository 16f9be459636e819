// SPDX-License-Identifier: MIT
#pragma once

#include "tools/LogbookWriter.h"

#include <string>
#include <string_view>

// What a written event will be in the list. It is found out from the written lines, by rules that have no
// code in common with those of the program.
struct ShownEntry {
    int type = 0; // as the list numbers them: 1 info, 2 warning, 3 error, 4 fatal, 7 start; 0 is all else
    std::string sender;
    std::string name;
    std::string data; // UTF-8, like sender and name
};

// `lines` is one whole event in Windows-1252, without a separator line. Dumps of telegrams, which the list
// shortens, are left as they are.
ShownEntry ReadShownEntry(Generation generation, std::string_view lines);
