// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>

struct zip_error;

// Why the zip library failed, for the user, in this language whatever the locale of the process: in English
// in the library's words, with the system's behind them where it was the system that failed ("Write error:
// No space left on device"). What no German words are known for is told by its number.
std::string ZipReason(zip_error& error, Language language);
