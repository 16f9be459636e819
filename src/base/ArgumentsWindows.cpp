// SPDX-License-Identifier: MIT
#include "base/Arguments.h"

#include <windows.h>

#include <shellapi.h>

namespace {

std::string Utf8Of(const wchar_t* text) {
    const int size = WideCharToMultiByte(CP_UTF8, 0, text, -1, nullptr, 0, nullptr, nullptr);
    if (size <= 1)
        return {};
    std::string utf8(static_cast<std::size_t>(size), '\0'); // with the NUL at its end
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8.data(), size, nullptr, nullptr);
    utf8.pop_back();
    return utf8;
}

} // namespace

// What the C library has kept of them is in the system's code page.
std::vector<std::string> Arguments(int, const char* const*) {
    std::vector<std::string> words;
    int count = 0;
    wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; wide != nullptr && i < count; ++i)
        words.push_back(Utf8Of(wide[i]));
    LocalFree(wide);
    return words;
}
