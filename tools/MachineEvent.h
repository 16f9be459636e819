// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

enum class Happening {
    Restart,
    BusError,
    Registers, // follows a bus error
    BareError, // a numbered error without a sender
    Error,     // a numbered error that a module reports
    AccessError,
    ModuleError,
    Fatal,
    Warning,
    Info,
    SystemInfo,
    Dump, // a telegram of the remote side, byte for byte
    PlcError,
    PlcMessage,
    Key,    // a key goes down or up
    Stroke, // a key stroke that is already translated into a character
    Status,
    Mouse,
};

enum class Lamp { On, Blink, Off };

// What was planted on purpose. An event that only happened to come so is None.
enum class Plant : std::uint8_t {
    None,
    ClockStep, // the first event behind a step of the clock
    Precursor, // comes before an error that is Foretold
    Foretold,
    Chatter, // one error many times
    LastOfChatter,
};

// One thing that happens at the machine, in the words of no particular generation. Only the fields that
// belong to the happening have a meaning. The texts are those of the tables, with their places not yet
// filled.
struct MachineEvent {
    static constexpr std::size_t MaxMessages = 4;

    Happening happening = Happening::Info;
    std::string_view sender;
    std::string_view name;
    std::array<std::string_view, MaxMessages> messages{};
    std::size_t messageCount = 0;

    unsigned code = 0; // key or character
    bool down = false;
    std::string_view mode;
    Lamp lamp = Lamp::On;

    bool milliseconds = true; // the stamp carries them
    Plant plant = Plant::None;
};
