// SPDX-License-Identifier: MIT
#include "history/ReadableTexts.h"

#include <algorithm>
#include <array>
#include <cstdio>

std::string ReadableText(const Stamp& stamp) {
    std::string text = IsoText(stamp);
    text[text.find('T')] = ' ';
    return text;
}

std::string LogbookText(const Stamp& stamp) {
    const std::string iso = IsoText(stamp); // "2010-01-04T08:00:00"
    return iso.substr(8, 2) + '.' + iso.substr(5, 2) + '.' + iso.substr(0, 4) + ' ' + iso.substr(11);
}

std::string ClockText(const std::optional<std::chrono::milliseconds>& time) {
    if (!time)
        return "-";
    const std::chrono::hh_mm_ss clock(std::chrono::floor<std::chrono::seconds>(*time));
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%lld:%02d:%02d", static_cast<long long>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()), static_cast<int>(clock.seconds().count()));
    return text.data();
}

std::string DecimalText(double number, int decimals, Language language) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%.*f", decimals, number);
    std::string decimal = text.data();
    if (language.IsGerman())
        std::replace(decimal.begin(), decimal.end(), '.', ',');
    return decimal;
}
