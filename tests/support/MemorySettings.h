// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsStore.h"

#include <map>
#include <utility>

// Settings in memory, for a test. Counts its writes.
class MemorySettings : public SettingsStore {
  public:
    std::optional<SettingValue> Read(std::string_view keyPath, std::string_view name) const override {
        const auto found = Values.find({std::string(keyPath), std::string(name)});
        return found == Values.end() ? std::nullopt : std::optional(found->second);
    }

    bool Change(const std::vector<SettingsChange>& changes) override {
        ++Writes;
        for (const SettingsChange& change : changes) {
            if (change.What == SettingsChange::Kind::DeleteKey)
                std::erase_if(Values, [&](const auto& value) { return value.first.first == change.KeyPath; });
            if (change.What == SettingsChange::Kind::WriteValue)
                Values[{change.KeyPath, change.Name}] = change.Value;
        }
        return true;
    }

    std::map<std::pair<std::string, std::string>, SettingValue> Values; // by key path and name
    int Writes = 0;
};
