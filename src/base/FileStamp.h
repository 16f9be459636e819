// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

// What tells whether a file is still as it was: its size in bytes and when it was written last.
struct FileStamp {
    std::uint64_t Size = 0;
    std::filesystem::file_time_type Written;

    bool operator==(const FileStamp&) const = default;
};

// The stamp of a regular file at this moment; nothing, with the error, where there is none.
std::optional<FileStamp> StampOf(const std::string& path, std::error_code& error);
