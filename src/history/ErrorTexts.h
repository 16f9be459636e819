// SPDX-License-Identifier: MIT
#pragma once

#include "history/ErrorStatistics.h"

#include <optional>
#include <span>
#include <string>

// The control's own texts for an error, in both languages, with LF line ends; nothing where there is none.
struct ErrorTexts {
    std::optional<std::string> English;
    std::optional<std::string> German;
};

// Looks the texts up for the data of the error's first entry. An error without a code has none.
ErrorTexts TextsOf(const ErrorRecord& record, const EntryTable& entries,
                   std::span<const std::string> languageFolders);

// The first line of a text; nothing without a text, or where that line is empty.
std::optional<std::string> FirstLine(const std::optional<std::string>& text);
