// SPDX-License-Identifier: MIT
#include "logbook/FoldIntoPrevious.h"

#include "base/ShortText.h"
#include "logbook/EventLines.h"
#include "logbook/modUtil.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view Arrow = "->"; // word 1 of a key that was pressed and released

// The words of a text, separated by single blanks, one after the other. Key strokes are short, so their
// blanks are found once, and each word then costs a few operations on bits.
class Words {
  public:
    explicit Words(std::string_view text)
        : text_(text), blanks_(CharacterBits(text.substr(0, MostCharacterBits), Blank)) {}

    // Whether a word is left; a text has at least one, which may be "".
    bool HasNext() const { return next_ <= text_.size(); }

    // The next word; "" when none is left.
    std::string_view Take() {
        if (!HasNext())
            return {};
        const std::size_t end = NextBlank();
        const std::string_view word(text_.data() + next_, end - next_);
        next_ = end + 1;
        return word;
    }

  private:
    std::size_t NextBlank() {
        if (blanks_ != 0) {
            const auto blank = static_cast<std::size_t>(std::countr_zero(blanks_));
            blanks_ &= blanks_ - 1;
            return blank;
        }
        if (text_.size() <= MostCharacterBits)
            return text_.size();
        const std::size_t from = std::max(next_, MostCharacterBits);
        return from + FindBlank(text_.substr(from));
    }

    std::string_view text_;
    std::uint64_t blanks_; // of the first 64 characters, those that no word was taken from
    std::size_t next_ = 0; // where the next word begins; behind the text's end + 1: there is none
};

// "ENT down code 0x000D mode MANUAL", of which two words have been taken, becomes "0x000D -> ENT | MANUAL".
void FoldRelease(ParsedEntry& pressed, std::string_view key, Words& words) {
    constexpr std::string_view KeyArrow = " -> ";
    words.Take();
    const std::string_view code = words.Take();
    words.Take();
    const bool hasMode = words.HasNext();
    const std::string_view mode = words.Take();

    DataRoom& room = pressed.ShortDataRoom();
    if (pressed.Data.size() > MostCharacterBits || pressed.Data.data() == room.data()) {
        pressed.SetData({code, KeyArrow, key, hasMode ? LineSeparator : "", mode});
        return;
    }
    char* end = CopyShort(code, room.data());
    end = CopyShort(KeyArrow, end);
    end = CopyShort(key, end);
    if (hasMode) {
        end = CopyShort(LineSeparator, end);
        end = CopyShort(mode, end);
    }
    pressed.Data = {room.data(), static_cast<std::size_t>(end - room.data())};
}

bool FoldKeyIntoKey(const ParsedEntry& next, ParsedEntry& previous) {
    Words nextWords(next.Data);
    const std::string_view nextWord0 = nextWords.Take();
    if (!nextWords.HasNext())
        return false;
    const bool released = nextWords.Take() == "up";
    const bool character = nextWord0.starts_with("0x00");
    if (!released && !character)
        return false;

    Words previousWords(previous.Data);
    const std::string_view previousWord0 = previousWords.Take();
    if (!previousWords.HasNext())
        return false;
    const std::string_view previousWord1 = previousWords.Take();
    if (released && previousWord1 == "down") {
        FoldRelease(previous, previousWord0, previousWords);
        return true;
    }
    if (!character || previousWord1 != Arrow || !previousWord0.starts_with("0x00"))
        return false;
    const std::string_view first = HexToChar(previousWord0);
    const std::string_view second = HexToChar(nextWord0);
    if (!first.empty() && !second.empty()) {
        previous.SetData({first, second});
        previous.SetTypeByData(EventTypes::Keystr, previous.Image);
    }
    return true;
}

bool FoldKeyIntoKeystr(const ParsedEntry& next, ParsedEntry& previous) {
    Words words(next.Data);
    const std::string_view code = words.Take();
    if (words.Take() != Arrow)
        return false;
    const std::string_view character = HexToChar(code);
    previous.AppendToData(character);
    return !character.empty();
}

} // namespace

bool FoldKeyOrRestart(const ParsedEntry& next, ParsedEntry& previous) {
    if (next.EventType == EventTypes::Restart)
        return previous.EventType == EventTypes::Restart;
    if (previous.EventType == EventTypes::Key)
        return FoldKeyIntoKey(next, previous);
    return previous.EventType == EventTypes::Keystr && FoldKeyIntoKeystr(next, previous);
}
