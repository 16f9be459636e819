// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

inline constexpr std::size_t ClockLength = 8;      // 12:34:56
inline constexpr std::size_t LongClockLength = 12; // 12:34:56.789

// Above 9 when the character is no digit.
constexpr std::uint32_t DigitOf(char c) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(c)) - '0';
}

// Reads the digits of a clock time without milliseconds as one number; false when there is no clock time.
inline bool ReadClock(const char* clock, std::uint32_t& digits) {
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

// Reads the digits of ".789" as one number, without checking the point; false when they are no digits.
inline bool ReadMilliseconds(const char* point, std::uint32_t& digits) {
    const std::uint32_t hundreds = DigitOf(point[1]);
    const std::uint32_t tens = DigitOf(point[2]);
    const std::uint32_t ones = DigitOf(point[3]);
    digits = hundreds * 100 + tens * 10 + ones;
    return std::max({hundreds, tens, ones}) <= 9;
}
