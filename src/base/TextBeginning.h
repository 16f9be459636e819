// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string_view>

// The beginning of a UTF-8 text, at most `most` bytes, without a part of a character at its end.
inline std::string_view TextBeginning(std::string_view text, std::size_t most) {
    if (text.size() <= most)
        return text;
    std::size_t end = most;
    while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U)
        --end;
    return text.substr(0, end);
}
