// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"
#include "settings/Texts.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

// The kinds of the control's language files.
enum class ErrorTextKind { Coded, Csv, Nc, Plc, Facilities };

inline constexpr std::array<TextId, 5> ErrorTextKindNames{TextId::ErrorTextsCoded, TextId::ErrorTextsCsv,
                                                          TextId::ErrorTextsNc, TextId::ErrorTextsPlc,
                                                          TextId::ErrorTextsFacilities};

// What the name of a language file says of it.
struct ErrorTextFile {
    ErrorTextKind Kind = ErrorTextKind::Coded;
    std::optional<Language> TextLanguage = {}; // nothing: it is for both
    std::string_view Folder = {};              // among language files: "ENGLISH", "GERMAN" or ""
    std::string Name = {};                     // in that folder; never a path

    // Folder and name, with a "/" between them.
    std::string PlaceName() const;

    bool operator==(const ErrorTextFile&) const = default;
};

// Recognises a language file by its path, in which "/" and "\" both part names. The case of the letters makes
// no difference. Nothing for any other file: "error.a" and the like count only in a folder of a language, and
// names of more than 200 bytes or with control characters do not count.
//
//     export\GERMAN\error.a  ->  Plc, German, "GERMAN", "error.a"
std::optional<ErrorTextFile> ErrorTextFileOf(std::string_view path);
