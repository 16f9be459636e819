// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// How large a text file may be that is read, in bytes: more than any that the program is meant for.
struct TextFileBounds {
    std::uint64_t File = 0;
    std::size_t Line = 0; // without its end
};

// Reading a text file that travels with a logbook, line by line. Lines end with CR LF or LF. Memory is at
// most that of the longest line allowed, whatever the file holds.
class TextFile {
  public:
    // Opens a regular file; nothing of one is read that is too large. Blocks of another size give the same.
    TextFile(const std::string& path, const TextFileBounds& bounds, std::size_t blockSize = 65536);

    // The next line without its end, which stays until the next call; false when there is none, or it could
    // not be read.
    bool ReadLine(std::string_view& line);

    // Why the file could not be opened, or not be read to its end; none when nothing failed.
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

// Tells of each line of a file that is written, without its end, whether it can be read again under these
// bounds. Ends of two bytes are reckoned with.
class TextFileRoom {
  public:
    explicit TextFileRoom(const TextFileBounds& bounds) : bounds_(bounds) {}

    // None, or why the file would not be read.
    std::error_code Take(std::string_view line);

  private:
    TextFileBounds bounds_;
    std::uint64_t taken_ = 0;
};
