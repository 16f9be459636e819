// SPDX-License-Identifier: MIT
#pragma once

#include <fstream>
#include <istream>
#include <string>
#include <system_error>

// Reading the small text files that travel with a logbook. Their lines end with CR LF or LF.

// Opens a file for reading. The error tells why that failed; a folder is no file.
std::error_code OpenTextFile(const std::string& path, std::ifstream& stream);

// The next line without its end; false when there is none, or it could not be read.
bool ReadTextLine(std::istream& stream, std::string& line);

// Asked when there is no further line: none when the file ended, else why reading did.
std::error_code TextFileError(const std::istream& stream);
