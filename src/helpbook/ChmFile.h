// SPDX-License-Identifier: MIT
#pragma once

#include "base/AsciiCase.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

// The members of a compiled HTML help file, by their paths in it, such as "/filters.html". As on the system
// that the format comes from, the case of ASCII letters makes no difference.
using HelpMembers = std::map<std::string, std::string, LessWithoutCase>;

// Reads all members of a compiled HTML help file into memory; nothing when the file is missing or is no such
// file, or when it is so damaged that reading it fails. Damage inside a member may pass unnoticed. A file of
// more than 64 MiB unpacked counts as damaged; so does one that takes longer than ten seconds.
//
// The reading happens in a process of its own, that of the program `reader` (HelpReader): libchm believes
// what a file says of itself, and a few wrong bytes make it write where it should not.
std::optional<HelpMembers> ReadChmFile(const std::filesystem::path& file,
                                       const std::filesystem::path& reader);
