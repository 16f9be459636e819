// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/clsFile.h"

#include <cstdint>
#include <string>
#include <string_view>

// The path of a file or folder in a folder, whatever the case of its letters: the files come from systems
// that ignore case. Prefers the exact name, then the first name in the order of characters. When there is
// none, the path of the exact name; "" for a folder "". Never throws.
std::string FindInFolder(const std::string& folder, std::string_view name);

// Converts a text of the control's language files, which are Windows-1252, to UTF-8.
std::string LanguageFileText(std::string_view bytes);

// Reads one of the control's language files line by line; the file is open while the object lives.
class LanguageFile {
  public:
    // In bytes. A larger file is not the control's and is not read.
    static constexpr std::int64_t LargestSize = 64 * 1024 * 1024;

    explicit LanguageFile(const std::string& path);

    // The next line without its LF or CR LF, one byte a character, valid until the next call. False, with an
    // empty line, at the end and when the file is not Readable.
    bool ReadLine(std::string_view& line);

    // False when the file is no readable text file: from the beginning, or since a line could not be read or
    // held a NUL. Do not use what was read of such a file.
    bool Readable() const { return readable_; }

  private:
    // A lookup opens several files and mostly finds its text near their beginnings.
    static constexpr std::size_t BlockSize = 16U * 1024U;

    clsFile file_{BlockSize};
    bool readable_;
};
