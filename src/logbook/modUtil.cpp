// SPDX-License-Identifier: MIT
#include "logbook/modUtil.h"

#include "logbook/AsciiCase.h"

#include <array>
#include <fstream>
#include <limits>
#include <utility>

namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 12> Months{{
    {"JAN", ".01."},
    {"FEB", ".02."},
    {"MAR", ".03."},
    {"APR", ".04."},
    {"MAY", ".05."},
    {"JUN", ".06."},
    {"JUL", ".07."},
    {"AUG", ".08."},
    {"SEP", ".09."},
    {"OCT", ".10."},
    {"NOV", ".11."},
    {"DEC", ".12."},
}};

constexpr std::string_view PathSeparators = "\\/";

// The month's number between its dots; "" for an unknown name.
std::string_view MonthText(std::string_view name) {
    const auto isSame = [](char a, char b) { return UpperCase(a) == b; };
    for (const auto& [known, text] : Months)
        if (std::equal(name.begin(), name.end(), known.begin(), known.end(), isSame))
            return text;
    return {};
}

} // namespace

std::string NormaliseStamp(std::string_view text) {
    const std::string_view ninth = Mid(text, 9, 1);
    const bool milliseconds = ninth == "." || ninth == ":";
    const std::int64_t clockLength = milliseconds ? 12 : 8;
    // Behind the clock: a blank, the weekday, a blank, the month, a blank, the day, a blank, the year.
    const std::string_view month = Mid(text, clockLength + 6, 3);
    const std::string_view day = Mid(text, clockLength + 10, 2);
    const std::string_view year = Mid(text, clockLength + 13, 4);

    std::string stamp;
    stamp.reserve(24);
    stamp.append(day).append(MonthText(month)).append(year).append(1, Blank).append(Left(text, clockLength));
    return stamp;
}

std::string HexToChar(std::string_view text) {
    text = Trim(text);
    if (text.starts_with("0x"))
        text.remove_prefix(2);
    constexpr std::int64_t Bound = std::numeric_limits<std::int64_t>::max() / 16 - 1;
    std::int64_t value = 0;
    for (const char c : text) {
        if (value > Bound || value < -Bound)
            return {};
        const int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
        value = value * 16 + digit;
    }
    if (value < 32 || value > 126)
        return {};
    return std::string(1, static_cast<char>(value));
}

std::filesystem::path ToPath(std::string_view path) { return std::u8string(path.begin(), path.end()); }

void SplitPath(std::string_view path, std::string& folder, std::string& fileName) {
    const std::size_t separator = path.find_last_of(PathSeparators);
    const std::size_t cut = separator == std::string_view::npos ? 0 : separator + 1;
    folder = path.substr(0, cut);
    fileName = path.substr(cut);
}

bool FileExists(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(ToPath(path), error))
        return false;
    return std::ifstream(ToPath(path), std::ios::binary).is_open();
}

std::string ChangeExtension(std::string_view fileName, std::string_view newExtension) {
    const std::size_t dot = fileName.rfind('.');
    const std::size_t separator = fileName.find_last_of(PathSeparators);
    const bool hasDot =
        dot != std::string_view::npos && (separator == std::string_view::npos || dot > separator);
    return std::string(hasDot ? fileName.substr(0, dot) : fileName).append(newExtension);
}
