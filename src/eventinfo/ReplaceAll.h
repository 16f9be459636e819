// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Replaces every `from`, which must not be empty, by `to`, and does not search the replacements again. Takes
// time linear in the text's length.
inline void ReplaceAll(std::string& text, std::string_view from, std::string_view to) {
    std::size_t place = text.find(from);
    if (place == std::string::npos)
        return;
    std::string replaced;
    std::size_t copied = 0;
    for (; place != std::string::npos; place = text.find(from, copied)) {
        replaced.append(text, copied, place - copied).append(to);
        copied = place + from.size();
    }
    text = replaced.append(text, copied);
}
