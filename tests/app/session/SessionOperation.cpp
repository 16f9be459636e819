// SPDX-License-Identifier: MIT
#include "app/session/SessionLogbook.h"
#include "app/session/SessionWords.h"

namespace {

struct Keyword {
    const char* Text;
    int Type;
    int Icon;
    bool HasSender;
    const char* Name;
};
constexpr Keyword Keywords[] = {
    {"Info:", 1, 1, true, ""},  {"System info:", 1, 1, false, ""}, {"Warning:", 2, 2, true, ""},
    {"Error:", 3, 3, true, ""}, {"System error:", 3, 3, true, ""}, {"Mouse:", 1, 7, true, "Mouse"},
};

QString FirstLine(const QString& keyword, const QString& text, const QString& stamp) {
    return (keyword + ' ' + text).leftJustified(49) + stamp;
}

} // namespace

SessionEvent AnyOperationEvent(Dice& dice) {
    static constexpr const char* Lamps[] = {"On", "Blink", "Off"};
    SessionEvent event;
    SessionEntry& entry = event.Entry;
    entry.Time = AnyStamp(dice);
    if (dice.OneIn(10)) {
        entry.Type = 5;
        entry.Data = AnyOf(dice, Lamps);
        event.Lines << FirstLine("Stib:", entry.Data, entry.Time);
        return event;
    }
    if (dice.OneIn(3)) {
        entry.Type = 6;
        entry.Icon = 5;
        const QString sender = dice.OneIn(2) ? "0x0201" : AnyOf(dice, SessionWords::Senders);
        entry.Sender = sender.startsWith("0x") ? QString() : sender;
        entry.Data = AnyKeyWords(dice);
        event.Lines << FirstLine("Key:", sender, entry.Time) << "  " + entry.Data;
        return event;
    }
    const Keyword& keyword = dice.Pick(Keywords);
    entry.Type = keyword.Type;
    entry.Icon = keyword.Icon;
    entry.Name = keyword.Name;
    const QString text = AnyOf(dice, SessionWords::Senders);
    entry.Sender = keyword.HasSender ? text : QString();
    event.Lines << FirstLine(keyword.Text, text, entry.Time);
    const int lines = static_cast<int>(dice.Between(1, 3));
    QStringList message;
    for (int i = 0; i < lines; ++i)
        message << AnyText(dice);
    for (const QString& line : message)
        event.Lines << "  " + line;
    entry.Data = message.join(" | ");
    if (QString(keyword.Text).endsWith("nfo:") && entry.Data.contains("SYSTEM START")) {
        entry.Type = 7;
        entry.Icon = 8;
    }
    return event;
}
