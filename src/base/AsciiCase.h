// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

// Upper and lower case of the ASCII letters, for names of files, keys and options; all other bytes stay as
// they are.
constexpr char LowerCase(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr char UpperCase(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

inline std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) { return LowerCase(c); });
    return lower;
}

inline std::string UpperCase(std::string_view text) {
    std::string upper(text);
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char c) { return UpperCase(c); });
    return upper;
}

// Orders names without regard to case.
struct LessWithoutCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const {
        return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
            return static_cast<unsigned char>(LowerCase(x)) < static_cast<unsigned char>(LowerCase(y));
        });
    }
};

inline bool IsSameWithoutCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return LowerCase(x) == LowerCase(y); });
}
