// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/Mod_Facility.h"
#include "settings/Language.h"

#include <cstddef>
#include <string>

// A file "facilities.csv" in the language folder replaces the built-in facilities, for controls that have
// others. It is Windows-1252 with a line for each facility, at most FacilityRowsAtMost, in the order of the
// table: number, file prefix and module name, separated by ";". A number with "0x" before it is hexadecimal,
// every other decimal. Empty lines are ignored. As in the built-in table, the first facility is never found:
// see FindFacility.
//
//     0x231;NCKERNEL;NCKERNEL
//     768;??;ERRORTEXT
struct FacilityFileContent {
    enum class Outcome {
        Read,
        NotThere, // also when it has no facility or cannot be read
        InvalidLine,
        TooManyRows,
    };

    Outcome Result = Outcome::NotThere;
    std::size_t Line = 0; // from 1: the line that is wrong or one too many
    FacilityTable Table;  // when Read
};

FacilityFileContent ReadFacilityFile(const std::string& path);

// The mistake in a facility file; there is none for Read and NotThere.
struct FacilityFileMistake {
    std::string Path;
    FacilityFileContent::Outcome Result = FacilityFileContent::Outcome::NotThere;
    std::size_t Line = 0;

    bool operator==(const FacilityFileMistake&) const = default;
};

// The status text for a file with a mistake; "" for every other.
std::string FacilityFileMessage(const FacilityFileMistake& mistake, Language language);
