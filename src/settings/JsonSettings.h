// SPDX-License-Identifier: MIT
#pragma once

#include "base/AsciiCase.h"
#include "base/FileState.h"
#include "settings/SettingsStore.h"

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <utility>

// The settings in one JSON file: objects are keys, texts and integers are values. The file holds only what
// lies below ApplicationKey.
//
// Every change reads the file again and replaces it as a whole, under a lock that every running copy of the
// program takes, so that copies never lose each other's values. A file that cannot be parsed reads as empty;
// the change that replaces it keeps it as "<file>.damaged", with a number behind the name when that file
// exists. A file that cannot be read, or is not regular, reads as empty and is never replaced. A change never
// makes a file too large to be read.
class JsonSettings : public SettingsStore {
  public:
    // Finds members of an object without regard to case.
    template <typename Key, typename Value, typename, typename Allocator>
    using Members = std::map<Key, Value, LessWithoutCase, Allocator>;
    using Json = nlohmann::basic_json<Members>;

    explicit JsonSettings(std::string file) : file_(std::move(file)) {}
    ~JsonSettings() override;
    JsonSettings(const JsonSettings&) = delete;
    JsonSettings& operator=(const JsonSettings&) = delete;

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
