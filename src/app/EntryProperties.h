// SPDX-License-Identifier: MIT
#pragma once

#include "eventinfo/FacilityFile.h"
#include "rows/RowRanges.h"
#include "settings/Language.h"

#include <functional>

class LogbookModel;
class QWidget;
class LogbookDocument;

// What the event entry dialog reports to the window.
struct EntryPropertiesEvents {
    std::function<void(int row)> CommentChanged;
    std::function<void(const FacilityFileMistake& mistake)> LookedUp; // each lookup of error texts
};

// Shows the event entry dialog for one of these rows after the other, and writes changed comments into their
// entries. When the person closes the dialog by its title bar, no further one comes.
void ShowEntryDialogs(const RowRanges& rows, LogbookDocument& document, LogbookModel& model,
                      Language language, QWidget* parent, const EntryPropertiesEvents& events);
