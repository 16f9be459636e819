// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Tells a message on standard error, as a line of its own behind the program's name. Control characters in it
// are shown, but for those in `kept`. Nothing is told when the process has been asked to end: what fails then
// fails for that.
void TellMessage(std::string_view message, std::string_view kept = {});

// Tells it; the exit status of a command that failed.
int Fail(const std::string& message);
