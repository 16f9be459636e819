// SPDX-License-Identifier: MIT
#include "settings/NumberText.h"

std::string GroupedText(std::uint64_t number, Language language) {
    constexpr std::size_t Group = 3;
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > Group;) {
        place -= Group;
        text.insert(place, 1, language.IsGerman() ? '.' : ',');
    }
    return text;
}
