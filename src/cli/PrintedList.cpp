// SPDX-License-Identifier: MIT
#include "cli/PrintedList.h"

#include "base/Paths.h"
#include "base/StopRequest.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "cli/Output.h"
#include "cli/TerminalDocument.h"
#include "filter/FilterStorage.h"
#include "rows/RowWriter.h"
#include "settings/Registry.h"
#include "settings/Texts.h"

namespace {

// The filters that are active where neither a file nor an archive brings others.
std::vector<FilterDefinition> FiltersAtFirst(const ListOptions& options) {
    if (!options.StoredFilters)
        return DefaultFilters();
    const auto settings = MakeUserSettings();
    return LoadFilterList(Registry(*settings)).Filters;
}

} // namespace

int PrintList(const ListOptions& options,
              const std::function<LogbookRows(const EntryTable& entries, const LogbookRows& rows)>& choose) {
    using Answer = UserInterface::Answer;
    const OutputPlace place{options.Output, options.MessageLanguage};
    if (RefusesOutput(place, {options.File, options.Filters}))
        return ExitStatus::Failed;
    TerminalDocument document({.Files = {options.File, options.Filters, options.Output},
                               .Filters = FiltersAtFirst(options),
                               .ArchiveFilters = options.ArchiveFilters ? Answer::Yes : Answer::No,
                               .MessageLanguage = options.MessageLanguage,
                               .Partial = options.Partial});
    if (!document.Open(options.File, {.Filters = options.Filters}))
        return ExitStatus::Failed;
    document.RemoveFiles();
    if (options.Partial && !document.HasEvents())
        return document.FailForNothingRead();
    // Without comments that could not be read the list is printed all the same, as the window shows it.
    if (!document.HasRows())
        return Fail(std::string(Text(TextId::FilterFailed, options.MessageLanguage)));
    // Memory does not grow with the rows printed.
    const auto print = [&](const LogbookRows& rows) {
        return WriteOutput(place, [&](std::ostream& stream, bool isTerminal) {
            RowForm form = options.Form;
            form.ControlsAreVisible = isTerminal;
            form.Words = options.MessageLanguage;
            form.Title = PathText(ToPath(options.File).filename());
            WriteRows(document.Entries(), rows, form, stream, [](double) { return !StopRequest::IsMade(); });
        });
    };
    if (!choose)
        return document.StatusOf(print(document.Rows()));
    const LogbookRows rows = choose(document.Entries(), document.Rows());
    const int printed = document.StatusOf(print(rows));
    return rows.empty() && printed == ExitStatus::Done ? ExitStatus::Failed : printed;
}
