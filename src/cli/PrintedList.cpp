// SPDX-License-Identifier: MIT
#include "cli/PrintedList.h"

#include "base/AtomicFile.h"
#include "base/DeviceStream.h"
#include "base/FileProblem.h"
#include "base/FollowLinks.h"
#include "base/Paths.h"
#include "base/StopRequest.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "cli/RowWriter.h"
#include "cli/TerminalDocument.h"
#include "filter/FilterStorage.h"
#include "settings/ReasonText.h"
#include "settings/Registry.h"
#include "settings/Texts.h"

#include <filesystem>

namespace {

void WriteRows(const EntryTable& entries, const LogbookRows& rows, const ListOptions& options,
               std::ostream& stream, bool isTerminal = false) {
    const auto writer = MakeRowWriter({.Format = options.Format,
                                       .Separator = options.Separator,
                                       .ByteOrderMark = options.ByteOrderMark,
                                       .Raw = options.Raw,
                                       .ControlsAreVisible = isTerminal});
    writer->WriteHeader(stream);
    for (const LogbookRow& row : rows) {
        writer->WriteRow(entries, row, stream);
        if (!stream || StopRequest::IsMade())
            return;
    }
    stream.flush();
}

// A pipe or a device cannot be replaced by a file, so it is written to.
bool IsDevice(const std::string& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(ToPath(path), ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
           !std::filesystem::is_directory(status);
}

// The filters that are active where neither a file nor an archive brings others.
std::vector<FilterDefinition> FiltersAtFirst(const ListOptions& options) {
    if (!options.StoredFilters)
        return DefaultFilters();
    const auto settings = MakeUserSettings();
    return LoadFilterList(Registry(*settings)).Filters;
}

// True when writing the list would take the place of what it is made from.
bool ReplacesItsSource(const ListOptions& options) {
    std::error_code noSuchFile;
    const auto isOutput = [&](const std::string& file) {
        return std::filesystem::equivalent(ToPath(file), ToPath(options.Output), noSuchFile);
    };
    return !options.Output.empty() && !IsDevice(options.Output) &&
           (isOutput(options.File) || isOutput(options.Filters));
}

// Memory does not grow with the rows printed.
int PrintRows(const ListOptions& options, const EntryTable& entries, const LogbookRows& rows) {
    const auto text = [&](TextId id) { return std::string(Text(id, options.MessageLanguage)); };
    if (options.Output.empty()) {
        DeviceStream output;
        WriteRows(entries, rows, options, output.Stream(), output.IsTerminal());
        return output.Stream() ? ExitStatus::Done : Fail(text(TextId::ListNotWritten));
    }
    const auto cannotWrite = [&](const std::error_code& error) {
        return Fail(options.Output + ": " + ReasonText(error, options.MessageLanguage));
    };
    if (IsDevice(options.Output)) {
        std::error_code error;
        FollowLinks(ToPath(options.Output), error);
        if (error == FileProblem::ForeignLink)
            return cannotWrite(error);
        DeviceStream output(options.Output);
        WriteRows(entries, rows, options, output.Stream(), output.IsTerminal());
        return output.Stream() ? ExitStatus::Done : Fail(options.Output + text(TextId::FileNotWritten));
    }
    AtomicFile file(options.Output);
    WriteRows(entries, rows, options, file.Stream());
    if (StopRequest::IsMade())
        return ExitStatus::Failed;
    if (const std::error_code error = file.Commit())
        return cannotWrite(error);
    return ExitStatus::Done;
}

} // namespace

int PrintList(const ListOptions& options,
              const std::function<LogbookRows(const EntryTable& entries, const LogbookRows& rows)>& choose) {
    using Answer = UserInterface::Answer;
    if (ReplacesItsSource(options))
        return Fail(options.Output + ": " +
                    std::string(Text(TextId::ListInPlaceOfSource, options.MessageLanguage)));
    TerminalDocument document({.Files = {options.File, options.Filters, options.Output},
                               .Filters = FiltersAtFirst(options),
                               .ArchiveFilters = options.ArchiveFilters ? Answer::Yes : Answer::No,
                               .MessageLanguage = options.MessageLanguage});
    if (!document.Open(options.File, {.Filters = options.Filters}))
        return ExitStatus::Failed;
    document.RemoveFiles();
    // Without comments that could not be read the list is printed all the same, as the window shows it.
    if (!document.HasRows())
        return Fail(std::string(Text(TextId::FilterFailed, options.MessageLanguage)));
    if (!choose)
        return PrintRows(options, document.Entries(), document.Rows());
    const LogbookRows rows = choose(document.Entries(), document.Rows());
    const int printed = PrintRows(options, document.Entries(), rows);
    return rows.empty() ? ExitStatus::Failed : printed;
}
