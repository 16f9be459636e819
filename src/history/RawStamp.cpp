// SPDX-License-Identifier: MIT
#include "history/RawStamp.h"

#include "base/Blanks.h"

#include <cstddef>

namespace {

constexpr std::string_view EnglishDate = "AAA AAA 00 0000";
constexpr std::string_view ClockForm = "00:00:00";
constexpr std::string_view Milliseconds = ".000";

// In a form, "0" stands for a digit or a blank before one, "A" for a letter, anything else for itself.
bool HasForm(std::string_view text, std::string_view form) {
    if (text.size() != form.size())
        return false;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto isLetter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char wanted = form[i];
        const char c = text[i];
        const bool leads = wanted == '0' && c == ' ' && i + 1 < text.size() && isDigit(text[i + 1]);
        if (wanted == '0' ? !isDigit(c) && !leads : wanted == 'A' ? !isLetter(c) : c != wanted)
            return false;
    }
    return true;
}

std::string_view Last(std::string_view text, std::size_t count) {
    return text.size() < count ? std::string_view{} : text.substr(text.size() - count);
}

// Takes a form off the text's end, if it is there.
bool TakeOff(std::string_view& text, std::string_view form) {
    if (!HasForm(Last(text, form.size()), form))
        return false;
    text.remove_suffix(form.size());
    return true;
}

std::string_view WithoutEnd(std::string_view line) {
    while (!line.empty() && (line.back() == '\n' || line.back() == '\r' || line.back() == ' '))
        line.remove_suffix(1);
    return line;
}

// Both orders of date and clock occur: "04.01.2010 06:12:04" and "06:12:04 04.01.2010".
bool TakeOffNumericDate(std::string_view& text) { return TakeOff(text, "00.00.0000"); }

} // namespace

std::optional<RawStamp> StampOfRawLine(std::string_view line) {
    if (line.starts_with(Blank))
        return std::nullopt;
    line = WithoutEnd(line);
    bool hasDate = TakeOff(line, EnglishDate) || TakeOffNumericDate(line);
    line = WithoutEnd(line);
    if (!TakeOff(line, Milliseconds))
        TakeOff(line, ":000");
    RawStamp stamp{.Clock = Last(line, ClockForm.size())};
    if (!TakeOff(line, ClockForm))
        return std::nullopt;
    line = WithoutEnd(line);
    stamp.HasDate = hasDate || TakeOffNumericDate(line) || TakeOff(line, EnglishDate);
    return stamp;
}

bool IsDatedSeparator(std::string_view line) {
    constexpr std::size_t DateColumn = 9;
    return line.starts_with("___") && line.size() > DateColumn &&
           HasForm(line.substr(DateColumn, EnglishDate.size()), EnglishDate);
}
