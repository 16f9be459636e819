// SPDX-License-Identifier: MIT
#pragma once

#include "filter/FilterDefinition.h"
#include "settings/Language.h"

#include <optional>
#include <string>
#include <string_view>
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

    // The identity (comments/LogbookIdentity.h) of the logbook that the filters by number were made for; ""
    // if that is not known. Nothing if they are always for the logbook at hand.
    virtual std::optional<std::string> NumbersMadeFor() const { return std::nullopt; }
    virtual void NumbersAreMadeFor(std::string_view) {}
};

// The filters of the person's settings. Changes that the person makes in the filter dialog or in the list are
// active at once. The logbook of the filters by number is a setting of its own beside them; the last change
// of such a filter counts.
class StoredActiveFilters : public ActiveFilters {
  public:
    // The settings must outlive this.
    explicit StoredActiveFilters(Registry& registry) : registry_(registry) {}

    std::vector<FilterDefinition> Load() const override;
    // A filter that is too long for the settings cannot be kept: the whole list would be lost with it.
    bool Replace(std::vector<FilterDefinition> filters, Language language) override;
    std::optional<std::string> NumbersMadeFor() const override;
    void NumbersAreMadeFor(std::string_view identity) override;

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
