// SPDX-License-Identifier: MIT
#pragma once

#include "comments/Comments.h"
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

// Who shows a LogbookDocument. The document asks the person through it, and reports what becomes of the
// logbook. What a view does not show it need not answer.
class DocumentView {
  public:
    virtual ~DocumentView() = default;

    virtual UserInterface& User() = 0;
    virtual ReadingProgress& Progress() = 0;
    virtual Language DialogLanguage() const = 0;

    // The logbook with this bare name is open.
    virtual void LogbookIsOpen(std::string_view) {}

    // A read in the order of its steps. When it begins, the rows and comments of the logbook before are gone.
    // LogbookIsRead gives the name of the file; it does not come for a file that could not be read.
    // MessageFollows comes where messages are about to be shown; whether the person wants the read to stop is
    // asked behind it.
    virtual void ReadingBegins() {}
    virtual void LogbookIsRead(std::string_view) {}
    virtual void ReadingEnds() {}
    virtual void MessageFollows() {}

    // A filter run over the logbook that is open.
    virtual void FilteringBegins() {}
    virtual void FilteringEnds() {}
    virtual void FilterProgress(double) {} // percent

    // What went wrong. These come when the read or the run has ended, and the person does not want it to
    // stop. ReadingFailed has one of LoadStates; after a run that FilteringFailed reports, it comes only for
    // a read.
    virtual void CommentsFailed(const std::string&, const CommentsFileResult&) {} // the name of their file
    virtual void FilteringFailed() {}
    virtual void ReadingFailed(std::int16_t) {}

    // Whether a logbook that was read, and whose rows could not be made, counts as open.
    virtual bool OpensWithoutRows() const { return false; }

    // How many rows there are, after either.
    virtual void ShowCounts() {}

    // Changes the rows; they may be shown before and after, not during the change.
    virtual void ChangeRows(const std::function<void()>& change) { change(); }

    // The entry of the selected row, and the row (from 0) to select instead of it after a filter run.
    virtual std::optional<EntryNumber> SelectedEntry() const { return std::nullopt; }
    virtual void SelectRow(std::size_t) {}

    // How far an archive has been written, in percent; 0 when that has ended.
    virtual void PackingProgress(double) {}

    // Comments of any entries have changed.
    virtual void CommentsAreChanged() {}

    // Whether comments that are not saved would survive a crash; the error says why not.
    virtual void CommentsAreSafe(std::error_code) {}
};
