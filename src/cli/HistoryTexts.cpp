// SPDX-License-Identifier: MIT
#include "cli/HistoryTexts.h"

#include "cli/Messages.h"
#include "eventinfo/iZEKEventInfo.h"

#include <algorithm>
#include <array>
#include <cstdio>

Record IsoOrNull(const std::optional<Stamp>& stamp) { return stamp ? Record(IsoText(*stamp)) : Record(); }

Record TextOrNull(const std::optional<std::string>& text) { return text ? Record(*text) : Record(); }

Record SecondsOrNull(const std::optional<std::chrono::milliseconds>& time) {
    return time ? Seconds(*time) : Record();
}

std::string ReadableText(const Stamp& stamp) {
    std::string text = IsoText(stamp);
    text[text.find('T')] = ' ';
    return text;
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

ErrorKeys ReadErrorKeys(const HistoryOptions& options) {
    FacilityFileMistake mistake;
    ErrorKeys keys(FacilitiesIn(LanguageFolders(options.LanguageFolder), mistake));
    if (const std::string message = FacilityFileMessage(mistake, options.MessageLanguage); !message.empty())
        TellMessage(message);
    return keys;
}
