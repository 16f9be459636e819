// SPDX-License-Identifier: MIT
#include "rows/ListPlace.h"

#include "base/AsciiCase.h"
#include "base/PartFiles.h"
#include "base/Paths.h"

#include <algorithm>

namespace {

bool IsPersonsWork(const std::string& file) {
    const std::string name = LowerCase(file);
    return name.ends_with(".qorvix") || name.ends_with(".cmt") || name.ends_with(".fil");
}

} // namespace

std::optional<TextId> RefusalOfListPlace(const std::string& file, std::span<const std::string> sources) {
    if (std::any_of(sources.begin(), sources.end(), [&](const std::string& source) {
            return !source.empty() && WritingTouches(ToPath(file), ToPath(source));
        }))
        return TextId::ListInPlaceOfSource;
    std::error_code ignored;
    if (!std::filesystem::exists(ToPath(file), ignored))
        return std::nullopt;
    // Writing follows links.
    const std::filesystem::path reached = std::filesystem::weakly_canonical(ToPath(file), ignored);
    if (IsPersonsWork(file) || IsPersonsWork(PathText(reached)))
        return TextId::ListInPlaceOfOther;
    return std::nullopt;
}
