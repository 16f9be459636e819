// SPDX-License-Identifier: MIT
#include "tools/OperationWriter.h"

#include "tools/EventLines.h"
#include "tools/LineBuffer.h"
#include "tools/MachineStory.h"

#include <algorithm>

namespace {

constexpr std::size_t StampColumn = 50;
constexpr std::size_t KeywordGap = 1; // at least, behind a long keyword
constexpr unsigned FirstUnnamedKey = 0x0230;

std::string_view Keyword(Happening happening) {
    switch (happening) {
    case Happening::Restart:
    case Happening::SystemInfo:
        return "System info:";
    case Happening::Fatal:
    case Happening::BusError:
    case Happening::Registers:
        return "System error:";
    case Happening::BareError:
    case Happening::Error:
    case Happening::AccessError:
    case Happening::ModuleError:
    case Happening::PlcError:
        return "Error:";
    case Happening::Warning:
        return "Warning:";
    case Happening::Key:
    case Happening::Stroke:
        return "Key:";
    case Happening::Status:
        return "Stib:";
    case Happening::Mouse:
        return "Mouse:";
    case Happening::Info:
    case Happening::Dump:
    case Happening::PlcMessage:
        return "Info:";
    }
    return "Info:";
}

std::string_view LampWord(Lamp lamp) {
    return lamp == Lamp::On ? "On" : lamp == Lamp::Blink ? "Blink" : "Off";
}

void AppendSenderField(LineBuffer& lines, const MachineEvent& event) {
    switch (event.happening) {
    case Happening::Key:
        // Some keys have no name of their own here.
        return event.code < FirstUnnamedKey ? lines.Append(event.name) : AppendKeyCode(lines, event.code);
    case Happening::Stroke:
        return AppendKeyCode(lines, event.code);
    case Happening::Status:
        return lines.Append(LampWord(event.lamp));
    case Happening::Restart:
        return lines.Append("SYS");
    default:
        return lines.Append(event.sender);
    }
}

void AppendWordLine(LineBuffer& lines, const MachineEvent& event) {
    lines.Append("  ");
    if (event.happening == Happening::Key)
        AppendKeyWords(lines, event);
    else if (event.happening == Happening::Stroke)
        AppendStrokeWords(lines, event);
    else
        lines.Append("SYSTEM START");
    lines.EndLine();
}

} // namespace

void AppendOperationHeading(LineBuffer& lines) {
    lines.Append("Operation Logbook Version 1.0");
    lines.EndLine();
}

void AppendOperationEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story) {
    lines.Append(Keyword(event.happening));
    lines.PadTo(std::max(TextColumn, lines.Column() + KeywordGap));
    AppendSenderField(lines, event);
    lines.PadTo(StampColumn);
    story.Clock().AppendStamp(lines, event.milliseconds);
    lines.EndLine();

    if (event.messageCount > 0)
        AppendMessageLines(lines, event, story.Chance());
    else if (event.happening != Happening::Status)
        AppendWordLine(lines, event);
}
