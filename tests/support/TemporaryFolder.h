// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// A folder for one test, removed with everything in it.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    // The path of a file in it.
    std::string operator/(std::string_view name) const;

    // Writes a file in it and returns the file's path.
    std::string Write(std::string_view name, std::string_view content) const;

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// The whole content of a file; "" when it cannot be read. A path as text is UTF-8.
std::string FileContent(const std::filesystem::path& path);
std::string FileContent(const std::string& path);
