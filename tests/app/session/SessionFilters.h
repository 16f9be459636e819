// SPDX-License-Identifier: MIT
#pragma once

#include "app/session/SessionEntry.h"

#include <QStringList>

// A filter, and what the rules say of filters, as plainly as can be.
struct SessionFilter {
    char Action = 'I'; // 'I' shows, 'X' takes out, 'H' highlights
    int Type = 0;
    QString Text;
    QString Name;
    QString Sender;
    bool Active = true;

    bool operator==(const SessionFilter&) const = default;
};
using SessionFilters = QList<SessionFilter>;

QString TextForm(const SessionFilter& filter);

// The filters that stored texts give; the one that shows everything where one of them gives none.
SessionFilters FiltersOf(const QStringList& stored, bool* asStored = nullptr);

bool Matches(const SessionFilter& filter, const SessionEntry& entry, int number);

// Number lists such as "3,10-20".
bool NamesNumber(const QString& list, int number);
QString WithNumber(const QString& list, int number);
QString WithoutNumber(const QString& list, int number);

// A string that the filter dialogs offer, and what it finds.
struct SessionString {
    QString Text;
    QString Comment;

    bool operator==(const SessionString&) const = default;
};
using SessionStrings = QList<SessionString>;

// The strings that stored texts give, with the empty one that loading puts behind them; the two of the
// language where there are none.
SessionStrings StringsOf(const QStringList& stored, int language);
QString TextForm(const SessionString& string);
