// SPDX-License-Identifier: MIT
#pragma once

#include "app/session/SessionEntry.h"
#include "tools/Dice.h"

#include <QByteArray>
#include <QStringList>

// A logbook file of a session, and the entries that reading it must give. Both come from the same events; the
// entries are not read back from the file.
struct SessionLogbook {
    QByteArray File;
    SessionEntries Entries;
};

enum class Generation { Classic, Separated, Operation };

// A logbook of some 30 to 200 events.
SessionLogbook MakeSessionLogbook(Dice& dice, Generation generation);

// An event as it is written: its lines, and the entry that they give.
struct SessionEvent {
    QStringList Lines;
    SessionEntry Entry;
};

// One event of each generation; the stamp is that of a new second or the same one.
SessionEvent AnyClassicEvent(Dice& dice);
SessionEvent AnySeparatedEvent(Dice& dice, QString& date); // the date of the last separator line
SessionEvent AnyOperationEvent(Dice& dice);

// What the generations have in common.
QString AnyStamp(Dice& dice);
QString AnyKeyWords(Dice& dice);
void SetStatusIcon(SessionEntry& entry, const QString& on, const QString& blink, const QString& off);
