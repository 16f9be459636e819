// SPDX-License-Identifier: MIT
#include "base/CaseFolding.h"

#include "base/ShortText.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

constexpr std::uint64_t EachByte = 0x0101010101010101U;
constexpr std::uint64_t BeyondAscii = 0x80 * EachByte;

// The capital letters of eight ASCII bytes made small. The sums reach a byte's highest bit from 'A' on, and
// from the byte behind 'Z' on.
std::uint64_t LowerEight(std::uint64_t bytes) {
    const std::uint64_t fromA = bytes + (0x80 - 'A') * EachByte;
    const std::uint64_t behindZ = bytes + (0x80 - 'Z' - 1) * EachByte;
    return bytes | (fromA & ~behindZ & BeyondAscii) >> 2U;
}

// The bytes, as they lie in memory, as a number whose highest byte is the first.
std::uint64_t FirstHighest(std::uint64_t bytes) {
    if constexpr (std::endian::native == std::endian::big)
        return bytes;
    bytes = (bytes & 0x00FF00FF00FF00FFU) << 8U | (bytes >> 8U & 0x00FF00FF00FF00FFU);
    bytes = (bytes & 0x0000FFFF0000FFFFU) << 16U | (bytes >> 16U & 0x0000FFFF0000FFFFU);
    return bytes << 32U | bytes >> 32U;
}

// Up to eight bytes, the first one highest.
std::uint64_t LoadSome(const char* bytes, std::size_t count) {
    if (count >= 8)
        return FirstHighest(LoadEight(bytes));
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < count; ++i)
        value |= std::uint64_t{static_cast<unsigned char>(bytes[i])} << (56 - 8 * i);
    return value;
}

bool IsAscii(const char* bytes, std::size_t count) {
    std::size_t i = 0;
    for (; count - i >= 8; i += 8)
        if ((LoadEight(bytes + i) & BeyondAscii) != 0)
            return false;
    return (LoadSome(bytes + i, count - i) & BeyondAscii) == 0;
}

} // namespace

std::string FoldCase(std::string_view text) {
    std::string folded;
    folded.reserve(text.size());
    FoldedBytes bytes(text);
    for (int byte = bytes.Next(); byte != FoldedBytes::End; byte = bytes.Next())
        folded += static_cast<char>(byte);
    return folded;
}

int FoldedBytes::NextBeyondAscii() {
    utf8proc_int32_t codePoint = 0;
    const auto* const begin = reinterpret_cast<const utf8proc_uint8_t*>(text_.data() + place_);
    const utf8proc_ssize_t length =
        utf8proc_iterate(begin, static_cast<utf8proc_ssize_t>(text_.size() - place_), &codePoint);
    if (length <= 0)
        return static_cast<unsigned char>(text_[place_++]);

    std::array<utf8proc_int32_t, 4> folded{};
    int boundClass = 0;
    const utf8proc_ssize_t count =
        utf8proc_decompose_char(codePoint, folded.data(), static_cast<utf8proc_ssize_t>(folded.size()),
                                UTF8PROC_CASEFOLD, &boundClass);
    pendingPlace_ = 0;
    pendingCount_ = 0;
    if (count <= 0 || static_cast<std::size_t>(count) > folded.size()) {
        pendingCount_ = static_cast<std::size_t>(length);
        std::memcpy(pending_, begin, pendingCount_);
    } else {
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
            pendingCount_ += static_cast<std::size_t>(utf8proc_encode_char(
                folded[i], reinterpret_cast<utf8proc_uint8_t*>(pending_ + pendingCount_)));
    }
    place_ += static_cast<std::size_t>(length);
    return Next();
}

int CompareFolded(std::string_view a, std::string_view b) {
    // Equal ASCII goes eight bytes at a time; from the first other place on, one byte at a time.
    std::size_t place = 0;
    while (a.size() - place >= 8 && b.size() - place >= 8) {
        const std::uint64_t eightA = LoadEight(a.data() + place);
        const std::uint64_t eightB = LoadEight(b.data() + place);
        if (((eightA | eightB) & BeyondAscii) != 0 || LowerEight(eightA) != LowerEight(eightB))
            break;
        place += 8;
    }
    FoldedBytes bytesA(a.substr(place));
    FoldedBytes bytesB(b.substr(place));
    while (true) {
        const int byteA = bytesA.Next();
        const int byteB = bytesB.Next();
        if (byteA != byteB)
            return byteA - byteB;
        if (byteA == FoldedBytes::End)
            return 0;
    }
}

std::size_t CommonFolded(std::string_view folded, std::string_view text) {
    std::size_t place = 0;
    while (folded.size() - place >= 8 && text.size() - place >= 8) {
        const std::uint64_t eight = LoadEight(text.data() + place);
        if ((eight & BeyondAscii) != 0 || LowerEight(eight) != LoadEight(folded.data() + place))
            break;
        place += 8;
    }
    FoldedBytes bytes(text.substr(place));
    while (place < folded.size() && bytes.Next() == static_cast<unsigned char>(folded[place]))
        ++place;
    return place;
}

FoldedEight FoldedEightAt(std::string_view text, std::size_t place) {
    if (IsAscii(text.data(), std::min(place + 8, text.size()))) {
        if (place >= text.size())
            return {};
        const std::size_t count = std::min<std::size_t>(text.size() - place, 8);
        return {LowerEight(LoadSome(text.data() + place, count)), static_cast<unsigned>(count)};
    }
    FoldedBytes bytes(text);
    for (std::size_t i = 0; i < place; ++i)
        if (bytes.Next() == FoldedBytes::End)
            return {};
    FoldedEight eight;
    for (; eight.Count < 8; ++eight.Count) {
        const int byte = bytes.Next();
        if (byte == FoldedBytes::End)
            break;
        eight.Bytes |= static_cast<std::uint64_t>(byte) << (56 - 8 * eight.Count);
    }
    return eight;
}
