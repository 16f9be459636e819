// SPDX-License-Identifier: MIT
#include "overview/SelectionText.h"

#include "history/ReadableTexts.h"
#include "settings/Texts.h"

#include <array>
#include <cstdio>

namespace {

std::string StampText(const std::optional<Stamp>& stamp, Language language) {
    return stamp ? LogbookText(*stamp) : std::string(Text(TextId::HistoryUnreadable, language));
}

// "0:05:00", with milliseconds where there are some; "-" for no time.
std::string TimeText(const std::optional<SelectionFacts::Duration>& time, Language language) {
    if (!time)
        return ClockText(time);
    const SelectionFacts::Duration length = *time < time->zero() ? -*time : *time;
    std::string text = ClockText(length);
    if (const auto milliseconds = length.count() % 1000; milliseconds != 0) {
        std::array<char, 8> fraction{};
        std::snprintf(fraction.data(), fraction.size(), ".%03d", static_cast<int>(milliseconds));
        text += fraction.data();
    }
    if (*time < time->zero())
        text = "-" + text + " (" + std::string(Text(TextId::OverviewClockSetBack, language)) + ')';
    return text;
}

} // namespace

std::string SelectionText(const SelectionFacts& facts, Language language) {
    const auto say = [&](TextId id) { return std::string(Text(id, language)); };
    if (facts.Rows == 0)
        return say(TextId::SelectionNone);
    if (facts.Rows == 1)
        return say(TextId::SelectionRow) + say(TextId::SelectionAt) + StampText(facts.From, language) +
               say(TextId::SelectionSinceEntry) + TimeText(facts.SinceEntry, language) +
               say(TextId::SelectionSinceError) + TimeText(facts.SinceError, language);
    return std::to_string(facts.Rows) + say(TextId::SelectionRows) + say(TextId::SelectionFrom) +
           StampText(facts.From, language) + say(TextId::SelectionTo) + StampText(facts.To, language) +
           say(TextId::SelectionBetween) + TimeText(facts.Between, language) + say(TextId::SelectionErrors) +
           std::to_string(facts.Errors);
}
