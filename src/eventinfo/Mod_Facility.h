// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

// A facility is a software module of the control that reports coded events.
struct FacilityRecord {
    std::int32_t Number = 0; // in hexadecimal before the dash of an event code
    std::string FilePrefix;  // begins the name of the module's text file; "??" = it has none
    std::string ModuleName;  // in capitals

    bool operator==(const FacilityRecord&) const = default;
};

inline constexpr std::size_t FacilityRowsAtMost = 220;
using FacilityTable = std::array<FacilityRecord, 301>;

// The facilities of a code without a dash and of the events whose texts are in ErrorText.csv.
inline constexpr std::int32_t DefaultFacility = 0x231;
inline constexpr std::int32_t CsvFacility = 0x300;

// The control's own modules in slots 0 to 219; slots 220 to 300 have number 0 and empty texts.
FacilityTable InitFacilityTable();

// The first slot with this number; 0 means none. So the facility in slot 0 is never found, and number 0 is
// found in the first empty slot. Both are deliberate: the control's texts rely on it.
std::size_t FindFacility(const FacilityTable& table, std::int64_t number);
