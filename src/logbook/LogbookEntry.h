// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Event type numbers. -1 marks a line that gives no entry; 8 is not used.
namespace EventTypes {
inline constexpr std::int16_t None = -1;
inline constexpr std::int16_t Info = 1;
inline constexpr std::int16_t Warning = 2;
inline constexpr std::int16_t Error = 3;
inline constexpr std::int16_t Fatal = 4;
inline constexpr std::int16_t Status = 5;
inline constexpr std::int16_t Key = 6;
inline constexpr std::int16_t Restart = 7;
inline constexpr std::int16_t Keystr = 9; // a run of key strokes folded into one text

// What a person calls an error.
constexpr bool IsError(std::int16_t type) { return type == Error || type == Fatal; }
} // namespace EventTypes

// Icon numbers of the list.
namespace Images {
inline constexpr std::int16_t None = 0;
inline constexpr std::int16_t Info = 1;
inline constexpr std::int16_t Warning = 2;
inline constexpr std::int16_t Error = 3;
inline constexpr std::int16_t Fatal = 4;
inline constexpr std::int16_t Key = 5;
inline constexpr std::int16_t Mouse = 7;
inline constexpr std::int16_t Restart = 8;
inline constexpr std::int16_t StatusOn = 9;
inline constexpr std::int16_t StatusBlink = 10;
inline constexpr std::int16_t StatusOff = 11;
inline constexpr std::int16_t DebugSend = 12;
inline constexpr std::int16_t DebugReceive = 13;
inline constexpr std::int16_t ErrorCleared = 14;
} // namespace Images

// One event of the logbook, from the entry table. The texts are UTF-8. The views point into the table: they
// are valid until the table is filled again or, for Comment, until that entry's comment changes.
struct LogbookEntry {
    std::int16_t EventType = 0;
    std::string_view Sender;
    std::string_view Name;
    std::string_view Data; // continuation lines are joined with " | "
    std::string Time;      // as the line carries it
    std::int16_t Image = 0;
    std::string_view Comment;

    bool operator==(const LogbookEntry&) const = default;
};

// True for 0 to 9, the event types for which the list has a name (that of 0 and 8 is empty).
constexpr bool IsEventType(std::int16_t eventType) { return eventType >= 0 && eventType <= 9; }

// The name of an event type for the first column of the list, the same in every language. The type must
// satisfy IsEventType.
std::string_view EventTypeName(std::int16_t eventType);
