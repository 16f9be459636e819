// SPDX-License-Identifier: MIT
#pragma once

#include "sources/ZipArchive.h"

#include <cstddef>
#include <optional>
#include <string>

// The members of the program's own archive, by their places.
struct OwnMembers {
    std::string Base;        // the name of the logbook, without folder and extension
    std::size_t Logbook = 0; // the first that ends in ".log"
    std::optional<std::size_t> Filters;
    std::optional<std::size_t> Comments;
};

// Nothing for an archive without a logbook. Filters and comments must have the logbook's name, whatever its
// case. They are the members beside the logbook or, when there are none, those elsewhere in the archive.
std::optional<OwnMembers> FindOwnMembers(const ZipArchive& archive);
