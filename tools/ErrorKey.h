// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

// The key of an entry: what its repetitions have in common, whatever numbers they name. The texts are UTF-8,
// as the list shows them. The first of these that the data gives:
//   its code      "Event: 232-5"          232-0005
//   its number    "P012 Door 3 open"      P12
//   its words     PLC, DOOR, "Door 3"     PLC/DOOR Door #
//
// A code is of a facility that the control knows. A number follows "N" or "P" at once and has a blank behind
// it, be it at the end of the text; the blanks of the " | " between joined lines do not count.
std::string ErrorKey(std::string_view sender, std::string_view name, std::string_view data);

// "P12" for a text that begins so, whatever follows.
std::optional<std::string> LetterAndNumber(std::string_view data);
