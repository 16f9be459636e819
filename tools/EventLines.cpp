// SPDX-License-Identifier: MIT
#include "tools/EventLines.h"

#include "tools/Dice.h"
#include "tools/LineBuffer.h"
#include "tools/TextFiller.h"

#include <cstdint>
#include <string_view>

namespace {

constexpr std::string_view Indent = "  ";
constexpr std::string_view DumpHeading = "00 01 02 03 04 05 06 07 08 09 0A 0B 0C 0D 0E 0F   ";
static_assert(DumpHeading.size() == 50);

void AppendRegister(LineBuffer& lines, char bank, std::uint64_t number, Dice& dice) {
    lines.Append(' ');
    lines.Append(bank);
    lines.AppendNumber(number);
    lines.Append('=');
    lines.AppendHex(dice.OneIn(3) ? dice.Below(256) : dice.Throw(), 8);
}

} // namespace

void AppendKeyCode(LineBuffer& lines, unsigned code) {
    lines.Append("0x");
    lines.AppendHex(code, 4);
}

void AppendKeyWords(LineBuffer& lines, const MachineEvent& event) {
    lines.Append(event.name);
    lines.Append(event.down ? " down code " : " up code ");
    AppendKeyCode(lines, event.code);
    lines.Append(" mode ");
    lines.Append(event.mode);
}

void AppendStrokeWords(LineBuffer& lines, const MachineEvent& event) {
    AppendKeyCode(lines, event.code);
    lines.Append(" -> ");
    lines.Append(static_cast<char>(event.code));
}

void AppendSenderAndName(LineBuffer& lines, const MachineEvent& event) {
    lines.Append(event.sender);
    lines.Append(' ');
    lines.Append(event.name);
}

void AppendMessageLines(LineBuffer& lines, const MachineEvent& event, Dice& dice) {
    for (std::size_t i = 0; i < event.messageCount; ++i) {
        lines.Append(Indent);
        AppendFilled(lines, event.messages[i], dice);
        lines.EndLine();
    }
}

void AppendRegisterLines(LineBuffer& lines, Dice& dice) {
    for (const char bank : {'D', 'A'}) {
        for (std::uint64_t number = 0; number < 8; ++number) {
            AppendRegister(lines, bank, number, dice);
            if (number % 4 == 3)
                lines.EndLine();
        }
    }
    lines.Append(" SR=2700 PC=");
    lines.AppendHex(dice.Below(0x400000), 8);
    lines.EndLine();
}

void AppendDumpLine(LineBuffer& lines, Dice& dice) {
    constexpr std::uint64_t LeastBytes = 21;
    constexpr std::uint64_t MostBytes = 32;
    lines.Append(Indent);
    lines.Append(DumpHeading);
    const std::uint64_t count = dice.Between(LeastBytes, MostBytes);
    for (std::uint64_t i = 0; i < count; ++i) {
        if (i > 0)
            lines.Append(' ');
        lines.AppendHex(dice.Throw(), 2);
    }
    lines.EndLine();
}
