// SPDX-License-Identifier: MIT
#include "rows/ContentText.h"

#include "base/TextBeginning.h"

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view More = "...";

void AppendBeginning(std::string& text, std::string_view cell) {
    text.append(WithLineBreaks(TextBeginning(cell, MostShownText)));
    if (cell.size() > MostShownText)
        text.append(LineEnd).append(More);
}

} // namespace

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
