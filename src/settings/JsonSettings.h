// SPDX-License-Identifier: MIT
#pragma once

#include "base/AsciiCase.h"
#include "base/FileState.h"
#include "settings/SettingsStore.h"

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <utility>

// The settings in one JSON file: objects are keys, texts and integers are values. The file holds what lies
// below ApplicationKey; other key paths have no place in it.
//
// Every change reads the file anew, replaces it as a whole, and does so under a lock that every running copy
// of the program takes, so that copies never lose each other's values. A file that cannot be parsed reads as
// empty and is kept as "<file>.damaged" when a change replaces it; one that is kept already is kept on, with
// a number behind its name. What cannot be read, or is no regular file, reads as empty and is never replaced.
// A file is never made larger than one that is read.
class JsonSettings : public SettingsStore {
  public:
    // Members of an object are found without case.
    template <typename Key, typename Value, typename, typename Allocator>
    using Members = std::map<Key, Value, LessWithoutCase, Allocator>;
    using Json = nlohmann::basic_json<Members>;

    explicit JsonSettings(std::string file) : file_(std::move(file)) {}

    // VELTRANDOR/Qorvix.json under $XDG_CONFIG_HOME or ~/.config.
    static std::string UserFile();

    std::optional<SettingValue> Read(std::string_view keyPath, std::string_view name) const override;
    bool Change(const std::vector<SettingsChange>& changes) override;

  private:
    enum class Content { Missing, Whole, Damaged, Unreadable };

    Content Load(Json& root) const;
    const Json& Current() const;
    bool KeepDamaged() const;
    bool Store(const Json& root, Content before);

    std::string file_;
    mutable FileState knownState_; // a change always makes a new file
    mutable Json known_ = Json::object();
};
