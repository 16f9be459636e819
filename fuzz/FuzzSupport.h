// SPDX-License-Identifier: MIT
#pragma once

#include "base/UnicodeCase.h" // IsUtf8

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

// What the fuzz targets share. Each target is a function over any bytes; it ends the process where a rule
// does not hold that must hold for every input.

// Ends the process when the rule is broken.
void Check(bool holds);

// The input as text, one byte a character.
inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// Takes the first line off the input, for targets that need more than one file's content.
std::string_view TakeLine(std::string_view& rest);

// Takes what stands before the mark off the input, and the mark; all of it when the mark is missing.
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

// An empty folder for what a target writes, removed with all in it. $TMPDIR says where.
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

// The content of a file that is there.
std::string ContentOf(const std::filesystem::path& file);
