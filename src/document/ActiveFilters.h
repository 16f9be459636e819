// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "settings/Language.h"

#include <utility>
#include <vector>

class Registry;

// The active filters of a document. They decide which rows it has, and go into its archives.
class ActiveFilters {
  public:
    virtual ~ActiveFilters() = default;

    virtual std::vector<FilterDefinition> Load() const = 0;

    // Makes these the active filters. False when one of them could not be kept: then nothing changes.
    virtual bool Replace(std::vector<FilterDefinition> filters, Language language) = 0;
};

// The filters of the person's settings. Changes that the person makes in the filter dialog or in the list are
// active at once.
class StoredActiveFilters : public ActiveFilters {
  public:
    // The settings must outlive this.
    explicit StoredActiveFilters(Registry& registry) : registry_(registry) {}

    std::vector<FilterDefinition> Load() const override;
    // A filter that is too long for the settings cannot be kept: the whole list would be lost with it.
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
