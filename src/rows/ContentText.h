// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// The lines of a cell below each other, separated by CR LF. In the list they stand on one line, separated by
// " | ".
std::string WithLineBreaks(std::string_view cell);

// More of one text, in bytes, than half a million is not shown at once: laying it out would take as long as
// reading a logbook.
inline constexpr std::size_t MostShownText = 500'000;

// WithLineBreaks of the text's beginning; where more follows, "..." stands in a line below it.
std::string BeginningWithLineBreaks(std::string_view cell);

// What the content pane shows of a row, from its data and comment cells: the lines of the data, then the
// lines of the comment, each line but the last ended by CR LF. In a cell the lines stand on one line,
// separated by " | ". Of each cell as much as BeginningWithLineBreaks has.
std::string ContentText(std::string_view data, std::string_view comment);
