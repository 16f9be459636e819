// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <filesystem>

// Opens a file to read its bytes, for a library that wants the C library's kind of file. nullptr, with errno,
// where that fails.
std::FILE* OpenForC(const std::filesystem::path& file);
