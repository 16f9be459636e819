// SPDX-License-Identifier: MIT
#include "support/TemporaryFolder.h"

#include "base/Paths.h"

#include <fstream>
#include <iterator>
#include <random>

TemporaryFolder::TemporaryFolder() {
    std::random_device random;
    do {
        path_ = std::filesystem::temp_directory_path() / ("qorvix-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TemporaryFolder::operator/(std::string_view name) const {
    return PathText((path_ / ToPath(name)).make_preferred());
}

std::string TemporaryFolder::Write(std::string_view name, std::string_view content) const {
    const std::string file = *this / name;
    std::ofstream(ToPath(file), std::ios::binary) << content;
    return file;
}

std::string FileContent(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::string FileContent(const std::string& path) { return FileContent(ToPath(path)); }
