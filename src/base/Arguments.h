// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// The words of the command line behind the program's name. On Windows they are UTF-8, whatever the system's
// code page; elsewhere they are the bytes that the caller gave: a file's name need not be UTF-8.
std::vector<std::string> Arguments(int argc, const char* const* argv);
