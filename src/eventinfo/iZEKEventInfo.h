// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"
#include "eventinfo/FacilityFile.h"
#include "eventinfo/Mod_Facility.h"
#include "settings/Language.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The control's own text for an event or error, proposed as a comment. The texts lie in language files:
//
//     facilities.csv                     the facilities, where they are not the built-in ones
//     <prefix>_EN.XMT, <prefix>_DE.XMT   coded events
//     ENGLISH, GERMAN                    folders, each with
//         ErrorText.csv                      coded events of facility 0x300
//         qx_error_help.txt                  classic NC errors
//         error.a, reason.a, fix.a           classic errors of the machine program
//
// Names are found whatever their case. The files are read anew for every lookup, and what is missing or
// cannot be read gives no comment. Nothing here throws.

// The folder of the language files beside the program, with a separator at its end; "" when it is unknown.
std::string GetErrorInfoPath();

// The code of an event: "<facility>-<number>" or "<number>", hexadecimal.
struct EventCode {
    std::int64_t Facility = DefaultFacility;
    std::int64_t Number = 0;

    bool operator==(const EventCode&) const = default;
};

// Reads a code. Each number ends at its first character that is no digit; what stands there does not matter,
// and without a digit it is 0. One with more than eight digits is NumberOfNothing. Nothing when the facility
// is not in the table.
std::optional<EventCode> ParseEventCode(std::string_view code, const FacilityTable& table);

// A comment with CR LF line breaks, UTF-8, and what the status bar should tell of a facilities.csv that has a
// mistake, in whose place the built-in facilities stand.
struct ProposedComment {
    std::optional<std::string> Text;
    FacilityFileMistake Mistake;

    bool operator==(const ProposedComment&) const = default;
};

// The comment for a data text with "Event: " and a code in it.
ProposedComment AutoFillCommentNCK(std::string_view data, Language language, const std::string& folder);

// The comment for a data text that begins with "N" or "P", a number and a blank. A word there instead of a
// number counts as number 0. Where the control names no corrective action, the comment ends with a line
// break.
std::optional<std::string> AutoFillCommentiZEK(std::string_view data, Language language,
                                               const std::string& folder);

// Both lookups; where both have a comment, that of AutoFillCommentiZEK.
ProposedComment AutoFillComment(std::string_view data, Language language, const std::string& folder);
