// SPDX-License-Identifier: MIT
#pragma once

#include "base/UnicodeCase.h" // IsUtf8

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// Shared by the fuzz targets. Each target is a function over any bytes; it ends the process when a rule that
// must hold for every input is broken.

// Ends the process when the rule is broken.
void Check(bool holds);

// The input as text, one byte a character.
inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Cuts the first line off the input, for targets that need more than one file's content.
std::string_view TakeLine(std::string_view& rest);

// Cuts the text before the mark off the input, with the mark; all of it when the mark is missing.
std::string_view TakePart(std::string_view& rest, std::string_view mark);

// A file in memory with this content, to be read by its path.
class MemoryFile {
  public:
    explicit MemoryFile(std::string_view content);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    std::string Path() const { return "/proc/self/fd/" + std::to_string(handle_); }

  private:
    int handle_;
};

// An empty folder for a target's files, removed with everything in it. It lies in $TMPDIR.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }
    std::string File(std::string_view name) const { return (path_ / name).string(); }
    std::string Write(std::string_view name, std::string_view content) const;

  private:
    std::filesystem::path path_;
};

// The content of an existing file.
std::string ContentOf(const std::filesystem::path& file);
