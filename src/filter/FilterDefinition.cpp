// SPDX-License-Identifier: MIT
#include "filter/FilterDefinition.h"

namespace {
constexpr std::array<TextId, FilterTypes::Count> LabelIds{
    TextId::FilterTypeAll,     TextId::FilterTypeInfo,   TextId::FilterTypeWarning, TextId::FilterTypeError,
    TextId::FilterTypeFatal,   TextId::FilterTypeStatus, TextId::FilterTypeKey,     TextId::FilterTypeRestart,
    TextId::FilterTypeNumbers, TextId::FilterTypeKeystr};
}

std::vector<StringFilter> DefaultStringFilters(Language language) {
    return {{"N938", std::string(Text(TextId::StringFilterN938, language))},
            {"N940", std::string(Text(TextId::StringFilterN940, language))}};
}

std::string_view FilterTypeLabels::Label(std::int16_t filterType) const {
    return Text(LabelIds[static_cast<std::size_t>(filterType)], language_);
}

std::int16_t FilterTypeLabels::FilterTypeIndex(std::string_view label) const {
    for (std::int16_t filterType = 0; filterType < FilterTypes::Count; ++filterType)
        if (Label(filterType) == label)
            return filterType;
    return -1;
}
