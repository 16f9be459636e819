// SPDX-License-Identifier: MIT
#include "tools/SeparatedWriter.h"

#include "tools/EventLines.h"
#include "tools/LineBuffer.h"
#include "tools/MachineStory.h"

namespace {

constexpr std::size_t ClockColumn = 45;

std::string_view Keyword(Happening happening) {
    switch (happening) {
    case Happening::Restart:
        return "Reset";
    case Happening::BusError:
        return "Blinkerror:";
    case Happening::Registers:
        return "Registers(Blinkerror):";
    case Happening::BareError:
    case Happening::Error:
    case Happening::AccessError:
    case Happening::ModuleError:
    case Happening::Fatal:
        return "Error:";
    case Happening::Warning:
        return "Warning:";
    case Happening::PlcError:
        return "PLC Error:";
    case Happening::PlcMessage:
        return "PLC Message:";
    case Happening::Key:
    case Happening::Stroke:
        return "Key:";
    case Happening::Status:
        return "Stib:";
    case Happening::Info:
    case Happening::SystemInfo:
    case Happening::Dump:
    case Happening::Mouse:
        return "Info:";
    }
    return "Info:";
}

std::string_view LampWord(Lamp lamp) {
    return lamp == Lamp::On ? "ON" : lamp == Lamp::Blink ? "BLINK" : "OFF";
}

void AppendHeaderField(LineBuffer& lines, const MachineEvent& event) {
    switch (event.happening) {
    case Happening::Key:
        return AppendKeyWords(lines, event);
    case Happening::Stroke:
        return AppendStrokeWords(lines, event);
    case Happening::Status:
        return lines.Append(LampWord(event.lamp));
    case Happening::Info:
    case Happening::Warning:
    case Happening::Dump:
    case Happening::ModuleError:
        return AppendSenderAndName(lines, event);
    default:
        return;
    }
}

// Mostly the bare time; now and then the line repeats the date.
void AppendClockTime(LineBuffer& lines, MachineStory& story) {
    story.Clock().AppendTime(lines);
    if (!story.Chance().OneIn(16))
        return;
    if (story.Chance().OneIn(2))
        story.Clock().AppendMilliseconds(lines);
    lines.Append(' ');
    story.Clock().AppendEnglishDate(lines);
}

} // namespace

void AppendSeparator(LineBuffer& lines, const MachineClock& clock) {
    lines.Append("_________");
    clock.AppendEnglishDate(lines);
    lines.Append("____________");
    lines.EndLine();
}

void AppendSeparatedEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story) {
    lines.Append(Keyword(event.happening));
    lines.PadTo(TextColumn);
    AppendHeaderField(lines, event);
    lines.PadTo(ClockColumn);
    AppendClockTime(lines, story);
    lines.EndLine();

    if (event.happening == Happening::Registers)
        AppendRegisterLines(lines, story.Chance());
    else if (event.happening == Happening::Dump)
        AppendDumpLine(lines, story.Chance());
    else if (event.happening != Happening::ModuleError) // its header field is all there is
        AppendMessageLines(lines, event, story.Chance());
}
