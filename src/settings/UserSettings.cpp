// SPDX-License-Identifier: MIT
#include "settings/JsonSettings.h"
#include "settings/Registry.h"

std::unique_ptr<SettingsStore> MakeUserSettings() {
    return std::make_unique<JsonSettings>(JsonSettings::UserFile());
}
