// SPDX-License-Identifier: MIT
#pragma once

#include "tools/ModuleText.h"

#include <array>

// The texts of what is planted; the stories have none of them by themselves. The places in braces are
// explained in TextFiller.h.

// Errors by their code. A code without a facility is one of 231; 0FF is no facility. Nothing may follow a
// code without a facility: a dash behind it would make it one.
inline constexpr auto CodedErrors = std::to_array<ModuleText>({
    {"HMI", "SOFTKEY", "Event: 232-0005"},
    {"PLC", "DOOR", "Event: 232-0012"},
    {"PLC", "DOOR", "Event: 232-12 Kanal {D}"},
    {"GEO", "LIMITS", "Event: 232-00A0"},
    {"IPO", "AXISMON", "Event: 1E1-0010"},
    {"IPO", "AXISMON", "Event: 1e1-10, Achse {A}"},
    {"IPO", "AXISMON", "Achse {A}: Event: 1E1-0011"},
    {"EDIT", "SYNTAX", "Event: 231-001A"},
    {"MAIN", "PGMSELECT", "Event: 2b"},
    {"SYS", "MEMORY", "Event: 231-00FF"},
    {"TOOL", "MAGAZINE", "Event: 300-000C"},
    {"PLC", "PALLET", "Event: 300-1234"},
    {"TOOL", "TOOLCALL", "Event: 22A-0003"},
    {"SAFE", "STOP1", "Event: 248-0011"},
    {"DIAG", "TRACE", "Event: 0FF-0001"},
});

// A warning or info, and the error that it comes before.
struct PrecursorPair {
    bool warning; // otherwise an info
    ModuleText precursor;
    ModuleText error;
};

inline constexpr auto PrecursorPairs = std::to_array<PrecursorPair>({
    {true, {"PLC", "COOLANT", "Durchfluss {D} %"}, {"PLC", "COOLANT", "P012 Kühlmittelstand niedrig"}},
    {true,
     {"MOTION", "SPINDLE", "bearing vibration {V} %"},
     {"PLC", "SPINDLE", "P2451 Spindellager zu heiß"}},
    {false, {"PLC", "HYDRAULIC", "pressure {D} bar"}, {"PLC", "HYDRAULIC", "P103 Hydraulikdruck zu niedrig"}},
});

// Errors that come many times within a minute.
inline constexpr auto ChatteringErrors = std::to_array<ModuleText>({
    {"PLC", "PALLET", "P250 Palette {D} nicht gespannt"},
    {"CYCLE", "PROBING", "N310 Tastelement prellt"},
    {"BUS", "NODE", "node {D} lost"},
});

// Says why a start did not last.
inline constexpr ModuleText StartFailure{"SYS", "BOOT", "Hochlauf abgebrochen, Stufe {D}"};
