// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <span>
#include <string>
#include <string_view>
#include <system_error>

// Why something failed, in the user's language whatever the locale of the process. A FileProblem has the
// program's words. Another error has the system's English words, or a German text for them. An error without
// known words is shown by its number.
std::string ReasonText(const std::error_code& error, Language language);

// The same for an error number of the system, as in errno.
std::string SystemReason(int number, Language language);

// The system's reasons with known words: all that can come from work on files and from its memory. For tests.
struct SystemReasonRow {
    int Number;
    std::string_view English;
    std::string_view German;
};
std::span<const SystemReasonRow> SystemReasonTable();
