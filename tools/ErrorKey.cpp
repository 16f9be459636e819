// SPDX-License-Identifier: MIT
#include "tools/ErrorKey.h"

#include "src/eventinfo/FacilityRows.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace {

constexpr std::uint32_t UsualFacility = 0x231;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

std::string InHexadecimal(std::uint32_t number, std::size_t leastDigits) {
    std::string digits;
    for (; number != 0 || digits.size() < leastDigits; number /= 16)
        digits.insert(digits.begin(), "0123456789ABCDEF"[number % 16]);
    return digits;
}

// The number that a text begins with, behind blanks; 0 where it begins with none. Nothing when it has more
// than eight digits.
std::optional<std::uint32_t> Hexadecimal(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    text = text.substr(0, text.find_first_not_of("0123456789abcdefABCDEF"));
    if (text.size() > 8)
        return std::nullopt;
    std::uint32_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number, 16);
    return number;
}

// The control never finds the first facility of its table, and takes 0 for one without a name.
bool IsFacility(std::uint32_t number) {
    const auto isIt = [=](const FacilityRow& row) { return row.Number == static_cast<std::int32_t>(number); };
    return number == 0 || std::any_of(FacilityRows.begin() + 1, FacilityRows.end(), isIt);
}

std::optional<std::string> CodeKey(std::string_view data) {
    constexpr std::string_view Mark = "Event: ";
    const std::size_t mark = data.find(Mark);
    if (mark == std::string_view::npos)
        return std::nullopt;
    std::string_view code = data.substr(mark + Mark.size());
    std::optional<std::uint32_t> facility = UsualFacility;
    if (const std::size_t dash = code.find('-'); dash != std::string_view::npos) {
        facility = Hexadecimal(code.substr(0, dash));
        code.remove_prefix(dash + 1);
    }
    const std::optional<std::uint32_t> number = Hexadecimal(code);
    if (!facility || !number || !IsFacility(*facility))
        return std::nullopt;
    return InHexadecimal(*facility, 1) + '-' + InHexadecimal(*number, 4);
}

bool HasBlankOfItsOwn(std::string_view data) {
    for (std::size_t at = 0; at < data.size(); ++at) {
        if (data[at] != ' ')
            continue;
        if (data.substr(at, 3) != " | ")
            return true;
        at += 2;
    }
    return false;
}

std::string WordsKey(std::string_view sender, std::string_view name, std::string_view data) {
    std::string key(sender);
    key.append("/").append(name).append(" ");
    for (std::size_t at = 0; at < data.size(); ++at) {
        if (!IsDigit(data[at]))
            key += data[at];
        else if (at == 0 || !IsDigit(data[at - 1]))
            key += '#';
    }
    return key;
}

} // namespace

std::optional<std::string> LetterAndNumber(std::string_view data) {
    if (!data.starts_with('N') && !data.starts_with('P'))
        return std::nullopt;
    std::size_t at = 1;
    const bool negative = data.substr(at).starts_with('-');
    if (negative || data.substr(at).starts_with('+'))
        ++at;
    std::uint64_t number = 0;
    const char* const end = data.data() + data.size();
    const auto [stop, error] = std::from_chars(data.data() + at, end, number);
    constexpr auto Most = static_cast<std::uint64_t>(INT64_MAX);
    if (error != std::errc{} || number > Most || (negative && number != 0))
        return std::nullopt;
    return data[0] + std::to_string(number);
}

std::string ErrorKey(std::string_view sender, std::string_view name, std::string_view data) {
    if (std::optional<std::string> code = CodeKey(data))
        return *std::move(code);
    if (std::optional<std::string> number = LetterAndNumber(data); number && HasBlankOfItsOwn(data))
        return *std::move(number);
    return WordsKey(sender, name, data);
}
