// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string_view>

class Registry;

// The dialog language that the user chose, by its stored number. The user interface is German for number 1
// and English for every other. The language's code chooses the folder of the help file and of the control's
// error texts.
struct Language {
    static constexpr std::int32_t English = 0;
    static constexpr std::int32_t German = 1;

    std::int32_t Number = English;

    bool IsGerman() const { return Number == German; }
    bool operator==(const Language&) const = default;
};

// The two letters of a language: "en" for 0 and for every number without a language. The list of the language
// dialog has one row fewer than this table, and its row 10, "Dutch", has the code "hu". This is deliberate:
// the stored numbers depend on it.
std::string_view LanguageCode(Language language);

// Read and write the stored language.
Language ReadLanguage(const Registry& registry);
void WriteLanguage(Registry& registry, Language language);
