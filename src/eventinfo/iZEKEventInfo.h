// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/EventTextRecord.h"
#include "eventinfo/FacilityFile.h"
#include "eventinfo/Mod_Facility.h"
#include "settings/Language.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The control's own text for an event or error, proposed as a comment. The texts lie in language files:
//
//     facilities.csv                     the facilities, where they are not the built-in ones
//     <prefix>_EN.XMT, <prefix>_DE.XMT   coded events
//     ENGLISH, GERMAN                    folders, each with
//         ErrorText.csv                      coded events of facility 0x300
//         qx_error_help.txt                  classic NC errors
//         error.a, reason.a, fix.a           classic errors of the machine program
//
// Finds names whatever their case. Reads the files again for every lookup; a file that is missing or cannot
// be read gives no comment. Nothing here throws.

// The folder of the language files beside the program, with a separator at its end; "" when it is unknown.
std::string GetErrorInfoPath();

// The folder of language files of the user's own, with a separator at its end. It need not exist.
std::string UserLanguageFolder();

// The folders in which texts are looked for, in this order: the user's own, the one beside the program.
std::vector<std::string> LanguageFolders();

// Stands before the code in the data of a coded event.
inline constexpr std::string_view EventMark = "Event: ";

// The facilities of folders of language files: those of the first facilities.csv that is there or, where none
// is or that one has a mistake, the built-in ones. A mistake is set, none is left as it was.
FacilityTable FacilitiesIn(std::span<const std::string> folders, FacilityFileMistake& mistake);

// The code of an event: "<facility>-<number>" or "<number>", hexadecimal.
struct EventCode {
    std::int64_t Facility = DefaultFacility;
    std::int64_t Number = 0;

    bool operator==(const EventCode&) const = default;
};

// Reads a code. Each number ends at the first character that is no digit, whatever that is; without a digit
// it is 0. A number with more than eight digits is NumberOfNothing. Nothing when the facility is not in the
// table.
std::optional<EventCode> ParseEventCode(std::string_view code, const FacilityTable& table);

// A comment (UTF-8, CR LF line breaks), and the mistake in facilities.csv for the status bar. With a mistake,
// the built-in facilities are used instead.
struct ProposedComment {
    std::optional<std::string> Text;
    FacilityFileMistake Mistake;

    bool operator==(const ProposedComment&) const = default;
};

// The comment for a data text with "Event: " and a code in it.
ProposedComment AutoFillCommentNCK(std::string_view data, Language language, const std::string& folder);

// The comment for a data text that begins with "N" or "P", a number and a blank. A word instead of the number
// counts as 0. When the control names no corrective action, the comment ends with a line break.
std::optional<std::string> AutoFillCommentiZEK(std::string_view data, Language language,
                                               const std::string& folder);

// Does both lookups; when both give a comment, takes that of AutoFillCommentiZEK. The first folder that gives
// one in this language counts. The facilities are the same for all folders.
ProposedComment AutoFillComment(std::string_view data, Language language,
                                std::span<const std::string> folders);
ProposedComment AutoFillComment(std::string_view data, Language language, const std::string& folder);
