// SPDX-License-Identifier: MIT
#include "support/OddFiles.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

std::string MakePipe(const TemporaryFolder& folder, std::string_view name) {
    const std::string path = folder / name;
    EXPECT_EQ(mkfifo(path.c_str(), 0600), 0);
    return path;
}

std::vector<std::string> NoFiles(const TemporaryFolder& folder) {
    const std::string pipe = MakePipe(folder, "pipe");
    std::filesystem::create_symlink("pipe", folder / "link to pipe");
    std::filesystem::create_symlink("/dev/zero", folder / "link to zero");
    return {pipe, folder / "link to pipe", "/dev/zero", folder / "link to zero"};
}
