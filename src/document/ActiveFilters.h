// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "settings/Language.h"

#include <utility>
#include <vector>

class Registry;

// The active filters of a document, which decide what its rows are and go into its archives.
class ActiveFilters {
  public:
    virtual ~ActiveFilters() = default;

    virtual std::vector<FilterDefinition> Load() const = 0;

    // Makes these the active filters. False when one of them could not be kept: then nothing changes.
    virtual bool Replace(std::vector<FilterDefinition> filters, Language language) = 0;
};

// The filters of the person's settings: what the person changes in the filter dialog or in the list is active
// at once.
class StoredActiveFilters : public ActiveFilters {
  public:
    // The settings must outlive this.
    explicit StoredActiveFilters(Registry& registry) : registry_(registry) {}

    std::vector<FilterDefinition> Load() const override;
    // A filter too long for the settings cannot be kept: it would take the whole list with it.
    bool Replace(std::vector<FilterDefinition> filters, Language language) override;

  private:
    Registry& registry_;
};

// Filters that are active for one run of the program. Any filter can be kept.
class ActiveFiltersOfRun : public ActiveFilters {
  public:
    explicit ActiveFiltersOfRun(std::vector<FilterDefinition> filters) : filters_(std::move(filters)) {}

    std::vector<FilterDefinition> Load() const override { return filters_; }
    bool Replace(std::vector<FilterDefinition> filters, Language) override {
        filters_ = std::move(filters);
        return true;
    }

  private:
    std::vector<FilterDefinition> filters_;
};
