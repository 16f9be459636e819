// SPDX-License-Identifier: MIT
#include "base/SystemCodePages.h"

#include "base/CodePage.h"

#include <cstdlib>

#include <iconv.h>

std::optional<UpperHalf> UpperHalfOfSystem(const char* codePageName) {
    const iconv_t converter = iconv_open("UTF-16LE", codePageName);
    if (converter == reinterpret_cast<iconv_t>(-1))
        return std::nullopt;
    UpperHalf half{};
    for (std::size_t i = 0; i < half.size(); ++i) {
        char byte = static_cast<char>(0x80 + i);
        std::array<unsigned char, 8> unit{};
        char* in = &byte;
        char* out = reinterpret_cast<char*>(unit.data());
        std::size_t inLeft = 1;
        std::size_t outLeft = unit.size();
        iconv(converter, nullptr, nullptr, nullptr, nullptr);
        const bool defined =
            iconv(converter, &in, &inLeft, &out, &outLeft) != static_cast<std::size_t>(-1) && outLeft == 6;
        half[i] = static_cast<char16_t>(defined ? unit[0] + 256 * unit[1] : 0x80 + static_cast<int>(i));
    }
    iconv_close(converter);
    return half;
}

CodePage CodePage::OfUser() {
    for (const char* variable : {"LC_ALL", "LC_CTYPE", "LANG"})
        if (const char* value = std::getenv(variable); value != nullptr && *value != '\0')
            return ForLocale(value);
    return {};
}
