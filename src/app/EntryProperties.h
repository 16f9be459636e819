// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/FacilityFile.h"
#include "rows/RowRanges.h"
#include "settings/Language.h"

#include <functional>

class LogbookModel;
class QWidget;
class LogbookDocument;

// What the event entry dialog tells the window.
struct EntryPropertiesEvents {
    std::function<void(int row)> CommentChanged;
    std::function<void(const FacilityFileMistake& mistake)> LookedUp; // each lookup of error texts
};

// Shows the event entry dialog for each of these rows, from the first to the last, and writes a changed
// comment into its entry. Closing the dialog by its title bar ends the row of dialogs.
void ShowEntryDialogs(const RowRanges& rows, LogbookDocument& document, LogbookModel& model,
                      Language language, QWidget* parent, const EntryPropertiesEvents& events);
