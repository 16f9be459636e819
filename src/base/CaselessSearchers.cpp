// SPDX-License-Identifier: MIT
#include "base/CaselessSearchers.h"

#include "base/UnicodeCase.h"

#include <utf8proc.h>

#include <set>

namespace {

std::string ToUtf8(char32_t character) {
    utf8proc_uint8_t bytes[4];
    const utf8proc_ssize_t length = utf8proc_encode_char(static_cast<utf8proc_int32_t>(character), bytes);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(length)};
}

} // namespace

std::vector<TextSearcher> CaselessSearchers(std::string_view lower) {
    std::string ignoredBits(lower.size(), '\0');
    std::set<std::string> oddForms;
    for (std::size_t place = 0; place < lower.size();) {
        utf8proc_int32_t character = 0;
        const utf8proc_ssize_t length =
            utf8proc_iterate(reinterpret_cast<const utf8proc_uint8_t*>(lower.data() + place),
                             static_cast<utf8proc_ssize_t>(lower.size() - place), &character);
        if (length <= 0) {
            ++place;
            continue;
        }
        const auto bytes = static_cast<std::size_t>(length);
        for (const char32_t form : FormsOfLower(static_cast<char32_t>(character))) {
            const std::string text = ToUtf8(form);
            if (text.size() != bytes) {
                oddForms.insert(text);
                continue;
            }
            for (std::size_t i = 0; i < bytes; ++i)
                ignoredBits[place + i] =
                    static_cast<char>(ignoredBits[place + i] | (text[i] ^ lower[place + i]));
        }
        place += bytes;
    }
    std::vector<TextSearcher> searchers{TextSearcher(std::string(lower), ignoredBits)};
    for (const std::string& form : oddForms)
        searchers.emplace_back(form);
    return searchers;
}
