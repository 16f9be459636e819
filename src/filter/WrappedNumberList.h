// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// A number list that is too long for one text stands in several, as a line stands in several that are wrapped
// behind a comma. Each holds as much as it has room for, in characters; so whether a text goes on in another
// one can be seen from the two: with room for 9 characters, "1-5,10,12" goes on in "14,16", and "1-5,10" does
// not.

// The texts: at least one, the first with its own room. A text that has no room for the first part of the
// list is empty. Empty parts, which match nothing, stay behind the part before them. A part for which no text
// has room stands in one alone, without the empty ones.
std::vector<std::string> WrapNumberList(std::string_view list, std::size_t firstRoom, std::size_t room);

// True when `text` has no room for the beginning of `next`. An empty `next` continues nothing.
bool GoesOnIn(std::string_view text, std::size_t room, std::string_view next);
