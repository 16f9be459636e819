// SPDX-License-Identifier: MIT
#include "logbook/FoldIntoPrevious.h"

#include "logbook/EventLines.h"
#include "logbook/modUtil.h"

#include <array>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view Arrow = "->"; // word 1 of a key that was pressed and released

// Takes the first word off a text whose words are separated by single blanks. A text without a blank is one
// word, and `rest` has no further one then.
std::string_view TakeWord(std::string_view& rest, bool& further) {
    const std::size_t blank = FindBlank(rest);
    further = blank < rest.size();
    const std::string_view word = rest.substr(0, blank);
    rest.remove_prefix(further ? blank + 1 : blank);
    return word;
}

// Word `number`, from 0; "" when there is none.
std::string_view Word(std::string_view text, int number) {
    bool further = true;
    std::string_view word;
    for (; further && number >= 0; --number)
        word = TakeWord(text, further);
    return number < 0 ? word : std::string_view{};
}

bool BeginsWithWord(std::string_view text, std::string_view word) {
    return text.starts_with(word) && (text.size() == word.size() || text[word.size()] == Blank);
}

// "ENT down code 0x000D mode MANUAL" becomes "0x000D -> ENT | MANUAL".
void FoldRelease(ParsedEntry& pressed) {
    std::array<std::string_view, 6> words;
    std::size_t count = 0;
    std::string_view rest = pressed.Data;
    for (bool further = true; further && count < words.size(); ++count)
        words[count] = TakeWord(rest, further);
    pressed.SetData({words[3], " -> ", words[0], count == words.size() ? LineSeparator : "", words[5]});
}

bool FoldKeyIntoKey(const ParsedEntry& next, ParsedEntry& previous) {
    std::string_view nextRest = next.Data;
    std::string_view previousRest = previous.Data;
    bool nextHasTwo = false;
    bool previousHasTwo = false;
    const std::string_view nextWord0 = TakeWord(nextRest, nextHasTwo);
    const std::string_view previousWord0 = TakeWord(previousRest, previousHasTwo);
    if (!nextHasTwo || !previousHasTwo)
        return false;
    if (BeginsWithWord(nextRest, "up") && BeginsWithWord(previousRest, "down")) {
        FoldRelease(previous);
        return true;
    }
    if (!nextWord0.starts_with("0x00") || !previousWord0.starts_with("0x00") ||
        !BeginsWithWord(previousRest, Arrow))
        return false;
    const std::string first = HexToChar(previousWord0);
    const std::string second = HexToChar(nextWord0);
    if (!first.empty() && !second.empty()) {
        previous.SetData({first, second});
        previous.EventType = EventTypes::Keystr;
    }
    return true;
}

bool FoldKeyIntoKeystr(const ParsedEntry& next, ParsedEntry& previous) {
    if (Word(next.Data, 1) != Arrow)
        return false;
    const std::string character = HexToChar(Word(next.Data, 0));
    previous.AppendToData(character);
    return !character.empty();
}

} // namespace

bool FoldIntoPrevious(const ParsedEntry& next, ParsedEntry& previous) {
    if (next.EventType == EventTypes::Key && previous.EventType == EventTypes::Key)
        return FoldKeyIntoKey(next, previous);
    if (next.EventType == EventTypes::Key && previous.EventType == EventTypes::Keystr)
        return FoldKeyIntoKeystr(next, previous);
    return next.EventType == EventTypes::Restart && previous.EventType == EventTypes::Restart;
}
