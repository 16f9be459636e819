// SPDX-License-Identifier: MIT
#include "rows/ListPlace.h"

#include "base/AsciiCase.h"
#include "base/PartFiles.h"
#include "base/Paths.h"

#include <algorithm>

std::optional<TextId> RefusalOfListPlace(const std::string& file, std::span<const std::string> sources) {
    if (std::any_of(sources.begin(), sources.end(), [&](const std::string& source) {
            return !source.empty() && WritingTouches(ToPath(file), ToPath(source));
        }))
        return TextId::ListInPlaceOfSource;
    const std::string name = LowerCase(file);
    std::error_code ignored;
    if ((name.ends_with(".qorvix") || name.ends_with(".cmt") || name.ends_with(".fil")) &&
        std::filesystem::exists(ToPath(file), ignored))
        return TextId::ListInPlaceOfOther;
    return std::nullopt;
}
