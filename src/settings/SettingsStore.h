// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// A value of the settings: text (UTF-8) or a signed 32-bit integer; the kind is kept.
//
// It copies a text by itself: where there is no memory for that, libstdc++'s variant destroys a value that it
// never made.
class SettingValue : public std::variant<std::string, std::int32_t> {
  public:
    using Base = std::variant<std::string, std::int32_t>;
    using Base::Base;

    SettingValue() = default;
    ~SettingValue() = default;
    SettingValue(const SettingValue& other) : Base(CopyOf(other)) {}
    SettingValue(SettingValue&&) noexcept = default;
    SettingValue& operator=(const SettingValue& other) {
        Base::operator=(CopyOf(other));
        return *this;
    }
    SettingValue& operator=(SettingValue&&) noexcept = default;

  private:
    static Base CopyOf(const Base& other) {
        if (const auto* const text = std::get_if<std::string>(&other))
            return std::string(*text);
        return std::get<std::int32_t>(other);
    }
};

// One step of a change. Key paths are relative to the user's settings; "\" separates their parts.
struct SettingsChange {
    enum class Kind { CreateKey, WriteValue, DeleteKey };

    Kind What = Kind::WriteValue;
    std::string KeyPath;
    std::string Name;   // for WriteValue
    SettingValue Value; // for WriteValue
};

// Keeps the settings of a user: keys that hold named values and further keys. Names of keys and values
// compare without case. Nothing here reports an error.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    // The value, or nothing when there is no such key or value.
    virtual std::optional<SettingValue> Read(std::string_view keyPath, std::string_view name) const = 0;

    // Makes the changes in their order, as one write where the store can. A change that cannot be made does
    // not prevent the others. False when not all were made. A write that fails leaves the store as it was.
    virtual bool Change(const std::vector<SettingsChange>& changes) = 0;
};
