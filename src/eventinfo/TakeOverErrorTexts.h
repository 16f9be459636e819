// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/ErrorTextSource.h"

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <vector>

// What taking language files over into a folder would do, for a person to see before.
struct ErrorTextPlan {
    struct Row {
        std::size_t English = 0; // files; one for both languages counts in both
        std::size_t German = 0;
        std::size_t Replaced = 0; // files in the folder, which have another content

        bool operator==(const Row&) const = default;
    };
    std::array<Row, ErrorTextKindNames.size()> Kinds{}; // by ErrorTextKind
    std::vector<std::string> Replaced;                  // by their places in the folder
    std::vector<std::string> TooLarge;                  // which are not taken
    std::string Problem;                                // why nothing was found; "" when all was searched

    bool IsEmpty() const;
};

// Reads what would be compared; changes nothing.
ErrorTextPlan PlanTakeOver(ErrorTextSource& source, const std::string& folder);

struct TakeOverResult {
    std::size_t Taken = 0; // files that are there now
    std::size_t Kept = 0;  // files that they replaced
    std::size_t Same = 0;  // files that were there already
    std::string Failure;   // the first file that could not be taken, and why; "" = none
    bool IsEnded = false;  // by the caller
};

// Copies the files of a source to their places in a folder, which it makes if needed. A file that is there
// under that name, whatever its case, is replaced as a whole, and kept beside it with ".bak" behind its name;
// another such file that is kept there already stays, and the new one has a number behind ".bak". All else in
// the folder stays as it is.
//
// A file that cannot be taken, also because something other than a file has its name, is left out. Ends when
// `goesOn`, which is told the percentage done, returns false; files taken until then stay.
TakeOverResult TakeOver(ErrorTextSource& source, const std::string& folder, Language language,
                        const std::function<bool(double percent)>& goesOn);
