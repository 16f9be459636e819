// SPDX-License-Identifier: MIT
#include "history/SessionRemarks.h"

#include "history/ReadableTexts.h"
#include "settings/Texts.h"

std::string KeyOf(const EntryTable& entries, const ErrorKeys& keys, EntryNumber entry) {
    const EntryKind& kind = entries.Kind(entry);
    std::string key;
    keys.MakeKey(entries.Data(entry), kind.Sender, kind.Name, key);
    return key;
}

std::string StartText(const Session& session, Language language) {
    if (session.Start)
        return ReadableText(*session.Start);
    return std::string(
        Text(session.StartRecorded ? TextId::HistoryUnreadable : TextId::HistoryNotRecorded, language));
}

std::string SessionRemarks(const Session& session, const EntryTable& entries, const ErrorKeys& keys,
                           Language language) {
    const auto say = [&](TextId id) { return std::string(Text(id, language)); };
    std::string text;
    if (session.ClockSteps > 0) {
        text = say(TextId::HistoryClockSteps) + ' ' + std::to_string(session.ClockSteps);
        if (session.SummerTimeSteps > 0)
            text += " (" + say(TextId::HistorySummerTime) + ')';
    }
    if (session.LastError) {
        text += (text.empty() ? "" : "; ") + KeyOf(entries, keys, *session.LastError);
        if (session.LastErrorBeforeEnd)
            text += ", " + ClockText(session.LastErrorBeforeEnd) + ' ' + say(TextId::HistoryBeforeEnd);
    }
    return text;
}
