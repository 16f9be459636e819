// SPDX-License-Identifier: MIT
#include "settings/Language.h"

#include "settings/Registry.h"

#include <array>
#include <cstddef>

namespace {
constexpr std::array<std::string_view, 12> Codes{"en", "de", "it", "es", "fr", "sv",
                                                 "fi", "cs", "pl", "da", "hu", "nl"};
constexpr std::string_view ValueName = "DialogLanguage";
} // namespace

std::string_view LanguageCode(Language language) {
    const bool known = language.Number >= 0 && language.Number < static_cast<std::int32_t>(Codes.size());
    return Codes[known ? static_cast<std::size_t>(language.Number) : 0];
}

Language ReadLanguage(const Registry& registry) {
    return {registry.ReadSettingLong(ValueName, Language::English)};
}

void WriteLanguage(Registry& registry, Language language) {
    registry.WriteSetting(ValueName, language.Number, SettingType::Integer);
}
