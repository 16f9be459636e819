// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

class Dice;
class LineBuffer;

// Appends a text of the tables in Windows-1252 and fills its places with numbers that the dice give:
//   {A} axis letter        {D} number 1 to 64       {H} four hexadecimal digits    {L} block number
//   {N} four digits        {P} position in mm       {T} tool number                {V} number 1 to 150
// The tables are UTF-8; they may hold any character of U+0000 to U+007F and U+00A0 to U+00FF.
void AppendFilled(LineBuffer& lines, std::string_view text, Dice& dice);
