// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ExitStatus.h"
#include "cli/HistoryOptions.h"
#include "cli/Messages.h"
#include "cli/Output.h"
#include "cli/TerminalDocument.h"
#include "rows/CsvLine.h"
#include "settings/Texts.h"

#include <string>

// Opens the logbook of a command, with a filter file ("" = none), and prints the list that `makeList` makes
// of the document: its Write(form, stream). Without a filter file the document has no rows. Returns the exit
// status; failures are reported on standard error, and an output file then stays as it was.
template <typename MakeList>
int PrintHistory(const HistoryOptions& options, const std::string& filters, MakeList makeList) {
    const OutputPlace place{options.Output, options.MessageLanguage};
    if (RefusesOutput(place, {options.File, filters}))
        return ExitStatus::Failed;
    TerminalDocument document({.Files = {options.File, filters, options.Output},
                               .Filters = {}, // rows cost time and memory
                               .ArchiveFilters = UserInterface::Answer::No,
                               .MessageLanguage = options.MessageLanguage,
                               .Partial = options.Partial});
    if (!document.Open(options.File, {.Filters = filters}))
        return ExitStatus::Failed;
    document.RemoveFiles();
    if (!document.HasEvents())
        return document.FailForNothingRead();
    if (!document.HasRows())
        return Fail(std::string(Text(TextId::FilterFailed, options.MessageLanguage)));
    const auto list = makeList(document);
    return document.StatusOf(WriteOutput(place, [&](std::ostream& stream, bool isTerminal) {
        RowForm form = options.Form;
        form.ControlsAreVisible = isTerminal;
        list.Write(form, stream);
        stream.flush();
    }));
}
