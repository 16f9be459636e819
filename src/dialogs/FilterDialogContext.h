// SPDX-License-Identifier: MIT
#pragma once

#include "base/CodePage.h"
#include "filter/FilterDefinition.h"
#include "filter/LogbookNames.h"

class Registry;

// What the filter dialogs take from the program.
struct FilterDialogContext {
    Registry& Settings;
    CodePage FileCodePage; // of filter files
    Language DialogLanguage;
    FilterTypeLabels Labels; // as the program has them: they do not follow every dialog language
    LogbookNames Names;      // of the logbook that is loaded
};
