// SPDX-License-Identifier: MIT
#include "tools/ClassicWriter.h"

#include "tools/EventLines.h"
#include "tools/LineBuffer.h"
#include "tools/MachineStory.h"
#include "tools/TextFiller.h"

#include <algorithm>

namespace {

constexpr std::size_t StampColumn = 50;
constexpr std::size_t StampGap = 2; // at least, behind a long text

std::string_view Keyword(Happening happening) {
    switch (happening) {
    case Happening::Restart:
        return "RESET:";
    case Happening::BusError:
        return "BERR:";
    case Happening::Registers:
        return "BREG:";
    case Happening::BareError:
    case Happening::Error:
    case Happening::AccessError:
        return "ERR:";
    case Happening::ModuleError:
        return "ERROR:";
    case Happening::Fatal:
        return "FATAL:";
    case Happening::Warning:
        return "WARNING:";
    case Happening::PlcError:
        return "PLC ERROR: ";
    case Happening::PlcMessage:
        return "PLC MESSAGE: ";
    case Happening::Key:
    case Happening::Stroke:
        return "Key:";
    case Happening::Status:
        return "STIB:";
    case Happening::Info:
    case Happening::SystemInfo:
    case Happening::Dump:
    case Happening::Mouse:
        return "INFO:";
    }
    return "INFO:";
}

std::string_view LampWord(Lamp lamp) {
    return lamp == Lamp::On ? "On" : lamp == Lamp::Blink ? "Blink" : "Off";
}

// True when what the event says stands on its first line.
bool SaysOnFirstLine(Happening happening) {
    switch (happening) {
    case Happening::BusError:
    case Happening::BareError:
    case Happening::AccessError:
    case Happening::PlcError:
    case Happening::PlcMessage:
        return true;
    default:
        return false;
    }
}

void AppendFirstText(LineBuffer& lines, const MachineEvent& event, Dice& dice) {
    if (SaysOnFirstLine(event.happening))
        AppendFilled(lines, event.messages[0], dice);
    else if (event.happening == Happening::Key)
        AppendKeyWords(lines, event);
    else if (event.happening == Happening::Stroke)
        AppendStrokeWords(lines, event);
    else if (event.happening == Happening::Status)
        lines.Append(LampWord(event.lamp));
    else if (event.happening != Happening::Restart && event.happening != Happening::Registers)
        AppendSenderAndName(lines, event);
}

} // namespace

void AppendClassicEvent(LineBuffer& lines, const MachineEvent& event, MachineStory& story) {
    lines.Append(Keyword(event.happening));
    lines.PadTo(TextColumn);
    AppendFirstText(lines, event, story.Chance());
    lines.PadTo(std::max(StampColumn, lines.Column() + StampGap));
    story.Clock().AppendStamp(lines, event.milliseconds);
    lines.EndLine();

    if (event.happening == Happening::Registers)
        AppendRegisterLines(lines, story.Chance());
    else if (event.happening == Happening::Dump)
        AppendDumpLine(lines, story.Chance());
    else if (!SaysOnFirstLine(event.happening))
        AppendMessageLines(lines, event, story.Chance());
}
