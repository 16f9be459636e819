// SPDX-License-Identifier: MIT
#include "tools/TextFiller.h"

#include "tools/Dice.h"
#include "tools/LineBuffer.h"

#include <cstddef>
#include <cstdint>

namespace {

constexpr std::string_view AxisLetters = "XYZABC";

void AppendPosition(LineBuffer& lines, Dice& dice) {
    const std::uint64_t micrometres = dice.Below(1'500'000);
    lines.Append(dice.OneIn(2) ? '+' : '-');
    lines.AppendNumber(micrometres / 1000);
    lines.Append('.');
    lines.AppendDecimal(micrometres % 1000, 3);
}

void AppendPlace(LineBuffer& lines, char place, Dice& dice) {
    switch (place) {
    case 'A':
        return lines.Append(dice.Pick(AxisLetters));
    case 'D':
        return lines.AppendNumber(dice.Between(1, 64));
    case 'H':
        return lines.AppendHex(dice.Below(0x10000), 4);
    case 'L':
        return lines.AppendNumber(dice.Between(1, 99'999));
    case 'N':
        return lines.AppendNumber(dice.Between(1000, 9999));
    case 'P':
        return AppendPosition(lines, dice);
    case 'T':
        return lines.AppendNumber(dice.Between(1, 240));
    case 'V':
        return lines.AppendNumber(dice.Between(1, 150));
    default:
        return;
    }
}

} // namespace

void AppendFilled(LineBuffer& lines, std::string_view text, Dice& dice) {
    constexpr char LowLead = '\xC2';  // U+0080 to U+00BF: the second byte is the character
    constexpr char HighLead = '\xC3'; // U+00C0 to U+00FF: the second byte lacks bit 6
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char character = text[at];
        if (character == '{') {
            AppendPlace(lines, text[at + 1], dice);
            at += 2;
        } else if (character == LowLead) {
            lines.Append(text[++at]);
        } else if (character == HighLead) {
            lines.Append(static_cast<char>(static_cast<unsigned char>(text[++at]) | 0x40U));
        } else {
            lines.Append(character);
        }
    }
}
