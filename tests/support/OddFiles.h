// SPDX-License-Identifier: MIT
#pragma once

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include <sys/stat.h>

// Makes a pipe that nobody writes into: opening it to read waits for ever.
inline std::string MakePipe(const TemporaryFolder& folder, std::string_view name) {
    const std::string path = folder / name;
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
}

// Names of things that are no files, direct and behind a link: a pipe, and a device that never ends.
inline std::vector<std::string> NoFiles(const TemporaryFolder& folder) {
    const std::string pipe = MakePipe(folder, "pipe");
    std::filesystem::create_symlink("pipe", folder / "link to pipe");
    std::filesystem::create_symlink("/dev/zero", folder / "link to zero");
    return {pipe, folder / "link to pipe", "/dev/zero", folder / "link to zero"};
}
