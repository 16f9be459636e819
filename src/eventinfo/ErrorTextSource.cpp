// SPDX-License-Identifier: MIT
#include "eventinfo/ErrorTextSource.h"

#include "base/AsciiCase.h"
#include "eventinfo/LanguageFile.h"

#include <algorithm>
#include <set>
#include <tuple>
#include <utility>

void ErrorTextSource::Choose(std::vector<Found> found, Language language) {
    std::sort(found.begin(), found.end(), [](const Found& a, const Found& b) {
        return std::tie(a.Depth, a.From) < std::tie(b.Depth, b.From);
    });
    std::set<std::string> taken;
    std::uint64_t bytes = 0;
    for (Found& text : found) {
        if (!taken.insert(LowerCase(text.File.PlaceName())).second)
            continue;
        if (text.Size > static_cast<std::uint64_t>(LanguageFile::LargestSize)) {
            tooLarge_.push_back(text.File.PlaceName());
            continue;
        }
        bytes += text.Size;
        if (files_.size() == MostFiles || bytes > MostBytes) {
            files_.clear();
            places_.clear();
            problem_ = Text(TextId::ErrorTextsTooMany, language);
            return;
        }
        files_.push_back(std::move(text.File));
        places_.push_back(text.Place);
    }
}
