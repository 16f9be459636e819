// SPDX-License-Identifier: MIT
#include "filter/WrappedNumberList.h"

#include "base/UnicodeCase.h"

#include <algorithm>

namespace {

constexpr char Comma = ',';

// The beginning of a list that must stay in one text: its first part that is not empty, with the empty parts
// before and behind it.
std::string_view FirstUnit(std::string_view list) {
    const std::size_t part = list.find_first_not_of(Comma);
    const std::size_t next = list.find_first_not_of(Comma, list.find(Comma, part));
    return next == std::string_view::npos ? list : list.substr(0, next - 1);
}

std::string_view WithoutEmptyParts(std::string_view unit) {
    unit.remove_prefix(std::min(unit.find_first_not_of(Comma), unit.size()));
    return unit.substr(0, unit.find(Comma));
}

bool HasRoom(std::size_t length, std::size_t room, std::size_t unitLength) {
    return length + (length == 0 ? 0 : 1) + unitLength <= room;
}

} // namespace

std::vector<std::string> WrapNumberList(std::string_view list, std::size_t firstRoom, std::size_t room) {
    std::vector<std::string> texts(1);
    std::size_t length = 0; // of the last text
    while (!list.empty()) {
        std::string_view unit = FirstUnit(list);
        list.remove_prefix(std::min(unit.size() + 1, list.size()));
        std::size_t unitLength = CharacterCount(unit);
        const auto hasRoom = [&] {
            return HasRoom(length, texts.size() == 1 ? firstRoom : room, unitLength);
        };
        if (!hasRoom() && unitLength > room) {
            unit = WithoutEmptyParts(unit);
            unitLength = CharacterCount(unit);
        }
        if (!hasRoom()) {
            texts.emplace_back();
            length = 0;
        }
        texts.back().append(length == 0 ? "" : ",").append(unit);
        length += (length == 0 ? 0 : 1) + unitLength;
    }
    return texts;
}

bool GoesOnIn(std::string_view text, std::size_t room, std::string_view next) {
    return !next.empty() && !HasRoom(CharacterCount(text), room, CharacterCount(FirstUnit(next)));
}
