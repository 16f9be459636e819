// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterText.h"
#include "filter/FiltersFromEntries.h"
#include "settings/Registry.h"
#include "support/MemorySettings.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

// What tests of filters that collect entries share: stored filters in their text form.
class FiltersFromEntriesTest : public testing::Test {
  protected:
    using Texts = std::vector<std::string>;

    // Stores filters in their text form.
    void Store(const Texts& filters) {
        for (std::size_t i = 0; i < filters.size(); ++i)
            Settings.WriteFilterSetting("Filter" + std::to_string(i + 1), filters[i], SettingType::Text);
        Settings.WriteFilterSetting("FilterCount", static_cast<std::int32_t>(filters.size()),
                                    SettingType::Integer);
        Memory.Writes = 0;
    }

    // The filters as the next filter run reads them.
    Texts Loaded() const {
        Texts texts;
        for (const FilterDefinition& filter : LoadFilters(Settings, {}).Filters)
            texts.push_back(FormatFilter(filter));
        return texts;
    }

    // A list of numbers with gaps between them, as long as it can get within so many characters.
    static std::string ListOfLength(std::size_t length) {
        std::string list = "100";
        for (EntryNumber number = 102; list.size() + 4 <= length; number += 2)
            list += "," + std::to_string(number);
        return list + std::string(length - list.size(), ' ');
    }

    // The numbers that the filters with this action hold.
    static std::set<EntryNumber> Numbers(const Texts& filters, char action) {
        std::set<EntryNumber> numbers;
        for (const std::string& text : filters) {
            FilterDefinition filter;
            if (text[0] != action || !ParseFilter(text, filter) || filter.FilterType != FilterTypes::Numbers)
                continue;
            for (const NumberRange& range : ParseNumberList(filter.StringFilter))
                for (EntryNumber number = range.First; number <= range.Last; ++number)
                    numbers.insert(number);
        }
        return numbers;
    }

    MemorySettings Memory;
    Registry Settings{Memory};
};
