// SPDX-License-Identifier: MIT
#include "cli/PrintedList.h"

#include "base/AtomicFile.h"
#include "base/FileProblem.h"
#include "base/FollowLinks.h"
#include "base/Paths.h"
#include "base/StopRequest.h"
#include "cli/Output.h"
#include "cli/ReadSource.h"
#include "cli/RowWriter.h"
#include "filter/Filter.h"
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

// The filters that the options name; false when that failed, which has then been told.
bool ChooseFilters(const ListOptions& options, const SourceLogbook& logbook, const CodePage& codePage,
                   std::vector<FilterDefinition>& filters) {
    const SourceFile file = logbook.Filters(options.Filters);
    if (!file.Path.empty())
        return ReadFilters(file, filters, options.MessageLanguage, codePage);
    if (options.StoredFilters) {
        const auto settings = MakeUserSettings();
        filters = LoadFilters(Registry(*settings), options.MessageLanguage).Filters;
    }
    return true;
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

} // namespace

bool ReadList(const ListOptions& options, SourceLogbook& logbook, LogbookRows& rows) {
    using Answer = UserInterface::Answer;
    if (ReplacesItsSource(options)) {
        Fail(options.Output + ": " + std::string(Text(TextId::ListInPlaceOfSource, options.MessageLanguage)));
        return false;
    }
    const CodePage codePage = CodePage::OfUser();
    const TempFolder tempFolder(TempFolder::SystemFolder(),
                                KeptFiles({options.File, options.Filters, options.Output}));
    TerminalUser user(options.ArchiveFilters ? Answer::Yes : Answer::No);
    std::vector<FilterDefinition> filters = DefaultFilters();
    if (!ReadSource(options.File, logbook, tempFolder, user, options.MessageLanguage, codePage) ||
        !ChooseFilters(options, logbook, codePage, filters))
        return false;
    // Comments that cannot be read are told; the list is printed without them, as the window shows it.
    if (const SourceFile comments = logbook.Comments(""); !comments.Path.empty())
        ReadComments(comments, logbook, options.MessageLanguage, codePage);
    if (ApplyFilters(logbook.Book.Entries, filters, rows))
        return true;
    Fail(std::string(Text(TextId::FilterFailed, options.MessageLanguage)));
    return false;
}

int PrintRows(const ListOptions& options, const EntryTable& entries, const LogbookRows& rows) {
    const auto text = [&](TextId id) { return std::string(Text(id, options.MessageLanguage)); };
    if (options.Output.empty()) {
        Output output;
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
        Output output(options.Output);
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
