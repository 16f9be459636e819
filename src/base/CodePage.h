// SPDX-License-Identifier: MIT
#pragma once

#include "base/AsciiCopy.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

// The single-byte code page of the control's files. Inside the program all text is UTF-8; this class converts
// at the boundary.
//
// The conversion is total and reversible: a byte that the code page leaves undefined becomes the character
// with the same number (U+0081 for 0x81 in Windows-1252) and becomes that byte again.
class CodePage {
  public:
    // The most bytes that one character of a code page takes in UTF-8, and how many bytes Encode may write
    // past its result's end.
    static constexpr std::size_t MostBytes = 3;
    static constexpr std::size_t Overrun = 8;

    // Windows-1252, the control's code page in most regions.
    CodePage();

    // The code page of the region that a locale name such as "cs_CZ.UTF-8" stands for: 1250 for pl, cs, hu,
    // sk; 1251 for ru, uk, bg; 1253 for el; 1254 for tr; 1257 for et, lt, lv; 1252 for all others, and also
    // where the C library has no table for the region's code page.
    static CodePage ForLocale(std::string_view localeName);

    // The code page with a name such as "CP1250"; 1252 where the system has no table for it.
    static CodePage OfName(const char* name);

    // The code page of the user's locale, from LC_ALL, LC_CTYPE and LANG in this order; on Windows the
    // system's own for programs without Unicode.
    static CodePage OfUser();

    // For example "CP1252".
    const std::string& Name() const { return name_; }

    // Writes `bytes` as UTF-8 to `out` and returns the end of the result. `out` must have room for MostBytes
    // times as many bytes plus Overrun.
    char* Encode(std::string_view bytes, char* out) const {
        return CopyAscii(bytes, out) ? out + bytes.size() : EncodeMixed(bytes, out);
    }

    std::string ToUtf8(std::string_view bytes) const;

    // Converts UTF-8 to this code page. Each character that the code page lacks becomes "?"; `Lost` counts
    // them.
    struct Bytes {
        std::string Text;
        std::size_t Lost = 0;
    };
    Bytes FromUtf8(std::string_view text) const;

  private:
    struct Utf8Character {
        std::array<char, MostBytes> Bytes{};
        std::uint8_t Length = 0;
    };

    char* EncodeMixed(std::string_view bytes, char* out) const;

    explicit CodePage(std::string name, const std::array<char16_t, 128>& upperHalf);

    std::string name_;
    std::array<Utf8Character, 256> characters_{};
    std::map<char32_t, char> bytesOfUpperHalf_;
};
