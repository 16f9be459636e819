// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

// What one module of the control says: its sender word, the name of the event and the text. Sender, blank and
// name have at most 23 characters together.
struct ModuleText {
    std::string_view sender;
    std::string_view name;
    std::string_view text;
};
