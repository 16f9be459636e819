// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsStore.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Settings that last as long as this object, and have no values at first. The tool works with them where the
// person's own must stay as they are.
class TransientSettings : public SettingsStore {
  public:
    std::optional<SettingValue> Read(std::string_view keyPath, std::string_view name) const override {
        const auto found = Values.find({std::string(keyPath), std::string(name)});
        return found == Values.end() ? std::nullopt : std::optional(found->second);
    }

    bool Change(const std::vector<SettingsChange>& changes) override {
        for (const SettingsChange& change : changes) {
            if (change.What == SettingsChange::Kind::DeleteKey)
                std::erase_if(Values, [&](const auto& value) { return value.first.first == change.KeyPath; });
            if (change.What == SettingsChange::Kind::WriteValue)
                Values[{change.KeyPath, change.Name}] = change.Value;
        }
        return true;
    }

    std::map<std::pair<std::string, std::string>, SettingValue> Values; // by key path and name
};
