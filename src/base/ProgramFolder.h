// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The folder of the running program, UTF-8, without a separator at its end; "" when the system does not know
// it.
std::string ProgramFolder();

// The same with the system's separator at its end, as a folder is kept in the settings.
std::string ProgramFolderWithSeparator();

// The name of the file that holds a program: with ".exe" where programs need that.
std::string ProgramFileName(std::string_view program);
