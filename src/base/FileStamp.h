// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

// Shows whether a file has changed: its size in bytes and when it was last written.
struct FileStamp {
    std::uint64_t Size = 0;
    std::filesystem::file_time_type Written;

    bool operator==(const FileStamp&) const = default;
};

// The present stamp of a regular file; nothing, with the error, where there is no such file.
std::optional<FileStamp> StampOf(const std::string& path, std::error_code& error);
