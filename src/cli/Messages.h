// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Writes a message to standard error, as a line of its own behind the program's name. Control characters in
// it are made visible, except those in `kept`. Once the process has been asked to end it writes nothing:
// whatever fails then fails for that reason.
void TellMessage(std::string_view message, std::string_view kept = {});

// Writes the message, and returns the exit status of a command that failed.
int Fail(const std::string& message);
