// SPDX-License-Identifier: MIT
#pragma once

#include "settings/SettingsStore.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// The key of all settings of the program; they lie in it directly or in its sub-keys.
inline constexpr std::string_view ApplicationKey = "Software\\VELTRANDOR\\Qorvix";

// Its sub-keys.
namespace SubKeys {
inline constexpr std::string_view None = "";
inline constexpr std::string_view Logbook = "Logbook";
inline constexpr std::string_view Filters = "Logbook\\Filters";
inline constexpr std::string_view FilterDialog = "LogbookFilter";
inline constexpr std::string_view StringFilterDialog = "StringFilter";
} // namespace SubKeys

// The kind of a value to read or write. For any other number a read gives its default, and a write makes the
// key and stores nothing.
enum class SettingType { Text = 1, Integer = 4 };

// The program's operations on the settings. None reports an error: a read that finds no value of the wanted
// kind gives the caller's default, and a write that fails leaves the settings as they were. Both may throw
// std::bad_alloc: a default that stands for a value which there was no memory to read would be stored as it.
class Registry {
  public:
    explicit Registry(SettingsStore& store) : store_(store) {}

    // In characters. A longer text reads as the default. A text ends before its first NUL.
    static constexpr std::size_t LongestText = 1023;

    // False when a stored text (UTF-8) would not be read back unchanged because it is too long.
    static bool IsReadBack(std::string_view text);

    void WriteRegistryValue(std::string_view keyPath, std::string_view valueName, const SettingValue& value,
                            SettingType type);
    SettingValue ReadRegistryValue(std::string_view keyPath, std::string_view valueName,
                                   const SettingValue& defaultValue, SettingType type) const;

    // The same below ApplicationKey; an empty sub-key means that key itself.
    void WriteSetting(std::string_view valueName, const SettingValue& value, SettingType type,
                      std::string_view subKey = SubKeys::None);
    SettingValue ReadSetting(std::string_view valueName, const SettingValue& defaultValue, SettingType type,
                             std::string_view subKey = SubKeys::None) const;
    std::string ReadSettingString(std::string_view valueName, std::string_view defaultText,
                                  std::string_view subKey = SubKeys::None) const;
    std::int32_t ReadSettingLong(std::string_view valueName, std::int32_t defaultNumber,
                                 std::string_view subKey = SubKeys::None) const;

    // The same for one sub-key each.
    std::int32_t ReadLogbookSettingLong(std::string_view name, std::int32_t defaultNumber) const;
    std::string ReadLogbookSettingString(std::string_view name, std::string_view defaultText) const;
    // For a caller to whom the kind is known only when the program runs; the window knows each.
    SettingValue ReadLogbookSetting(std::string_view name, const SettingValue& defaultValue,
                                    SettingType type) const;
    void WriteLogbookSetting(std::string_view name, const SettingValue& value, SettingType type);
    std::string ReadFilterSettingString(std::string_view name, std::string_view defaultText) const;
    std::int32_t ReadFilterSettingLong(std::string_view name, std::int32_t defaultNumber) const;
    void WriteFilterSetting(std::string_view name, const SettingValue& value, SettingType type);

    // Deletes the key of the filters with all its values.
    void DeleteFilterKey();

    // While one of these lives, the registry collects its writes and deletions; the destructor makes all of
    // them at once, or none of them when an exception has ended their scope. Reads see only what is stored. A
    // second one at the same time is a mistake of the program: its constructor throws std::logic_error.
    class Transaction {
      public:
        explicit Transaction(Registry& registry);
        ~Transaction();
        Transaction(const Transaction&) = delete;
        Transaction& operator=(const Transaction&) = delete;

      private:
        Registry& registry_;
        int exceptionsBefore_;
    };

  private:
    void Change(SettingsChange change);
    void Store(const std::vector<SettingsChange>& changes);

    SettingsStore& store_;
    bool collecting_ = false;
    std::vector<SettingsChange> collected_;
};

// The settings of the user who runs the program, in this platform's place for them.
std::unique_ptr<SettingsStore> MakeUserSettings();
