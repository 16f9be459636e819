// SPDX-License-Identifier: MIT
#include "app/session/SessionLogbook.h"

#include "app/session/SessionWords.h"

namespace {

// The character of a key code such as "0x0041"; "" when it has none.
QString CharacterOf(const QString& code) {
    const int value = code.mid(2).toInt(nullptr, 16);
    return value >= 32 && value <= 126 ? QString(QChar(value)) : QString();
}

// A key pressed and released is one entry, a run of strokes is one text, restarts in a row are the first one.
bool FoldsInto(const SessionEntry& added, SessionEntry& last) {
    const QStringList now = added.Data.split(' ');
    const QStringList before = last.Data.split(' ');
    if (added.Type == 7 && last.Type == 7)
        return true;
    if (added.Type != 6 || now.size() < 2)
        return false;
    if (last.Type == 9) {
        if (now[1] != "->" || CharacterOf(now[0]).isEmpty())
            return false;
        last.Data += CharacterOf(now[0]);
        return true;
    }
    if (last.Type != 6 || before.size() < 2)
        return false;
    if (now[1] == "up" && before[1] == "down") {
        last.Data = before[3] + " -> " + before[0] + (before.size() > 5 ? " | " + before[5] : QString());
        return true;
    }
    if (before[1] != "->" || !now[0].startsWith("0x00") || !before[0].startsWith("0x00"))
        return false;
    if (!CharacterOf(now[0]).isEmpty() && !CharacterOf(before[0]).isEmpty()) {
        last.Data = CharacterOf(before[0]) + CharacterOf(now[0]);
        last.Type = 9;
    }
    return true; // also where a code has no character
}

} // namespace

QString AnyStamp(Dice& dice) {
    if (dice.OneIn(40))
        return "31.02.2010 12:00:00"; // no such day
    const QString stamp = QString("%1.%2.20%3 %4:%5:%6")
                              .arg(dice.Between(1, 3), 2, 10, QChar('0'))
                              .arg(dice.Between(1, 2), 2, 10, QChar('0'))
                              .arg(dice.Between(9, 10), 2, 10, QChar('0'))
                              .arg(dice.Between(8, 9), 2, 10, QChar('0'))
                              .arg(dice.Below(60), 2, 10, QChar('0'))
                              .arg(dice.Below(2), 2, 10, QChar('0'));
    return dice.OneIn(2) ? stamp : stamp + QString(".%1").arg(dice.Below(1000), 3, 10, QChar('0'));
}

QString AnyKeyWords(Dice& dice) {
    static constexpr const char* Codes[] = {"0x0041", "0x0062", "0x0031", "0x0007"};
    static constexpr const char* Keys[] = {"START", "F5", "Y+"};
    const QString code = AnyOf(dice, Codes);
    switch (dice.Below(5)) {
    case 0:
        return AnyOf(dice, Keys) + " down code 0x0201 mode MDI";
    case 1:
        return AnyOf(dice, Keys) + " up code 0x0201 mode MDI";
    case 2:
        return AnyOf(dice, Keys) + " down code 0x0148";
    default:
        return code + " -> " + code.back();
    }
}

void SetStatusIcon(SessionEntry& entry, const QString& on, const QString& blink, const QString& off) {
    entry.Icon = entry.Data == on ? 9 : entry.Data == blink ? 10 : entry.Data == off ? 11 : 1;
}

SessionLogbook MakeSessionLogbook(Dice& dice, Generation generation) {
    SessionLogbook logbook;
    QStringList lines;
    QString date = "Mon Jan 04 2010";
    if (generation == Generation::Separated)
        lines << "_________" + date + "____________"
              << "Reset"; // what stands below the first separator line gives no entry
    if (generation == Generation::Operation)
        lines << "Operation Logbook Version 1.0";
    const int count = static_cast<int>(dice.Between(30, 200));
    for (int i = 0; i < count; ++i) {
        const SessionEvent event = generation == Generation::Classic     ? AnyClassicEvent(dice)
                                   : generation == Generation::Separated ? AnySeparatedEvent(dice, date)
                                                                         : AnyOperationEvent(dice);
        lines << event.Lines;
        if (event.Entry.Type > 0 &&
            (logbook.Entries.empty() || !FoldsInto(event.Entry, logbook.Entries.back())))
            logbook.Entries.push_back(event.Entry);
    }
    logbook.File = (lines.join("\r\n") + "\r\n").toLatin1();
    return logbook;
}
