// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"

#include "cli/ReadSource.h"
#include "cli/RowWriter.h"
#include "filter/Filter.h"
#include "filter/FilterStorage.h"
#include "logbook/AtomicFile.h"
#include "logbook/modUtil.h"
#include "settings/Registry.h"
#include "settings/Texts.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

void WriteRows(const EntryTable& entries, const LogbookRows& rows, const ExportOptions& options,
               std::ostream& stream) {
    const auto writer = MakeRowWriter(options.Format, options.Raw);
    writer->WriteHeader(stream);
    for (const LogbookRow& row : rows) {
        writer->WriteRow(entries, row, stream);
        if (!stream)
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
bool ChooseFilters(const ExportOptions& options, const std::string& archiveFilters, const CodePage& codePage,
                   std::vector<FilterDefinition>& filters) {
    const std::string& file = archiveFilters.empty() ? options.Filters : archiveFilters;
    if (!file.empty())
        return ReadFilters(file, filters, options.MessageLanguage, codePage);
    if (options.StoredFilters) {
        const auto settings = MakeUserSettings();
        filters = LoadFilters(Registry(*settings), options.MessageLanguage).Filters;
    }
    return true;
}

} // namespace

int RunExport(const ExportOptions& options) {
    using Answer = UserInterface::Answer;
    const auto text = [&](TextId id) { return std::string(Text(id, options.MessageLanguage)); };
    const CodePage codePage = CodePage::OfUser();
    const TempFolder tempFolder;
    TerminalUser user(options.ArchiveFilters ? Answer::Yes : Answer::No);
    SourceLogbook logbook;
    if (!ReadSource(options.File, logbook, tempFolder, user, options.MessageLanguage, codePage))
        return ExitStatus::Failed;
    const LogbookSource& source = logbook.Source;
    std::vector<FilterDefinition> filters = DefaultFilters();
    if (!ChooseFilters(options, source.FilterFile, codePage, filters))
        return ExitStatus::Failed;
    // Comments that cannot be read are told; the list is printed without them, as the window shows it.
    if (!source.CommentsFile.empty())
        ReadComments(source.CommentsFile, logbook, options.MessageLanguage, codePage);

    LogbookRows rows;
    if (!ApplyFilters(logbook.Book.Entries, filters, rows))
        return Fail(text(TextId::FilterFailed));

    if (options.Output.empty()) {
        WriteRows(logbook.Book.Entries, rows, options, std::cout);
        return std::cout ? ExitStatus::Done : Fail(text(TextId::ListNotWritten));
    }
    if (IsDevice(options.Output)) {
        std::ofstream stream(ToPath(options.Output), std::ios::binary);
        WriteRows(logbook.Book.Entries, rows, options, stream);
        return stream ? ExitStatus::Done : Fail(options.Output + text(TextId::FileNotWritten));
    }
    AtomicFile file(options.Output);
    WriteRows(logbook.Book.Entries, rows, options, file.Stream());
    if (const std::error_code error = file.Commit())
        return Fail(options.Output + ": " + error.message());
    return ExitStatus::Done;
}
