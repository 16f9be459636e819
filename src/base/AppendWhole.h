// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <filesystem>
#include <string_view>
#include <system_error>

// A file that grows by whole pieces, for data that must outlive a crash.

// Makes an empty file to append to, for its owner alone. The last six characters of `name`, "XXXXXX", are
// replaced so that the name is unique. On failure the handle is not open, `error` says why, and `name` has no
// meaning.
FileHandle MakeFileToAppend(std::filesystem::path& name, std::error_code& error);

// Appends all of the bytes and flushes them to the disk. On failure it restores the file, as far as the disk
// allows, and returns the reason.
std::error_code AppendWhole(const FileHandle& file, std::string_view bytes);
