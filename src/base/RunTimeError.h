// SPDX-License-Identifier: MIT
#pragma once

#include <stdexcept>

// A column rule that a line cannot meet, a table that has no room left, a file that fails while it is read,
// or a read that was told to stop. ReadLogbook catches it in its one error exit, and LanguageFile catches
// what happens to its own files; nothing else does.
class RunTimeError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};
