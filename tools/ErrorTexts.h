// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ModuleText.h"

#include <array>
#include <string_view>

// Error texts with their numbers. P is the machine program, Y a script, N the control itself. The places in
// braces are explained in TextFiller.h.
inline constexpr auto NumberedErrors = std::to_array<std::string_view>({
    "N938 Key without function",
    "N104 Satzformat falsch, Satz {L}",
    "N117 Programm P{N}.NC nicht gefunden",
    "N121 Achse {A} doppelt programmiert",
    "N130 Kreisendpunkt falsch",
    "N142 Radius too small, block {L}",
    "N155 Werkzeug T{T} nicht definiert",
    "N163 Label {D} nicht vergeben",
    "N170 Division by zero",
    "N188 Arbeitsbereich {A} verlassen",
    "N201 {A}: Endschalter +",
    "N202 {A}: Endschalter -",
    "N215 {A} nicht referenziert",
    "N240 Vorschub fehlt",
    "N251 Spindle not turning",
    "N266 Drehzahl S{N} zu hoch",
    "N310 Tastelement ausgelenkt",
    "N311 No touch point found",
    "N405 Speicher voll",
    "N412 Datei P{N}.NC gesperrt",
    "N520 Verbindung getrennt",
    "N611 Passwort falsch",
    "P2410 Kühlmittelstand niedrig",
    "P2411 Kühlmittelfilter verschmutzt",
    "P2016 Druckluft fehlt",
    "P2102 Hydraulikdruck zu niedrig",
    "P2117 Späneförderer blockiert",
    "P2203 Tür {D} nicht verriegelt",
    "P2250 Pallet {D} not clamped",
    "P2301 T{T} nicht im Magazin",
    "P2302 Greifer nicht frei",
    "P2318 Tool change timeout",
    "P2505 Schmierölstand niedrig",
    "P2600 Not-Halt gedrückt",
    "P2611 Zustimmtaste fehlt",
    "P2702 Absaugung läuft nicht",
    "P2833 Spannmittel offen",
    "Y0412 job{D}.py abgebrochen",
    "Y0417 Name not defined, line {D}",
    "Y0430 Zeitüberschreitung",
    "Y0441 P{N}.NC not readable",
    "Y0466 Wert außerhalb: {P}",
});

// The parts of the machine program that report errors.
inline constexpr std::array<std::string_view, 6> PlcModules{"STROBE",   "TIMER", "COOLANT",
                                                            "MAGAZINE", "DOOR",  "HYDRAULIC"};

inline constexpr auto ModuleErrors = std::to_array<ModuleText>({
    {"GEO", "LIMITS", "Achse {A}: Endlage bei {P}"},
    {"GEO", "KINEMATIC", "no solution at {A}={P}"},
    {"IPO", "AXISMON", "Achse {A}: Schleppfehler zu groß"},
    {"IPO", "BLOCKSTART", "Satz {L} nicht ausführbar"},
    {"PLC", "STROBE", "M{D} nicht quittiert"},
    {"PLC", "TIMER", "Timer {D} abgelaufen"},
    {"HMI", "SCREEN", "Seite {D} fehlt"},
    {"EDIT", "SYNTAX", "block {L}: word expected"},
    {"SYS", "FILE", "P{N}.NC: write error"},
    {"SYS", "NETWORK", "Netzlaufwerk {D} weg"},
    {"MAIN", "PGMSELECT", "P{N}.NC nicht lauffähig"},
    {"PYTHON", "SCRIPT", "job{D}.py: Ausnahme {H}"},
    {"REMO", "SESSION", "Telegramm {H} unbekannt"},
    {"SAFE", "CROSSCHECK", "Kanal A/B ungleich: {H}"},
    {"MOTION", "DRIVE", "{A}: Umrichter nicht bereit"},
    {"MOTION", "ENCODER", "{A}: Geberfehler {H}"},
    {"MOTION", "SPINDLE", "speed not reached: {N}"},
    {"TOOL", "TOOLCALL", "T{T} gesperrt"},
    {"TOOL", "BREAKAGE", "T{T} gebrochen: {P}"},
    {"CYCLE", "PROBING", "Bohrung zu groß: {P}"},
    {"DATA", "TABLE", "Prüfsumme falsch, Zeile {D}"},
    {"DIAG", "TRACE", "channel {D} overrun"},
    {"BUS", "NODE", "Teilnehmer {D} antwortet nicht"},
});

inline constexpr auto FatalErrors = std::to_array<ModuleText>({
    {"SYS", "POWERFAIL", "Netzspannung ausgefallen"},
    {"SYS", "STACK", "task {D} stack overflow at {H}"},
    {"SAFE", "STOP0", "Antriebe stromlos, Kanal {D}"},
    {"MOTION", "DRIVE", "{A}: Überstrom im Umrichter"},
    {"BUS", "RING", "ring open behind node {D}"},
    {"MAIN", "WATCHDOG", "Überwachung {H} ausgelöst"},
});

inline constexpr auto PlcErrors = std::to_array<std::string_view>({
    "{D} Kühlmittelstand niedrig",
    "{D} Motorschutz Pumpe {D}",
    "{D} Späneförderer steht",
    "{D} Door {D} open",
    "{D} Spannkraft zu klein",
    "{D} Hydraulic pressure low",
    "{D} Werkzeug T{T} fehlt",
    "{D} Greifer nicht in Grundstellung",
});

inline constexpr auto PlcMessages = std::to_array<std::string_view>({
    "{D} Schmierung läuft",
    "{D} Palette {D} bereit",
    "{D} Change tool T{T}",
    "{D} Teil {N} fertig",
    "{D} Ölstand prüfen",
    "{D} Chip box full",
    "{D} Warmlauf noch {D} min",
    "{D} Türfreigabe erteilt",
});

inline constexpr auto BusErrors = std::to_array<std::string_view>({
    "ACCESS 0x{H}{H} TASK {D}",
    "READ 0x{H}{H} TASK {D}",
    "WRITE 0x{H}{H} TASK {D}",
    "TIMEOUT NODE {D}",
});

// Further lines of a message.
inline constexpr auto Continuations = std::to_array<std::string_view>({
    "Satz {L} in P{N}.NC",
    "block {L}",
    "Istwert {A}={P}",
    "Sollwert {A}={P}",
    "T{T} in der Spindel",
    "Ursache: siehe Maschinenhandbuch",
    "cause: servo lag {P} mm",
    "Modul {H}, Zeile {D}",
    "Quittieren mit CE",
    "Taste START drücken",
});
