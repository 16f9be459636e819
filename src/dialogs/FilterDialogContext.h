// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "filter/FilterDefinition.h"
#include "filter/LogbookNames.h"

class Registry;

// What the filter dialogs need from the program.
struct FilterDialogContext {
    Registry& Settings;
    CodePage FileCodePage; // of filter files
    Language DialogLanguage;
    FilterTypeLabels Labels; // the program's: they do not follow every dialog language
    LogbookNames Names;      // of the loaded logbook
};
