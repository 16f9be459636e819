// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string>

// A file that goes into a zip archive, and the name (UTF-8) that it has there.
struct FileToPack {
    std::string Name;
    std::filesystem::path File;
    std::string Told; // what messages call it
};

// What packing tells its surroundings: a percentage from 0 to 100; 0 at its begin and end, also where it
// fails.
using PackingProgress = std::function<void(double percent)>;

// Builds a zip archive of files, all deflated, in the file `archive`, in place of what it held. Names that
// are not ASCII are marked as UTF-8. The files go through in pieces, so memory does not grow with them.
//
// Returns why that failed, in this language, "" when it did not. After a failure the archive is of no use.
std::string BuildZip(const std::filesystem::path& archive, std::span<const FileToPack> files,
                     Language language, const PackingProgress& progress = {});
