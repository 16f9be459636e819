// SPDX-License-Identifier: MIT
#pragma once

#include "tools/Dice.h"

#include <QString>

// The few words of a session's logbooks, so that senders, names and texts occur again and again. The texts
// come in both cases, with umlauts, and some of the same length.
namespace SessionWords {
inline constexpr const char* Senders[] = {"PLC", "MAIN", "GEO", "MOTION", "Zähler", "plc", "HMI"};
inline constexpr const char* Names[] = {"AXIS", "SPINDLE", "axis", "ERRCLEARED", "Kühlung", ""};
inline constexpr const char* Texts[] = {
    "N938 Key without function",
    "N940 Key without function",
    "n938",
    "P17 Überlast",
    "Achse X läuft",
    "ACHSE X LÄUFT",
    "Straße gesperrt",
    "STRASSE gesperrt",
    "Y fehlt",
    "SYSTEM START",
    "öffnen",
    "Öffnen",
    "error",
    "X",
    "drive, \"2\"",
    "zum Ende",
};
} // namespace SessionWords

template <typename Table>
QString AnyOf(Dice& dice, const Table& table) {
    return QString(dice.Pick(table));
}

// A text of an entry, at times with a number behind it.
inline QString AnyText(Dice& dice) {
    const QString text = AnyOf(dice, SessionWords::Texts);
    return dice.OneIn(3) ? text + ' ' + QString::number(dice.Below(12)) : text;
}
