// SPDX-License-Identifier: MIT
#include "app/session/SessionLogbook.h"
#include "app/session/SessionWords.h"

namespace {

struct Month {
    const char* Name;
    const char* Stamp;
};
constexpr Month Months[] = {{"Jan", ".01."}, {"Feb", ".02."}, {"DEC", ".12."}, {"Foo", ""}};

struct Clock {
    QString Line; // as the event's line has it
    QString Stamp;
};

// "Mon Jan 04 2010" as a stamp has it.
QString StampDate(const QString& date) {
    for (const Month& month : Months)
        if (date.mid(4, 3) == month.Name)
            return date.mid(8, 2) + month.Stamp + date.mid(11, 4);
    return {};
}

QString AnyDate(Dice& dice) {
    return QString("Mon %1 %2 2010").arg(dice.Pick(Months).Name).arg(dice.Between(1, 3), 2, 10, QChar('0'));
}

// A bare clock time has the date of the last separator line.
Clock AnyClock(Dice& dice, const QString& date) {
    QString time = QString("%1:%2:%3")
                       .arg(dice.Between(8, 9), 2, 10, QChar('0'))
                       .arg(dice.Below(60), 2, 10, QChar('0'))
                       .arg(dice.Below(2), 2, 10, QChar('0'));
    if (!dice.OneIn(3))
        return {time, StampDate(date) + ' ' + time};
    if (dice.OneIn(2))
        time += ".250";
    const QString own = AnyDate(dice);
    return {time + ' ' + own, StampDate(own) + ' ' + time};
}

} // namespace

SessionEvent AnySeparatedEvent(Dice& dice, QString& date) {
    static constexpr const char* Lamps[] = {"ON", "BLINK", "OFF", "On"};
    SessionEvent event;
    if (dice.OneIn(12)) {
        date = AnyDate(dice);
        event.Lines << "_________" + date + "____________";
    }
    const Clock clock = AnyClock(dice, date);
    const auto begin = [&](const QString& keyword, const QString& text, int type, int icon) {
        event.Lines << (keyword.leftJustified(9) + text).leftJustified(44) + clock.Line;
        event.Entry.Type = type;
        event.Entry.Icon = icon;
        event.Entry.Time = clock.Stamp;
    };
    const auto addMessage = [&](bool joins) {
        const QString text = AnyText(dice);
        event.Lines << "  " + text;
        event.Entry.Data = text;
        if (!joins || !dice.OneIn(3))
            return;
        const QString second = AnyText(dice);
        event.Lines << " " + second;
        event.Entry.Data = text + " | " + second + " | ";
    };
    const auto beginModule = [&](const QString& keyword, int type) {
        const QString sender = AnyOf(dice, SessionWords::Senders);
        const QString name = AnyOf(dice, SessionWords::Names);
        begin(keyword, sender + ' ' + name, type, type == 1 && name == "ERRCLEARED" ? 14 : type);
        event.Entry.Sender = sender;
        event.Entry.Name = name;
    };
    switch (dice.Below(12)) {
    case 0:
        begin("Reset", "", 7, 8);
        break;
    case 1:
        begin("Blinkerror:", "", 4, 4);
        addMessage(false);
        break;
    case 2:
        begin("Registers(Blinkerror):", "", 4, 4);
        break;
    case 3:
        begin("Error:", "", 3, 3);
        addMessage(false);
        event.Entry.Sender = event.Entry.Data.startsWith('P')   ? "PLC"
                             : event.Entry.Data.startsWith('Y') ? "PYTHON"
                                                                : "MAIN";
        break;
    case 4:
        begin("Error:", "GEO AXIS", 3, 3); // what stands in the first line is not read
        event.Entry.Sender = "MAIN";
        break;
    case 5:
        begin("Stib:", AnyOf(dice, Lamps), 5, 1);
        event.Entry.Data = event.Lines.last().mid(5, 23).trimmed();
        SetStatusIcon(event.Entry, "ON", "BLINK", "OFF");
        break;
    case 6:
        begin("PLC Error:", "", 3, 3);
        addMessage(false);
        event.Entry.Sender = "PLC";
        break;
    case 7:
        begin("PLC Message:", "", 1, 1);
        addMessage(false);
        event.Entry.Sender = "PLC";
        break;
    case 8:
        beginModule("Warning:", 2);
        addMessage(true);
        break;
    case 9:
        beginModule("Info:", 1);
        addMessage(true);
        break;
    default: {
        const QString keys = AnyKeyWords(dice);
        begin("Key:", keys, 6, 5);
        event.Entry.Data = keys;
        break;
    }
    }
    return event;
}
