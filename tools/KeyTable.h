// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string_view>

// The keys of the panel. Names have at most 5 characters, modes at most 6, so that a key event fits in front
// of the clock time of every generation.
struct PanelKey {
    std::string_view name;
    unsigned code;
};

inline constexpr auto PanelKeys = std::to_array<PanelKey>({
    {"ENT", 0x000D},   {"CE", 0x0008},    {"ESC", 0x001B},  {"DEL", 0x007F},   {"TAB", 0x0009},
    {"UP", 0x0141},    {"DOWN", 0x0142},  {"LEFT", 0x0143}, {"RIGHT", 0x0144}, {"PGUP", 0x0145},
    {"PGDN", 0x0146},  {"HOME", 0x0147},  {"END", 0x0148},  {"INS", 0x0149},   {"GOTO", 0x0150},
    {"F1", 0x0181},    {"F2", 0x0182},    {"F3", 0x0183},   {"F4", 0x0184},    {"F5", 0x0185},
    {"F6", 0x0186},    {"F7", 0x0187},    {"F8", 0x0188},   {"F9", 0x0189},    {"F10", 0x018A},
    {"START", 0x0201}, {"STOP", 0x0202},  {"HOLD", 0x0203}, {"RAPID", 0x0204}, {"SPCW", 0x0210},
    {"SPCCW", 0x0211}, {"SPOFF", 0x0212}, {"COOL", 0x0213}, {"CHIP", 0x0214},  {"DOOR", 0x0215},
    {"LIGHT", 0x0216}, {"CLAMP", 0x0217}, {"X+", 0x0220},   {"X-", 0x0221},    {"Y+", 0x0222},
    {"Y-", 0x0223},    {"Z+", 0x0224},    {"Z-", 0x0225},   {"B+", 0x0226},    {"B-", 0x0227},
    {"FOV+", 0x0230},  {"FOV-", 0x0231},  {"SOV+", 0x0232}, {"SOV-", 0x0233},
});

inline constexpr std::array<std::string_view, 7> Modes{"MANUAL", "AUTO",  "EDIT", "MDI",
                                                       "SINGLE", "WHEEL", "REF"};

// What people type; 2 to 8 characters of printable ASCII each, no blank and no colon.
inline constexpr auto TypedWords = std::to_array<std::string_view>({
    "M30",   "M5",       "M3",       "T12",   "T7",     "T104",     "X125.5",   "X-40",    "Y+18.25",
    "Z-2.5", "Z150",     "F800",     "F2500", "S2400",  "S12000",   "G54",      "G0",      "G1",
    "R12",   "B90",      "C-180",    "AB",    "WELLE",  "FLANSCH",  "GEHAEUSE", "PLATE_2", "COVER#4",
    "Q1=25", "Q20=(3*4", "O4711",    "%100",  "N9990",  "IF[#1>0]", "LP/2",     "OK",      "12.75",
    "0.05",  "a7&b",     "Passw0rd", "test!", "teil_9", "x=y+1;",   "{tmp}",    "~copy",   "mill@2",
});
