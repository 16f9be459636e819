// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

// Eight characters as one number.
inline std::uint64_t LoadEight(const char* bytes) {
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// Four characters as one number.
inline std::uint32_t LoadFour(const char* bytes) {
    std::uint32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// True when two texts are the same. Quicker than memcmp for fields of a line.
inline bool IsSameShort(std::string_view textA, std::string_view textB) {
    if (textA.size() != textB.size())
        return false;
    const std::size_t length = textA.size();
    const char* const a = textA.data();
    const char* const b = textB.data();
    const auto differ = [&](std::size_t place, auto unit) {
        auto other = unit;
        std::memcpy(&unit, a + place, sizeof unit);
        std::memcpy(&other, b + place, sizeof other);
        return unit ^ other;
    };
    if (length >= 8) {
        std::uint64_t difference = differ(length - 8, std::uint64_t{});
        for (std::size_t place = 0; place + 8 < length; place += 8)
            difference |= differ(place, std::uint64_t{});
        return difference == 0;
    }
    if (length >= 4)
        return (differ(0, std::uint32_t{}) | differ(length - 4, std::uint32_t{})) == 0;
    for (std::size_t place = 0; place < length; ++place)
        if (a[place] != b[place])
            return false;
    return true;
}

// Copies a text to a place with enough room and returns the end of the copy. Quicker than memcpy for words.
inline char* CopyShort(std::string_view text, char* to) {
    const std::size_t length = text.size();
    const char* const from = text.data();
    const auto copy = [&](std::size_t place, auto unit) {
        std::memcpy(&unit, from + place, sizeof unit);
        std::memcpy(to + place, &unit, sizeof unit);
    };
    if (length > 16)
        std::memcpy(to, from, length);
    else if (length >= 8) {
        copy(0, std::uint64_t{});
        copy(length - 8, std::uint64_t{});
    } else if (length >= 4) {
        copy(0, std::uint32_t{});
        copy(length - 4, std::uint32_t{});
    } else {
        for (std::size_t place = 0; place < length; ++place)
            to[place] = from[place];
    }
    return to + length;
}
