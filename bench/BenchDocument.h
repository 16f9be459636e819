// SPDX-License-Identifier: MIT
#pragma once

#include "document/LogbookDocument.h"
#include "settings/Registry.h"

#include <memory>

// What a main window works on, with the settings of the user who measures.
struct BenchDocument {
    std::unique_ptr<SettingsStore> Store = MakeUserSettings();
    Registry Settings{*Store};
    TempFolder Temp;
    StoredActiveFilters Filters{Settings};
    LogbookDocument Document{
        {.Filters = Filters, .Settings = Settings, .Temp = Temp}, CodePage(), Temp.Path()};
};
