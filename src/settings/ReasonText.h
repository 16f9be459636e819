// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"

#include <span>
#include <string>
#include <string_view>
#include <system_error>

// Why something failed, for the user, in this language whatever the locale of the process: where it is the
// program that refuses a file (FileProblem), in the program's words; else in those that the system has in
// English, and in words for them in German. What no words are known for is told by its number.
std::string ReasonText(const std::error_code& error, Language language);

// The same for a number of the system, as errno has it.
std::string SystemReason(int number, Language language);

// The reasons of the system that have words, for whoever checks them all: those that work on files can give.
struct SystemReasonRow {
    int Number;
    std::string_view English;
    std::string_view German;
};
std::span<const SystemReasonRow> SystemReasonTable();
