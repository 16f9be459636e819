// SPDX-License-Identifier: MIT
#include "app/session/SessionLogbook.h"
#include "app/session/SessionWords.h"

namespace {

// A first line: the text stands from column 10 on, the stamp at the end.
QString FirstLine(const QString& keyword, const QString& text, const QString& stamp) {
    return ((keyword.leftJustified(9) + text).leftJustified(47) + "  ") + stamp;
}

// The message below a first line. With lines that begin with a blank behind it, each part ends in " | ".
void AddMessage(Dice& dice, SessionEvent& event, const QString& first) {
    event.Lines << first;
    event.Entry.Data = first.trimmed();
    const int more = dice.OneIn(3) ? static_cast<int>(dice.Between(1, 2)) : 0;
    if (more > 0)
        event.Entry.Data += " | ";
    for (int i = 0; i < more; ++i) {
        const QString line = dice.OneIn(5) ? QString() : AnyText(dice);
        event.Lines << (line.isEmpty() ? line : "  " + line);
        event.Entry.Data += line + " | ";
    }
}

void AddModuleMessage(Dice& dice, SessionEvent& event, const QString& keyword, int type) {
    event.Entry.Type = event.Entry.Icon = type;
    event.Entry.Sender = AnyOf(dice, SessionWords::Senders);
    event.Entry.Name = AnyOf(dice, SessionWords::Names);
    if (type == 1 && event.Entry.Name == "ERRCLEARED")
        event.Entry.Icon = 14;
    event.Lines << FirstLine(keyword, event.Entry.Sender + ' ' + event.Entry.Name, event.Entry.Time);
    AddMessage(dice, event, "  " + AnyText(dice));
}

QString SenderOf(const QString& data) {
    return data.startsWith('P') ? "PLC" : data.startsWith('Y') ? "PYTHON" : "MAIN";
}

void AddDump(SessionEvent& event) {
    event.Entry.Type = 1;
    event.Entry.Icon = 12;
    event.Entry.Sender = "REMO";
    event.Entry.Name = "DEB:S1";
    event.Lines << FirstLine("INFO:", "REMO DEB:S1", event.Entry.Time);
    const QString dump = QString("a dump").leftJustified(49, '.') + "ABCDEF";
    event.Lines << dump;
    event.Entry.Data = "ABCD | " + dump;
}

// Where everything stands on the first line.
void AddLine(SessionEvent& event, const QString& keyword, const QString& text, int type, int icon) {
    event.Entry.Type = type;
    event.Entry.Icon = icon;
    event.Lines << FirstLine(keyword, text, event.Entry.Time);
    event.Entry.Data = (keyword.leftJustified(9) + text).mid(9).trimmed();
}

} // namespace

SessionEvent AnyClassicEvent(Dice& dice) {
    static constexpr const char* Lamps[] = {"On", "Blink", "Off", "ON"};
    SessionEvent event;
    event.Entry.Time = AnyStamp(dice);
    switch (dice.Below(15)) {
    case 0:
        AddLine(event, "RESET:", "", 7, 8);
        break;
    case 1:
        AddLine(event, "BERR:", AnyText(dice), 4, 4);
        break;
    case 2:
        event.Entry = {4, 4, "D0=1 | PC=2 | ", "", "", event.Entry.Time, ""};
        event.Lines << FirstLine("BREG:", "", event.Entry.Time) << "  D0=1"
                    << "  PC=2";
        break;
    case 3:
        AddLine(event, "ERR:", AnyText(dice), 3, 3);
        event.Entry.Sender = SenderOf(event.Entry.Data);
        break;
    case 4:
        AddModuleMessage(dice, event, "ERR:", 3);
        event.Entry.Sender = SenderOf(event.Entry.Data);
        break;
    case 5:
        event.Lines << FirstLine("ERR:", "RD:ACCESSERR LOGBOOK", event.Entry.Time);
        break; // gives no entry
    case 6:
        AddLine(event, "STIB:", AnyOf(dice, Lamps), 5, 1);
        SetStatusIcon(event.Entry, "On", "Blink", "Off");
        break;
    case 7:
        AddLine(event, "PLC ERROR:", " " + AnyText(dice), 3, 3);
        event.Entry.Sender = "PLC";
        break;
    case 8:
        AddLine(event, "PLC MESSAGE:", " " + AnyText(dice), 1, 1);
        event.Entry.Sender = "PLC";
        break;
    case 9:
        AddModuleMessage(dice, event, "WARNING:", 2);
        break;
    case 10:
        AddModuleMessage(dice, event, dice.OneIn(2) ? "ERROR:" : "FATAL:", 3);
        if (event.Lines.first().startsWith("FATAL:"))
            event.Entry.Type = event.Entry.Icon = 4;
        break;
    case 11:
        AddDump(event);
        break;
    case 12:
        AddModuleMessage(dice, event, "INFO:", 1);
        break;
    default:
        AddLine(event, "Key:", AnyKeyWords(dice), 6, 5);
        break;
    }
    return event;
}
