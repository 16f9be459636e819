// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"

#include "cli/RowWriter.h"
#include "cli/TerminalProgress.h"
#include "filter/Filter.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "logbook/AtomicFile.h"
#include "logbook/Mod_FileHandling.h"
#include "logbook/modUtil.h"
#include "settings/Registry.h"
#include "settings/Texts.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

int Fail(const std::string& message) {
    std::cerr << "qorvix-cli: " << message << std::endl;
    return ExitStatus::Failed;
}

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

} // namespace

int RunExport(const ExportOptions& options) {
    const auto text = [&](TextId id) { return std::string(Text(id, options.MessageLanguage)); };
    const CodePage codePage = CodePage::OfUser();
    std::vector<FilterDefinition> filters = DefaultFilters();
    if (!options.Filters.empty()) {
        FilterFileContent content = ImportFilterFile(options.Filters, codePage);
        if (content.Result != FilterFileContent::Outcome::Read)
            return Fail(FilterFileMessage(options.Filters, content, options.MessageLanguage));
        filters = std::move(content.Filters);
    } else if (options.StoredFilters) {
        const auto settings = MakeUserSettings();
        filters = LoadFilters(Registry(*settings), options.MessageLanguage).Filters;
    }

    Logbook logbook;
    std::string title;
    TerminalProgress progress;
    if (!ReadLogbook(options.File, logbook, title, progress, codePage)) {
        const bool reading = logbook.LoadState == LoadStates::Reading;
        return Fail(text(reading ? TextId::ReadFailed : TextId::OpenFailed) + ": " + options.File);
    }
    LogbookRows rows;
    if (!ApplyFilters(logbook.Entries, filters, rows))
        return Fail(text(TextId::FilterFailed));

    if (options.Output.empty()) {
        WriteRows(logbook.Entries, rows, options, std::cout);
        return std::cout ? ExitStatus::Done : Fail("the list could not be written");
    }
    if (IsDevice(options.Output)) {
        std::ofstream stream(ToPath(options.Output), std::ios::binary);
        WriteRows(logbook.Entries, rows, options, stream);
        return stream ? ExitStatus::Done : Fail(options.Output + " could not be written");
    }
    AtomicFile file(options.Output);
    WriteRows(logbook.Entries, rows, options, file.Stream());
    if (const std::error_code error = file.Commit())
        return Fail(options.Output + ": " + error.message());
    return ExitStatus::Done;
}
