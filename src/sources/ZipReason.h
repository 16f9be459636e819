// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <string>

struct zip_error;

// Why the zip library failed, in the user's language whatever the locale of the process. English has the
// library's words, and behind them the system's when the system failed ("Write error: No space left on
// device"). An error without known German words is shown by its number.
std::string ZipReason(zip_error& error, Language language);
