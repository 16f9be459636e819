// SPDX-License-Identifier: MIT
#include "base/CodePage.h"

#include "base/ShortText.h"
#include "base/SystemCodePages.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <optional>
#include <utility>

namespace {

// Bytes 0x80 to 0x9F of Windows-1252; from 0xA0 on a byte is the character with its own number.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr std::array<std::pair<std::string_view, const char*>, 12> RegionalCodePages{{
    {"pl", "CP1250"},
    {"cs", "CP1250"},
    {"hu", "CP1250"},
    {"sk", "CP1250"},
    {"ru", "CP1251"},
    {"uk", "CP1251"},
    {"bg", "CP1251"},
    {"el", "CP1253"},
    {"tr", "CP1254"},
    {"et", "CP1257"},
    {"lt", "CP1257"},
    {"lv", "CP1257"},
}};

UpperHalf UpperHalfOf1252() {
    UpperHalf half{};
    for (std::size_t i = 0; i < half.size(); ++i)
        half[i] = i < Windows1252.size() ? Windows1252[i] : static_cast<char16_t>(0x80 + i);
    return half;
}

// Takes the next character from the front of a UTF-8 text; U+FFFD for a byte that belongs to no character.
char32_t TakeCharacter(std::string_view& text) {
    constexpr char32_t Invalid = 0xFFFD;
    const auto byteAt = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned char lead = byteAt(0);
    const std::size_t length = lead < 0x80               ? 1
                               : (lead & 0xE0U) == 0xC0U ? 2
                               : (lead & 0xF0U) == 0xE0U ? 3
                               : (lead & 0xF8U) == 0xF0U ? 4
                                                         : 0;
    char32_t character = length <= 1 ? lead : lead & (0x7FU >> length);
    bool whole = length != 0 && length <= text.size();
    for (std::size_t i = 1; whole && i < length; ++i) {
        whole = (byteAt(i) & 0xC0U) == 0x80U;
        character = (character << 6U) | (byteAt(i) & 0x3FU);
    }
    text.remove_prefix(whole ? length : 1);
    return whole ? character : Invalid;
}

} // namespace

CodePage::CodePage() : CodePage("CP1252", UpperHalfOf1252()) {}

CodePage::CodePage(std::string name, const UpperHalf& upperHalf) : name_(std::move(name)) {
    for (unsigned byte = 0; byte < 256; ++byte) {
        const char16_t character = byte < 0x80 ? static_cast<char16_t>(byte) : upperHalf[byte - 0x80];
        const auto put = [](unsigned bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
        Utf8Character& utf8 = characters_[byte];
        if (character < 0x80)
            utf8 = {{put(character)}, 1};
        else if (character < 0x800)
            utf8 = {{put(0xC0U | (character >> 6U)), put(0x80U | (character & 0x3FU))}, 2};
        else
            utf8 = {{put(0xE0U | (character >> 12U)), put(0x80U | ((character >> 6U) & 0x3FU)),
                     put(0x80U | (character & 0x3FU))},
                    3};
        if (byte >= 0x80)
            bytesOfUpperHalf_.emplace(character, put(byte));
    }
}

CodePage CodePage::ForLocale(std::string_view localeName) {
    const std::string_view language = localeName.substr(0, localeName.find_first_of("_.@"));
    for (const auto& [region, codePageName] : RegionalCodePages)
        if (region == language)
            return OfName(codePageName);
    return {};
}

CodePage CodePage::OfName(const char* name) {
    const std::optional<UpperHalf> upperHalf = UpperHalfOfSystem(name);
    return upperHalf ? CodePage(name, *upperHalf) : CodePage();
}

char* CodePage::EncodeMixed(std::string_view bytes, char* out) const {
    const char* in = bytes.data();
    const char* const end = in + bytes.size();
    const auto encodeOne = [&] {
        const Utf8Character& character = characters_[static_cast<unsigned char>(*in++)];
        std::memcpy(out, character.Bytes.data(), MostBytes);
        out += character.Length;
    };
    // Text between the few characters that need converting is copied eight bytes at a time.
    if constexpr (std::endian::native == std::endian::little)
        while (end - in >= 8) {
            const std::uint64_t eight = LoadEight(in);
            std::memcpy(out, &eight, 8);
            const int ascii = std::countr_zero(eight & 0x8080808080808080U) / 8;
            in += ascii;
            out += ascii;
            if (ascii < 8)
                encodeOne();
        }
    while (in != end)
        encodeOne();
    return out;
}

std::string CodePage::ToUtf8(std::string_view bytes) const {
    std::string text(bytes.size() * MostBytes + Overrun, '\0');
    text.resize(static_cast<std::size_t>(Encode(bytes, text.data()) - text.data()));
    return text;
}

CodePage::Bytes CodePage::FromUtf8(std::string_view text) const {
    Bytes bytes;
    bytes.Text.reserve(text.size());
    while (!text.empty()) {
        const auto ascii = std::find_if(text.begin(), text.end(), [](char c) { return (c & 0x80) != 0; });
        bytes.Text.append(text.begin(), ascii);
        text.remove_prefix(static_cast<std::size_t>(ascii - text.begin()));
        if (text.empty())
            break;
        const char32_t character = TakeCharacter(text);
        if (character < 0x80)
            bytes.Text += static_cast<char>(character);
        else if (const auto found = bytesOfUpperHalf_.find(character); found != bytesOfUpperHalf_.end())
            bytes.Text += found->second;
        else {
            bytes.Text += '?';
            ++bytes.Lost;
        }
    }
    return bytes;
}
