// SPDX-License-Identifier: MIT
#pragma once

#include "base/AsciiCase.h"

#include <filesystem>
#include <map>
#include <optional>
#include <string>

// The members of a compiled HTML help file, by their paths in it, such as "/filters.html". The case of ASCII
// letters makes no difference, as on the format's home system.
using HelpMembers = std::map<std::string, std::string, LessWithoutCase>;

// Reads all members of a compiled HTML help file into memory. Nothing when the file is missing, is no such
// file, or is too damaged to read. Damage inside a member may pass unnoticed. A file with more than 64 MiB
// unpacked, or one that takes longer than ten seconds, counts as damaged.
//
// The program `reader` (HelpReader) reads the file in its own process: libchm trusts what a file says about
// itself, and a few wrong bytes make it write where it should not.
std::optional<HelpMembers> ReadChmFile(const std::filesystem::path& file,
                                       const std::filesystem::path& reader);
