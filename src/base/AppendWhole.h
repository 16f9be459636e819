// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <string_view>
#include <system_error>

// A file that grows by whole pieces, for what must outlive a crash.

// Makes an empty file to append to, for its owner alone. The last six characters of `name`, "XXXXXX", become
// such that no other file has the name. Not open, with the error, where that failed; `name` then has no
// meaning.
FileHandle MakeFileToAppend(std::filesystem::path& name, std::error_code& error);

// Appends all of the bytes and flushes them to the disk, or leaves the file as it was, as far as the disk
// lets it, and tells why.
std::error_code AppendWhole(const FileHandle& file, std::string_view bytes);
