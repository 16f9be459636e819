// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

// Writes to a file at places that the caller chooses, so that it can go back. Bytes that are not written over
// stay, and so do the file's permissions and locks.
class PlacedWriter {
  public:
    PlacedWriter() = default; // not open

    // Opens the file; makes it, for its owner only, where there is none. On failure `error` says why, and
    // nothing can be written.
    PlacedWriter(const std::filesystem::path& file, std::error_code& error);

    bool IsOpen() const { return file_.IsOpen(); }

    // Removes all bytes of the file.
    std::error_code Empty();

    // Writes all of the bytes at `place`, in bytes, and moves `place` on by what was written, also when the
    // rest failed.
    std::error_code Write(std::string_view bytes, std::int64_t& place);

    // In bytes; 0 with the error.
    std::uint64_t Size(std::error_code& error) const;

  private:
    FileHandle file_;
};
