// SPDX-License-Identifier: MIT
#pragma once

#include "comments/Comments.h"
#include "document/NumbersOfOthers.h"
#include "logbook/EntryTable.h"
#include "logbook/ReadingProgress.h"
#include "settings/Language.h"
#include "settings/UserInterface.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

// Shows a LogbookDocument. Through it the document asks the person, and reports what happens to the logbook.
// A view overrides only the reports that it shows.
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    virtual UserInterface& User() = 0;
    virtual ReadingProgress& Progress() = 0;
    virtual Language DialogLanguage() const = 0;

    // The logbook with this bare name is open.
    virtual void LogbookIsOpen(std::string_view) {}

    // The steps of a read, in their order. When it begins, the rows and comments of the previous logbook are
    // gone. LogbookIsRead has the name of the file; it is left out for a file that could not be read.
    // MessageFollows precedes messages; after it the document asks whether the person wants the read to stop.
    virtual void ReadingBegins() {}
    virtual void LogbookIsRead(std::string_view) {}
    virtual void ReadingEnds() {}
    virtual void MessageFollows() {}

    // A filter run over the logbook that is open.
    virtual void FilteringBegins() {}
    virtual void FilteringEnds() {}
    virtual void FilterProgress(double) {} // percent

    // Failures. They are reported after the read or the filter run has ended, and not when the person wanted
    // it to stop. ReadingFailed has one of LoadStates. A read whose filter run failed reports both.
    virtual void CommentsFailed(const std::string&, const CommentsFileResult&) {} // with their file's name
    virtual void FilteringFailed() {}
    virtual void ReadingFailed(std::int16_t) {}

    // Whether a logbook counts as open if an error ended its read; then it has the entries that were read
    // until then. LogbookIsUnfinished comes instead of LogbookIsRead.
    virtual bool TakesUnfinished() const { return false; }
    virtual void LogbookIsUnfinished() {}

    // Whether a logbook counts as open if it was read but its rows could not be made.
    virtual bool OpensWithoutRows() const { return false; }

    // Other filters may be in force than before (LogbookDocument::FiltersInForce).
    virtual void FiltersInForceChanged() {}

    // Told once for a logbook that was opened, last of all.
    virtual void NumbersOfOthersHide(const NumbersOfOthers&) {}

    // Shows how many rows there are, after a read or a filter run.
    virtual void ShowCounts() {}

    // Calls `change`, which changes the rows. During the call the view must not show them.
    virtual void ChangeRows(const std::function<void()>& change) { change(); }

    // The entry of the selected row, and the row (from 0) to select instead of it after a filter run.
    virtual std::optional<EntryNumber> SelectedEntry() const { return std::nullopt; }
    virtual void SelectRow(std::size_t) {}

    // How much of an archive has been written, in percent; 0 when the writing has ended.
    virtual void PackingProgress(double) {}

    // Comments have changed; any entry may be affected.
    virtual void CommentsAreChanged() {}

    // Whether unsaved comments would survive a crash; the error says why they would not.
    virtual void CommentsAreSafe(std::error_code) {}
};
