// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

// What RandomCharacters are taken from.
inline constexpr std::string_view NameCharacters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";

// Makes a name for a file that is hardly taken.
inline std::string RandomCharacters(std::size_t count, std::string_view from = NameCharacters) {
    std::random_device random;
    std::uniform_int_distribution<std::size_t> place(0, from.size() - 1);
    std::string characters;
    for (std::size_t i = 0; i < count; ++i)
        characters += from[place(random)];
    return characters;
}
