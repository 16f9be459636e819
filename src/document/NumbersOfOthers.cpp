// SPDX-License-Identifier: MIT
#include "document/NumbersOfOthers.h"

#include "settings/NumberText.h"
#include "settings/Texts.h"

std::string NumbersOfOthersText(const NumbersOfOthers& numbers, Language language) {
    std::string text(
        Text(numbers.Perhaps ? TextId::NumbersOfUnknownLogbook : TextId::NumbersOfOtherLogbook, language));
    text += GroupedText(numbers.Hidden, language);
    text += Text(numbers.Hidden == 1 ? TextId::NumbersHideOne : TextId::NumbersHideMore, language);
    return text;
}
