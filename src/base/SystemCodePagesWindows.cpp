// SPDX-License-Identifier: MIT
#include "base/SystemCodePages.h"

#include "base/CodePage.h"

#include <charconv>
#include <cstring>
#include <string>

#include <windows.h>

std::optional<UpperHalf> UpperHalfOfSystem(const char* codePageName) {
    constexpr std::size_t NumberBegin = 2; // behind "CP"
    UINT number = 0;
    const char* const end = codePageName + std::strlen(codePageName);
    CPINFO information{};
    if (std::from_chars(codePageName + NumberBegin, end, number).ptr != end ||
        GetCPInfo(number, &information) == 0 || information.MaxCharSize != 1)
        return std::nullopt;
    UpperHalf half{};
    for (std::size_t i = 0; i < half.size(); ++i) {
        const char byte = static_cast<char>(0x80 + i);
        wchar_t character = 0;
        const bool isDefined =
            MultiByteToWideChar(number, MB_ERR_INVALID_CHARS, &byte, 1, &character, 1) == 1;
        half[i] = isDefined ? static_cast<char16_t>(character) : static_cast<char16_t>(0x80 + i);
    }
    return half;
}

CodePage CodePage::OfUser() { return OfName(("CP" + std::to_string(GetACP())).c_str()); }
