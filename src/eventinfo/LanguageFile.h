// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/clsFile.h"

#include <cstdint>
#include <string>
#include <string_view>

// The path of a file or folder in a folder, whatever the case of its letters: the files come from systems
// that do not tell case apart. The exact name is preferred, then the first in the order of their characters.
// Without any, the path of the exact name; "" for a folder "". Never throws.
std::string FindInFolder(const std::string& folder, std::string_view name);

// A text of the control's language files, which are Windows-1252, as UTF-8.
std::string LanguageFileText(std::string_view bytes);

// One of the control's language files, open from its making to its end, line by line.
class LanguageFile {
  public:
    // A larger file is none of the control's and is not read.
    static constexpr std::int64_t LargestSize = 64 * 1024 * 1024;

    explicit LanguageFile(const std::string& path);

    // The next line without its LF or CR LF, one byte a character, valid until the next call. False, with an
    // empty line, at the end and when the file is not Readable.
    bool ReadLine(std::string_view& line);

    // False for anything but a text file that can be read: from the beginning, or since a line could not be
    // read or held a NUL. What was read of such a file is not to be used.
    bool Readable() const { return readable_; }

  private:
    clsFile file_;
    bool readable_;
};
