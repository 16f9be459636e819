// SPDX-License-Identifier: MIT
#include "base/FileStamp.h"

#include "base/Paths.h"

std::optional<FileStamp> StampOf(const std::string& path, std::error_code& error) {
    FileStamp stamp;
    stamp.Size = std::filesystem::file_size(ToPath(path), error);
    if (!error)
        stamp.Written = std::filesystem::last_write_time(ToPath(path), error);
    return error ? std::nullopt : std::optional(stamp);
}
