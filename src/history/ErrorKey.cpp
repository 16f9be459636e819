// SPDX-License-Identifier: MIT
#include "history/ErrorKey.h"

#include "base/Blanks.h"
#include "eventinfo/Numbers.h"
#include "eventinfo/iZEKEventInfo.h"
#include "logbook/EventLines.h"

#include <array>
#include <charconv>
#include <optional>
#include <utility>

namespace {

void AppendHexadecimal(std::int64_t number, std::size_t leastDigits, std::string& text) {
    std::array<char, 16> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    const auto count = static_cast<std::size_t>(end - digits.data());
    text.append(count < leastDigits ? leastDigits - count : 0, '0');
    for (std::size_t i = 0; i < count; ++i)
        text += static_cast<char>(digits[i] >= 'a' ? digits[i] - 'a' + 'A' : digits[i]);
}

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// Whether a text has a blank that separates words, not lines: the lookup has line breaks between lines.
bool HasBlankInLine(std::string_view text) {
    for (std::size_t blank = text.find(Blank); blank != std::string_view::npos;
         blank = text.find(Blank, blank)) {
        if (!text.substr(blank).starts_with(LineSeparator))
            return true;
        blank += LineSeparator.size();
    }
    return false;
}

// The number behind the letter of a classic error. Nothing when there is none, or one that no error has.
std::optional<std::int64_t> ClassicNumber(std::string_view data) {
    if (data.size() < 2 || (data.front() != 'N' && data.front() != 'P') || data[1] == Blank)
        return std::nullopt;
    const std::optional<std::int64_t> number = ReadDecimal(data.substr(1));
    return number && *number >= 0 ? number : std::nullopt;
}

void AppendClassicCode(char letter, std::int64_t number, std::string& key) {
    key += letter;
    key += std::to_string(number);
}

} // namespace

ErrorKeys::ErrorKeys(FacilityTable facilities) : facilities_(std::move(facilities)) {}

bool ErrorKeys::AppendEventCode(std::string_view data, std::string& key) const {
    const std::size_t mark = data.find(EventMark);
    if (mark == std::string_view::npos)
        return false;
    const std::optional<EventCode> code = ParseEventCode(data.substr(mark + EventMark.size()), facilities_);
    if (!code || code->Number < 0)
        return false;
    AppendHexadecimal(code->Facility, 1, key);
    key += '-';
    AppendHexadecimal(code->Number, 4, key);
    return true;
}

ErrorKeys::Form ErrorKeys::MakeKey(std::string_view data, std::string_view sender, std::string_view name,
                                   std::string& key) const {
    key.clear();
    if (AppendEventCode(data, key))
        return Form::Code;
    if (const std::optional<std::int64_t> number = ClassicNumber(data); number && HasBlankInLine(data)) {
        AppendClassicCode(data.front(), *number, key);
        return Form::Code;
    }
    key.append(sender).append("/").append(name).append(" ");
    bool wasDigit = false;
    for (const char c : data) {
        const bool isDigit = IsDigit(c);
        if (!isDigit)
            key += c;
        else if (!wasDigit)
            key += '#';
        wasDigit = isDigit;
    }
    return Form::Words;
}

std::string ErrorKeys::ClearedCode(std::string_view data) const {
    std::string code;
    if (AppendEventCode(data, code))
        return code;
    if (const std::optional<std::int64_t> number = ClassicNumber(data))
        AppendClassicCode(data.front(), *number, code);
    return code;
}
