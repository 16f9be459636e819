// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

// An entry as a session expects it in the list.
struct SessionEntry {
    int Type = 0;
    int Icon = 1;
    QString Data;
    QString Sender;
    QString Name;
    QString Time;
    QString Comment;

    bool operator==(const SessionEntry&) const = default;
};
using SessionEntries = QList<SessionEntry>;

inline const char* SessionTypeName(int type) {
    static constexpr const char* Names[] = {"",       "Info", "Warning", "Error", "Fatal",
                                            "Status", "Key",  "Restart", "",      "Keystr"};
    return Names[type];
}
