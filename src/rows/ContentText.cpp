// SPDX-License-Identifier: MIT
#include "rows/ContentText.h"

#include "base/TextBeginning.h"
#include "logbook/EventLines.h"

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view More = "...";

void AppendLines(std::string& text, std::string_view cell) {
    for (std::size_t end; (end = cell.find(LineSeparator)) != std::string_view::npos;
         cell.remove_prefix(end + LineSeparator.size()))
        text.append(cell.substr(0, end)).append(LineEnd);
    text.append(cell);
}

void AppendBeginning(std::string& text, std::string_view cell) {
    AppendLines(text, TextBeginning(cell, MostShownText));
    if (cell.size() > MostShownText)
        text.append(LineEnd).append(More);
}

} // namespace

std::string WithLineBreaks(std::string_view cell) {
    std::string text;
    AppendLines(text, cell);
    return text;
}

std::string BeginningWithLineBreaks(std::string_view cell) {
    std::string text;
    AppendBeginning(text, cell);
    return text;
}

std::string ContentText(std::string_view data, std::string_view comment) {
    std::string text;
    AppendBeginning(text, data);
    text.append(LineEnd);
    AppendBeginning(text, comment);
    return text;
}
