// SPDX-License-Identifier: MIT
#include "settings/Registry.h"

#include "base/UnicodeCase.h"

#include <charconv>
#include <exception>
#include <new>
#include <optional>
#include <stdexcept>

namespace {

std::string KeyPathOf(std::string_view subKey) {
    std::string path(ApplicationKey);
    if (!subKey.empty())
        path.append("\\").append(subKey);
    return path;
}

std::string ToText(const SettingValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return std::to_string(*number);
    return std::get<std::string>(value);
}

std::optional<std::int32_t> ToInteger(const SettingValue& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value))
        return *number;
    const std::string& text = std::get<std::string>(value);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

} // namespace

bool Registry::IsReadBack(std::string_view text) { return CharacterCount(text) <= LongestText; }

void Registry::WriteRegistryValue(std::string_view keyPath, std::string_view valueName,
                                  const SettingValue& value, SettingType type) {
    SettingsChange change{SettingsChange::Kind::CreateKey, std::string(keyPath), std::string(valueName), {}};
    if (type == SettingType::Text) {
        change.What = SettingsChange::Kind::WriteValue;
        change.Value = ToText(value);
    } else if (type == SettingType::Integer) {
        if (const std::optional<std::int32_t> number = ToInteger(value)) {
            change.What = SettingsChange::Kind::WriteValue;
            change.Value = *number;
        }
    }
    Change(std::move(change));
}

SettingValue Registry::ReadRegistryValue(std::string_view keyPath, std::string_view valueName,
                                         const SettingValue& defaultValue, SettingType type) const {
    const std::optional<SettingValue> value = store_.Read(keyPath, valueName);
    if (!value)
        return defaultValue;
    if (type == SettingType::Integer)
        return std::holds_alternative<std::int32_t>(*value) ? *value : defaultValue;
    const auto* const text = std::get_if<std::string>(&*value);
    if (type != SettingType::Text || text == nullptr || !IsReadBack(*text))
        return defaultValue;
    return text->substr(0, text->find('\0'));
}

void Registry::WriteSetting(std::string_view valueName, const SettingValue& value, SettingType type,
                            std::string_view subKey) {
    WriteRegistryValue(KeyPathOf(subKey), valueName, value, type);
}

SettingValue Registry::ReadSetting(std::string_view valueName, const SettingValue& defaultValue,
                                   SettingType type, std::string_view subKey) const {
    return ReadRegistryValue(KeyPathOf(subKey), valueName, defaultValue, type);
}

std::string Registry::ReadSettingString(std::string_view valueName, std::string_view defaultText,
                                        std::string_view subKey) const {
    return std::get<std::string>(ReadSetting(valueName, std::string(defaultText), SettingType::Text, subKey));
}

std::int32_t Registry::ReadSettingLong(std::string_view valueName, std::int32_t defaultNumber,
                                       std::string_view subKey) const {
    return std::get<std::int32_t>(ReadSetting(valueName, defaultNumber, SettingType::Integer, subKey));
}

std::int32_t Registry::ReadLogbookSettingLong(std::string_view name, std::int32_t defaultNumber) const {
    return ReadSettingLong(name, defaultNumber, SubKeys::Logbook);
}

std::string Registry::ReadLogbookSettingString(std::string_view name, std::string_view defaultText) const {
    return ReadSettingString(name, defaultText, SubKeys::Logbook);
}

SettingValue Registry::ReadLogbookSetting(std::string_view name, const SettingValue& defaultValue,
                                          SettingType type) const {
    return ReadSetting(name, defaultValue, type, SubKeys::Logbook);
}

void Registry::WriteLogbookSetting(std::string_view name, const SettingValue& value, SettingType type) {
    WriteSetting(name, value, type, SubKeys::Logbook);
}

std::string Registry::ReadFilterSettingString(std::string_view name, std::string_view defaultText) const {
    return ReadSettingString(name, defaultText, SubKeys::Filters);
}

std::int32_t Registry::ReadFilterSettingLong(std::string_view name, std::int32_t defaultNumber) const {
    return ReadSettingLong(name, defaultNumber, SubKeys::Filters);
}

void Registry::WriteFilterSetting(std::string_view name, const SettingValue& value, SettingType type) {
    WriteSetting(name, value, type, SubKeys::Filters);
}

void Registry::DeleteFilterKey() {
    Change({SettingsChange::Kind::DeleteKey, KeyPathOf(SubKeys::Filters), {}, {}});
}

void Registry::Change(SettingsChange change) {
    if (collecting_)
        collected_.push_back(std::move(change));
    else
        Store({std::move(change)});
}

void Registry::Store(const std::vector<SettingsChange>& changes) {
    try {
        store_.Change(changes);
    } catch (const std::bad_alloc&) {
        // A write that fails: the settings are as they were.
    }
}

Registry::Transaction::Transaction(Registry& registry)
    : registry_(registry), exceptionsBefore_(std::uncaught_exceptions()) {
    if (registry_.collecting_)
        throw std::logic_error("a transaction of the settings within another");
    registry_.collecting_ = true;
}

Registry::Transaction::~Transaction() {
    registry_.collecting_ = false;
    if (std::uncaught_exceptions() == exceptionsBefore_)
        registry_.Store(registry_.collected_);
    registry_.collected_.clear();
}
