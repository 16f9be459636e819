// SPDX-License-Identifier: MIT
#pragma once

#include "base/FileHandles.h"

#include <cstdint>
#include <filesystem>
#include <string_view>
#include <system_error>

// A file that is written at places which the writer chooses, for one who goes back to what it wrote before.
// What the file held stays where nothing is written, with the file's permissions and locks.
class PlacedWriter {
  public:
    PlacedWriter() = default; // not open

    // Opens the file, which is made for its owner only where it is not there. The error tells why that
    // failed; nothing can be written then.
    PlacedWriter(const std::filesystem::path& file, std::error_code& error);

    bool IsOpen() const { return file_.IsOpen(); }

    // Takes all that it holds from the file.
    std::error_code Empty();

    // Writes all of the bytes. `place`, in bytes, moves on by what was written, also where the rest failed.
    std::error_code Write(std::string_view bytes, std::int64_t& place);

    // In bytes; 0 with the error.
    std::uint64_t Size(std::error_code& error) const;

  private:
    FileHandle file_;
};
