// SPDX-License-Identifier: MIT
#pragma once

#include "sources/ZipArchive.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

inline constexpr std::string_view LogExtension = ".log";
inline constexpr std::string_view FilterExtension = ".fil";
inline constexpr std::string_view CommentsExtension = ".cmt";

// The members of the program's own archive, by their places.
struct OwnMembers {
    std::string Base;        // the name of the logbook, without folder and extension
    std::size_t Logbook = 0; // the first that ends in ".log"
    std::optional<std::size_t> Filters;
    std::optional<std::size_t> Comments;
};

// The most bytes of a logbook's filters and comments in any archive; larger ones are not read.
std::span<const ZipBound> BoundsBesideLogbook();

// Nothing for an archive without a logbook. Filters and comments must have the logbook's name, whatever its
// case. They are the members beside the logbook or, when there are none, those elsewhere in the archive.
std::optional<OwnMembers> FindOwnMembers(const ZipArchive& archive);
