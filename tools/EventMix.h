// SPDX-License-Identifier: MIT
#pragma once

#include "tools/MachineEvent.h"

#include <array>
#include <cstdint>

// How often things happen, for each generation. A key press brings its release along, a stroke a whole word,
// a bus error its registers; those are not counted here.
struct Share {
    Happening happening;
    std::uint64_t weight;
};

inline constexpr auto ClassicMix = std::to_array<Share>({
    {Happening::Key, 260},
    {Happening::Info, 360},
    {Happening::Stroke, 35},
    {Happening::Error, 80},
    {Happening::Warning, 75},
    {Happening::Status, 30},
    {Happening::BareError, 45},
    {Happening::PlcMessage, 35},
    {Happening::PlcError, 30},
    {Happening::ModuleError, 40},
    {Happening::Restart, 8},
    {Happening::BusError, 3},
    {Happening::Dump, 3},
    {Happening::Fatal, 2},
    {Happening::AccessError, 1},
});

inline constexpr auto SeparatedMix = std::to_array<Share>({
    {Happening::Key, 400},
    {Happening::Info, 225},
    {Happening::Stroke, 60},
    {Happening::Error, 70},
    {Happening::Warning, 60},
    {Happening::Status, 50},
    {Happening::ModuleError, 45},
    {Happening::PlcMessage, 40},
    {Happening::PlcError, 35},
    {Happening::Restart, 9},
    {Happening::BusError, 3},
    {Happening::Dump, 3},
});

inline constexpr auto OperationMix = std::to_array<Share>({
    {Happening::Key, 130},
    {Happening::Stroke, 165},
    {Happening::Info, 250},
    {Happening::Status, 290},
    {Happening::Mouse, 60},
    {Happening::Warning, 45},
    {Happening::ModuleError, 45},
    {Happening::SystemInfo, 20},
    {Happening::Restart, 8},
    {Happening::Fatal, 2},
});

// The happening at place `at` of a mix, which is below the sum of its weights.
constexpr Happening HappeningAt(const auto& mix, std::uint64_t at) {
    for (const Share& share : mix) {
        if (at < share.weight)
            return share.happening;
        at -= share.weight;
    }
    return Happening::Info;
}

constexpr std::uint64_t WeightOf(const auto& mix) {
    std::uint64_t sum = 0;
    for (const Share& share : mix)
        sum += share.weight;
    return sum;
}
