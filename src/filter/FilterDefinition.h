// SPDX-License-Identifier: MIT
#pragma once

#include "settings/Language.h"
#include "settings/Texts.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// What a filter does with the entries that it matches.
namespace FilterActions {
inline constexpr std::int16_t Include = 1;
inline constexpr std::int16_t Exclude = 2;
inline constexpr std::int16_t Highlight = 3;
} // namespace FilterActions

// Filter types. 1 to 7 and 9 select the event type of the same number.
namespace FilterTypes {
inline constexpr std::int16_t All = 0;
inline constexpr std::int16_t Fatal = 4; // the last one that looks at name and sender
inline constexpr std::int16_t Numbers = 8;
inline constexpr std::int16_t Count = 10;
} // namespace FilterTypes

// One filter. An empty text sets no condition, but an empty number list matches no entry. A type outside 0 to
// 9 never matches. The texts are UTF-8 and compare exactly.
struct FilterDefinition {
    std::int16_t Action = FilterActions::Include;
    std::int16_t FilterType = FilterTypes::All;
    std::string StringFilter; // a part of the data, or the number list of type 8
    std::string Name;         // types 1 to 4: the whole name
    std::string Emitter;      // types 1 to 4: the whole sender
    bool Active = true;

    bool operator==(const FilterDefinition&) const = default;
};

// A predefined text that the filter dialogs offer, with a comment on what it finds.
struct StringFilter {
    std::string FilterString;
    std::string Comment;

    bool operator==(const StringFilter&) const = default;
};

// The filters of a user, in the order of the list.
struct FilterLists {
    std::vector<FilterDefinition> Filters;
    std::vector<::StringFilter> StringFilters;

    bool operator==(const FilterLists&) const = default;
};

// The list that replaces a missing or damaged one: it shows every entry.
inline std::vector<FilterDefinition> DefaultFilters() { return {FilterDefinition{}}; }

// The predefined texts of a fresh installation, with comments in this language.
std::vector<StringFilter> DefaultStringFilters(Language language);

// The senders that the filter definition offers, the empty text first: the components of the control's
// software.
inline constexpr std::array<std::string_view, 17> SenderChoices{
    "",     "GEO",  "IPO",    "PLC",  "HMI",   "EDIT", "SYS",  "MAIN", "PYTHON",
    "REMO", "SAFE", "MOTION", "TOOL", "CYCLE", "DATA", "DIAG", "BUS"};

// The labels of the filter types. The filter dialog shows them in its rows and reads them back. They follow
// the dialog language when it is English or German; any other language leaves them as they were.
class FilterTypeLabels {
  public:
    void SetLanguage(Language language) {
        if (language.Number == Language::English || language.Number == Language::German)
            language_ = language;
    }

    std::string_view Label(std::int16_t filterType) const;

    // The type whose label is exactly this text; -1 when there is none.
    std::int16_t FilterTypeIndex(std::string_view label) const;

  private:
    Language language_;
};
