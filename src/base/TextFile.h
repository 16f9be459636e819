// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// How large a text file may be, in bytes, so that it is read: more than any that the program is meant for.
struct TextFileBounds {
    std::uint64_t File = 0;
    std::size_t Line = 0; // without its line end
};

// Reads a text file that travels with a logbook, line by line. Lines end with CR LF or LF. Takes at most the
// memory of the longest line allowed, whatever the file holds.
class TextFile {
  public:
    // Opens a regular file; reads nothing of a file that is too large. The size of the blocks does not change
    // the result.
    TextFile(const std::string& path, const TextFileBounds& bounds, std::size_t blockSize = 65536);

    // The next line without its end; it is valid until the next call. False when there is none, or it could
    // not be read.
    bool ReadLine(std::string_view& line);

    // Why the file could not be opened or not read to its end; no error when nothing failed.
    const std::error_code& Error() const { return error_; }

  private:
    bool ReadBlock();
    bool Fail(std::error_code error);

    TextFileBounds bounds_;
    std::ifstream stream_;
    std::vector<char> block_;
    std::string_view rest_; // of the block
    std::uint64_t read_ = 0;
    std::string line_;
    std::error_code error_;
};

// Checks whether a file that is written can be read again under these bounds. Take each line without its end;
// every end counts as two bytes.
class TextFileRoom {
  public:
    explicit TextFileRoom(const TextFileBounds& bounds) : bounds_(bounds) {}

    // No error, or why the file could not be read.
    std::error_code Take(std::string_view line);

  private:
    TextFileBounds bounds_;
    std::uint64_t taken_ = 0;
};
