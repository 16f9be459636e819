// SPDX-License-Identifier: MIT
#include "logbook/TimeStamps.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t ClockLength = 8;         // 12:34:56
constexpr std::size_t MillisecondsLength = 12; // 12:34:56.789

// Above 9 for what is no digit.
std::uint32_t DigitOf(char c) { return static_cast<std::uint32_t>(static_cast<unsigned char>(c)) - '0'; }

// The digits of a clock time without milliseconds as one number; false when it is none.
bool ReadClock(const char* clock, std::uint32_t& digits) {
    if constexpr (std::endian::native == std::endian::little) {
        // All eight characters at once: each byte of `left` is a digit, or 0 for a colon in its place.
        std::uint64_t left = 0;
        std::memcpy(&left, clock, ClockLength);
        left ^= 0x30303A30303A3030U;
        constexpr std::uint64_t Colons = 0x0000FF0000FF0000U;
        const std::uint64_t tooLarge = (left | (left + 0x0606060606060606U)) & 0xF0F0F0F0F0F0F0F0U;
        if ((tooLarge | (left & Colons)) != 0)
            return false;
        const std::uint64_t pairs = left * 10 + (left >> 8U); // bytes 0, 3 and 6: hours, minutes, seconds
        digits = static_cast<std::uint32_t>((pairs & 0xFFU) * 10000 + (pairs >> 24U & 0xFFU) * 100 +
                                            (pairs >> 48U & 0xFFU));
        return true;
    } else {
        digits = 0;
        for (std::size_t i = 0; i < ClockLength; ++i) {
            if (i % 3 == 2 ? clock[i] != ':' : DigitOf(clock[i]) > 9)
                return false;
            if (i % 3 != 2)
                digits = digits * 10 + DigitOf(clock[i]);
        }
        return true;
    }
}

} // namespace

void TimeStamps::Clear() {
    dates_.clear();
    numbers_.clear();
    lastSize_ = NoSize;
}

bool TimeStamps::Pack(std::string_view stamp, const CodePage& codePage, PackedStamp& packed) {
    if (stamp.size() < ClockLength)
        return false;
    const char* const end = stamp.data() + stamp.size();
    const bool milliseconds = stamp.size() >= MillisecondsLength && end[-4] == '.';
    const std::size_t clockLength = milliseconds ? MillisecondsLength : ClockLength;
    if (!ReadClock(end - clockLength, packed.Clock))
        return false;
    packed.Clock *= 1000;
    if (milliseconds) {
        const std::uint32_t hundreds = DigitOf(end[-3]);
        const std::uint32_t tens = DigitOf(end[-2]);
        const std::uint32_t ones = DigitOf(end[-1]);
        if (std::max({hundreds, tens, ones}) > 9)
            return false;
        packed.Clock += (hundreds * 100 + tens * 10 + ones) | PackedStamp::HasMilliseconds;
    }
    const std::string_view date = stamp.substr(0, stamp.size() - clockLength);
    packed.Date = lastNumber_;
    return IsLastDate(date) || FindDate(date, codePage, packed.Date);
}

bool TimeStamps::FindDate(std::string_view date, const CodePage& codePage, std::uint32_t& number) {
    std::string key(date);
    auto found = numbers_.find(key);
    if (found == numbers_.end()) {
        if (dates_.size() == MostDates)
            return false;
        found = numbers_.emplace(std::move(key), DateCount()).first;
        dates_.push_back(codePage.ToUtf8(date));
    }
    number = found->second;
    RememberDate(date, number);
    return true;
}

void TimeStamps::RememberDate(std::string_view date, std::uint32_t number) {
    lastSize_ = NoSize;
    if (date.size() < 8 || date.size() > 16)
        return;
    lastSize_ = date.size();
    lastBegin_ = LoadEight(date.data());
    lastEnd_ = LoadEight(date.data() + date.size() - 8);
    lastNumber_ = number;
}

std::string TimeStamps::Text(PackedStamp packed) const {
    std::uint32_t digits = packed.Clock & ~PackedStamp::HasMilliseconds;
    const bool milliseconds = (packed.Clock & PackedStamp::HasMilliseconds) != 0;
    std::array<char, MillisecondsLength> clock{'0', '0', ':', '0', '0', ':', '0', '0', '.', '0', '0', '0'};
    for (const std::size_t place : {11U, 10U, 9U, 7U, 6U, 4U, 3U, 1U, 0U}) {
        clock[place] = static_cast<char>('0' + digits % 10);
        digits /= 10;
    }
    const std::string_view date = DateText(packed.Date);
    std::string text;
    text.reserve(date.size() + clock.size());
    return text.append(date).append(clock.data(), milliseconds ? MillisecondsLength : ClockLength);
}
