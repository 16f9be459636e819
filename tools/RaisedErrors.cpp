// SPDX-License-Identifier: MIT
#include "tools/RaisedErrors.h"

#include "tools/Dice.h"
#include "tools/MachineEvent.h"

#include <algorithm>

namespace {

// "" for a text that begins with no number, or with one that is not the same each time.
std::string_view NumberOf(std::string_view text) {
    if (!text.starts_with('N') && !text.starts_with('P'))
        return {};
    const std::size_t end = text.find_first_not_of("0123456789", 1);
    return end == 1 || end == std::string_view::npos || text[end] != ' ' ? std::string_view{}
                                                                         : text.substr(0, end);
}

} // namespace

void RaisedErrors::Add(const MachineEvent& event) {
    if (event.happening != Happening::Error && event.happening != Happening::BareError)
        return;
    const std::string_view number = NumberOf(event.messages[0]);
    if (number.empty())
        return;
    Remove(number);
    if (count == Most)
        Remove(numbers[0]);
    numbers[count++] = number;
}

std::string_view RaisedErrors::Take(Dice& dice) {
    const std::string_view number = numbers[static_cast<std::size_t>(dice.Below(count))];
    Remove(number);
    return number;
}

void RaisedErrors::Remove(std::string_view number) {
    auto* const end = numbers.data() + count;
    count = static_cast<std::size_t>(std::remove(numbers.data(), end, number) - numbers.data());
}
