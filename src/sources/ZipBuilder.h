// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <filesystem>
#include <functional>
#include <span>
#include <string>

// A file to pack into a zip archive, and its name (UTF-8) there.
struct FileToPack {
    std::string Name;
    std::filesystem::path File;
    std::string Told; // its name in messages
};

// Receives the progress of packing: 0 to 100 percent; 0 at the start and the end, also when packing fails.
using PackingProgress = std::function<void(double percent)>;

// Builds a zip archive of files, all deflated, in the file `archive`, replacing its content. Marks names that
// are not ASCII as UTF-8. Reads the files in pieces, so memory does not grow with them.
//
// Returns why it failed, in this language; "" on success. After a failure the archive is useless.
std::string BuildZip(const std::filesystem::path& archive, std::span<const FileToPack> files,
                     Language language, const PackingProgress& progress = {});
