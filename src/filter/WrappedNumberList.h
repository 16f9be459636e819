// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A number list that is too long for one text is wrapped into several, at commas. Each text is filled as far
// as its room, in characters, allows. So two texts show whether the first continues in the second: with room
// for 9 characters, "1-5,10,12" continues in "14,16", and "1-5,10" does not.

// Wraps a list into at least one text; the first has its own room. The first text is empty when the first
// part of the list does not fit. Empty parts, which match nothing, stay behind the part before them. A part
// that fits into no text stands in one alone, without its empty parts.
std::vector<std::string> WrapNumberList(std::string_view list, std::size_t firstRoom, std::size_t room);

// True when `text` has no room for the beginning of `next`. An empty `next` continues no text.
bool GoesOnIn(std::string_view text, std::size_t room, std::string_view next);
