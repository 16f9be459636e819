// SPDX-License-Identifier: MIT
#include "logbook/modUtil.h"

#include "base/AsciiCase.h"

#include <array>
#include <limits>

namespace {

struct Month {
    std::uint32_t Name; // its letters as one number, as LettersOf gives them
    std::string_view Text;
};

// Three letters as one number, whatever their case.
constexpr std::uint32_t LettersOf(std::string_view name) {
    std::uint32_t letters = 0;
    for (const char c : name)
        letters = letters << 8U | static_cast<unsigned char>(UpperCase(c));
    return letters;
}

constexpr std::array<Month, 12> Months{{
    {LettersOf("JAN"), ".01."},
    {LettersOf("FEB"), ".02."},
    {LettersOf("MAR"), ".03."},
    {LettersOf("APR"), ".04."},
    {LettersOf("MAY"), ".05."},
    {LettersOf("JUN"), ".06."},
    {LettersOf("JUL"), ".07."},
    {LettersOf("AUG"), ".08."},
    {LettersOf("SEP"), ".09."},
    {LettersOf("OCT"), ".10."},
    {LettersOf("NOV"), ".11."},
    {LettersOf("DEC"), ".12."},
}};

// The value of a character as an upper-case digit; -1 when it is no digit. Key codes mix digits and letters,
// so the processor would mispredict a comparison of ranges every other time.
constexpr std::array<std::int8_t, 256> HexDigits = [] {
    std::array<std::int8_t, 256> digits{};
    digits.fill(-1);
    std::int8_t value = 0;
    for (const char digit : std::string_view("0123456789ABCDEF"))
        digits[static_cast<unsigned char>(digit)] = value++;
    return digits;
}();

constexpr std::int64_t FirstPrintable = 32;
constexpr std::int64_t LastPrintable = 126;
constexpr std::array<char, LastPrintable - FirstPrintable + 1> Printable = [] {
    std::array<char, LastPrintable - FirstPrintable + 1> characters{};
    char next = FirstPrintable;
    for (char& character : characters)
        character = next++;
    return characters;
}();

// The month's number between its dots; "" for an unknown name.
std::string_view MonthText(std::string_view name) {
    if (name.size() == 3)
        for (const Month& month : Months)
            if (month.Name == LettersOf(name))
                return month.Text;
    return {};
}

} // namespace

void ThrowTooShort() { throw RunTimeError("a line is too short for its column rules"); }

std::string_view NormaliseStamp(std::string_view text, StampRoom& room) {
    const std::string_view ninth = Mid(text, 9, 1);
    const bool milliseconds = ninth == "." || ninth == ":";
    const std::int64_t clockLength = milliseconds ? 12 : 8;
    // Behind the clock: a blank, the weekday, a blank, the month, a blank, the day, a blank, the year.
    const std::string_view month = Mid(text, clockLength + 6, 3);
    const std::string_view day = Mid(text, clockLength + 10, 2);
    const std::string_view year = Mid(text, clockLength + 13, 4);

    char* end = room.data();
    for (const std::string_view part :
         {day, MonthText(month), year, std::string_view(" "), Left(text, clockLength)})
        end = std::copy(part.begin(), part.end(), end);
    return {room.data(), static_cast<std::size_t>(end - room.data())};
}

std::string_view HexToChar(std::string_view text) {
    text = Trim(text);
    if (text.starts_with("0x"))
        text.remove_prefix(2);
    constexpr std::int64_t Bound = std::numeric_limits<std::int64_t>::max() / 16 - 1;
    std::int64_t value = 0;
    for (const char c : text) {
        if (value > Bound || value < -Bound)
            return {};
        value = value * 16 + HexDigits[static_cast<unsigned char>(c)];
    }
    if (value < FirstPrintable || value > LastPrintable)
        return {};
    return {&Printable[static_cast<std::size_t>(value - FirstPrintable)], 1};
}
