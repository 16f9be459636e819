// SPDX-License-Identifier: MIT
#include "logbook/JoinedLines.h"

std::string WithLineBreaks(std::string_view cell) {
    constexpr std::string_view LineEnd = "\r\n";
    std::string text;
    for (std::size_t end; (end = cell.find(LineSeparator)) != std::string_view::npos;
         cell.remove_prefix(end + LineSeparator.size()))
        text.append(cell.substr(0, end)).append(LineEnd);
    return text.append(cell);
}
