// SPDX-License-Identifier: MIT
#include "eventinfo/Numbers.h"

#include "base/Blanks.h"

#include <charconv>
#include <system_error>

namespace {

constexpr std::string_view DecimalDigits = "0123456789";
constexpr std::string_view HexadecimalDigits = "0123456789ABCDEFabcdef";

std::string_view Leading(std::string_view text, std::string_view digits) {
    return text.substr(0, text.find_first_not_of(digits));
}

} // namespace

std::int64_t ReadHexadecimal(std::string_view text) {
    constexpr std::size_t MostDigits = 8;
    const std::string_view digits = Leading(text, HexadecimalDigits);
    if (digits.size() > MostDigits)
        return NumberOfNothing;
    std::int64_t number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
    return number;
}

std::optional<std::int64_t> ReadDecimal(std::string_view text) {
    text = Trim(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    const std::string_view digits = Leading(text, DecimalDigits);
    if (digits.empty())
        return std::nullopt;
    std::int64_t number = 0;
    const auto [rest, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return error != std::errc() || (negative && number != 0) ? NumberOfNothing : number;
}

bool IsDecimal(std::string_view text) { return !text.empty() && Leading(text, DecimalDigits) == text; }
