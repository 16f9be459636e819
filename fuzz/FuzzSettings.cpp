// SPDX-License-Identifier: MIT
// Any bytes as the settings file.
#include "FuzzSupport.h"
#include "filter/FilterStorage.h"
#include "settings/JsonSettings.h"
#include "settings/Language.h"
#include "settings/Registry.h"

#include <algorithm>
#include <array>

namespace {

struct NamedSetting {
    std::string_view SubKey;
    std::string_view Name;
};

// Some of the program's settings, which a change of the filters must leave as they are.
constexpr std::array<NamedSetting, 6> Others{{
    {SubKeys::None, "DialogLanguage"},
    {SubKeys::None, "MainLeft"},
    {SubKeys::Logbook, "InitLogbookDir"},
    {SubKeys::Logbook, "InitLogbookFile"},
    {SubKeys::FilterDialog, "Left"},
    {SubKeys::StringFilterDialog, "Left"},
}};

std::vector<SettingValue> OtherSettings(const Registry& registry) {
    std::vector<SettingValue> values;
    for (const auto& [subKey, name] : Others)
        for (const SettingType type : {SettingType::Text, SettingType::Integer})
            values.push_back(registry.ReadSetting(name, std::string(), type, subKey));
    return values;
}

// A key in the place of a value stays.
bool IsKey(const std::string& path, const char* name) {
    const auto root = JsonSettings::Json::parse(ContentOf(path));
    return root.contains(name) && root[name].is_object();
}

bool CanBeStored(const FilterLists& lists) {
    const auto hasNone = [](const auto& filter) { return ObstacleOf(filter) == StorageObstacle::None; };
    return std::all_of(lists.Filters.begin(), lists.Filters.end(), hasNone) &&
           std::all_of(lists.StringFilters.begin(), lists.StringFilters.end(), hasNone);
}

void CheckLists(const FilterLists& lists) {
    Check(!lists.Filters.empty());
    for (const FilterDefinition& filter : lists.Filters)
        for (const std::string& text : {filter.StringFilter, filter.Name, filter.Emitter})
            Check(IsUtf8(text) && text.find('|') == std::string::npos);
    for (const StringFilter& filter : lists.StringFilters)
        Check(IsUtf8(filter.FilterString) && IsUtf8(filter.Comment));
}

// What has been read can be saved and is read back, and the rest of the file is as it was.
void CheckSaving(JsonSettings& store, const std::string& path) {
    Registry registry(store);
    const std::vector<SettingValue> others = OtherSettings(registry);
    FilterLists lists = LoadFilters(registry, {});
    CheckLists(lists);
    Check(CanBeStored(lists));
    SaveFilters(registry, lists, "/folder");
    JsonSettings anew(path);
    for (const Registry& reader : {registry, Registry(anew)}) {
        FilterLists again = LoadFilters(reader, {});
        Check(again.StringFilters.back() == StringFilter());
        again.StringFilters.pop_back();
        Check(again == lists);
        Check(OtherSettings(reader) == others);
        Check(reader.ReadFilterSettingString("InitFilterDir", "") == "/folder");
    }

    WriteLanguage(registry, {Language::German});
    Check(ReadLanguage(registry).Number == Language::German || IsKey(path, "DialogLanguage"));
    FilterDefinition filter = lists.Filters.front();
    filter.FilterType = FilterTypes::Numbers;
    filter.StringFilter = std::string(RoomForText(filter), '7');
    if (RoomForText(filter) > 0) {
        WriteFilter(registry, 0, filter);
        Check(LoadFilterList(registry).Filters.front() == filter);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ScratchFolder folder;
    const std::string path = folder.Write("Qorvix.json", TextOf(data, size));
    const std::string content = ContentOf(path);
    JsonSettings store(path);
    CheckSaving(store, path);

    // What could not be read as settings is kept.
    const std::filesystem::path kept = path + ".damaged";
    const bool isKept = std::filesystem::exists(kept);
    Check(isKept || content.empty() || JsonSettings::Json::accept(content));
    Check(!isKept || ContentOf(kept) == content);
    Check(JsonSettings::Json::accept(ContentOf(path)));
    return 0;
}
