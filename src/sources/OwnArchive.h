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

// What the program's own archive is made of, by the places of the members.
struct OwnMembers {
    std::string Base;        // the name of the logbook, without folder and extension
    std::size_t Logbook = 0; // the first that ends in ".log"
    std::optional<std::size_t> Filters;
    std::optional<std::size_t> Comments;
};

// What a logbook's filters and comments may have in bytes, in whatever archive they lie: no more is read.
std::span<const ZipBound> BoundsBesideLogbook();

// Nothing for an archive without a logbook. Filters and comments are those of the logbook's name that lie
// beside it, or elsewhere in an archive that has none there; the case of the names does not count.
std::optional<OwnMembers> FindOwnMembers(const ZipArchive& archive);
