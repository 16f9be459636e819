// SPDX-License-Identifier: MIT
#include "logbook/TimeStamps.h"

#include "logbook/ShortText.h"

#include <array>
#include <bit>
#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t ClockLength = 8;         // 12:34:56
constexpr std::size_t MillisecondsLength = 12; // 12:34:56.789

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

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
            if (i % 3 == 2 ? clock[i] != ':' : !IsDigit(clock[i]))
                return false;
            if (i % 3 != 2)
                digits = digits * 10 + static_cast<std::uint32_t>(clock[i] - '0');
        }
        return true;
    }
}

} // namespace

void TimeStamps::Clear() {
    dates_.clear();
    numbers_.clear();
    lastDate_.clear();
    lastNumber_ = MostDates;
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
        if (!IsDigit(end[-3]) || !IsDigit(end[-2]) || !IsDigit(end[-1]))
            return false;
        packed.Clock +=
            static_cast<std::uint32_t>((end[-3] - '0') * 100 + (end[-2] - '0') * 10 + (end[-1] - '0'));
        packed.Clock |= PackedStamp::HasMilliseconds;
    }
    return FindDate(stamp.substr(0, stamp.size() - clockLength), codePage, packed.Date);
}

bool TimeStamps::FindDate(std::string_view date, const CodePage& codePage, std::uint32_t& number) {
    if (lastNumber_ != MostDates && IsSameShort(lastDate_, date)) {
        number = lastNumber_;
        return true;
    }
    std::string key(date);
    auto found = numbers_.find(key);
    if (found == numbers_.end()) {
        if (dates_.size() == MostDates)
            return false;
        found = numbers_.emplace(std::move(key), DateCount()).first;
        dates_.push_back(codePage.ToUtf8(date));
    }
    lastDate_ = date;
    number = lastNumber_ = found->second;
    return true;
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
