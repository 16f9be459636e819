// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Lower case by Unicode's simple mapping, the same in every language: each character becomes one character,
// so that the number of characters stays; the number of bytes need not. "Größe" becomes "größe", the Kelvin
// sign "k", the dotted capital I "i"; "ß" stays. Texts are UTF-8; bytes that are not stay as they are.
std::string UnicodeLower(std::string_view text);

// The same into a text that is used again and again.
void UnicodeLower(std::string_view text, std::string& lower);

// All characters that become this lower-case one, itself included; none when it is no lower-case form.
std::vector<char32_t> FormsOfLower(char32_t lower);

// The number of characters, which are the code points, of a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

bool IsUtf8(std::string_view text);
