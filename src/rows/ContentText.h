// SPDX-License-Identifier: MIT
#pragma once

#include "logbook/JoinedLines.h"

#include <cstddef>
#include <string>
#include <string_view>

// The most bytes of one text to show at once: laying out more would take as long as reading a logbook.
inline constexpr std::size_t MostShownText = 500'000;

// WithLineBreaks of the text's beginning; when more follows, "..." stands in a line below it.
std::string BeginningWithLineBreaks(std::string_view cell);

// The content pane's text of a row, from its data and comment cells: the lines of the data, then the lines of
// the comment, each but the last ended by CR LF. In a cell the lines stand on one line, separated by " | ".
// Of each cell as much as BeginningWithLineBreaks gives.
std::string ContentText(std::string_view data, std::string_view comment);
