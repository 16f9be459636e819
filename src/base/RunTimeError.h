// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

// Thrown when a line cannot meet a column rule, a table has no room left, a file fails while it is read, or a
// read was asked to stop. Only ReadLogbook, in its one error exit, and LanguageFile, for its own files, catch
// it.
class RunTimeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};
