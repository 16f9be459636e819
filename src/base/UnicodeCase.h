// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// Lower case by Unicode's simple mapping, the same in every language. Each character becomes one character,
// so the number of characters stays; the number of bytes may change. "Größe" becomes "größe", the Kelvin sign
// "k", the dotted capital I "i"; "ß" stays. Texts are UTF-8; bytes that are not valid UTF-8 stay as they are.
std::string UnicodeLower(std::string_view text);

// The same, into a text that the caller uses again and again.
void UnicodeLower(std::string_view text, std::string& lower);

// All characters whose lower case is this one, itself included; empty when it is no lower-case form.
std::vector<char32_t> FormsOfLower(char32_t lower);

// The number of characters (code points) in a UTF-8 text.
std::size_t CharacterCount(std::string_view text);

bool IsUtf8(std::string_view text);
