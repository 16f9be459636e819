// SPDX-License-Identifier: MIT
#include "list/ContentText.h"

#include "logbook/EventLines.h"

namespace {

constexpr std::string_view LineEnd = "\r\n";

void AppendLines(std::string& text, std::string_view cell) {
    for (std::size_t end; (end = cell.find(LineSeparator)) != std::string_view::npos;
         cell.remove_prefix(end + LineSeparator.size()))
        text.append(cell.substr(0, end)).append(LineEnd);
    text.append(cell);
}

} // namespace

std::string WithLineBreaks(std::string_view cell) {
    std::string text;
    AppendLines(text, cell);
    return text;
}

std::string ContentText(std::string_view data, std::string_view comment) {
    std::string text;
    AppendLines(text, data);
    text.append(LineEnd);
    AppendLines(text, comment);
    return text;
}
