// SPDX-License-Identifier: MIT
#include "cli/ReadSource.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "cli/TerminalProgress.h"
#include "comments/Comments.h"
#include "filter/FilterFile.h"
#include "logbook/Mod_FileHandling.h"
#include "settings/Texts.h"

std::vector<std::filesystem::path> KeptFiles(const std::vector<std::string>& files) {
    std::vector<std::filesystem::path> kept{ToPath(ProgramFolder())};
    for (const std::string& file : files)
        kept.push_back(ToPath(file));
    return kept;
}

bool ReadSource(const std::string& file, SourceLogbook& logbook, const TempFolder& tempFolder,
                TerminalUser& user, Language language, const CodePage& codePage) {
    std::optional<LogbookSource> source = ResolveSource(file, tempFolder, user, language);
    if (!source || user.MessageShown())
        return false;
    logbook.Source = std::move(*source);
    std::error_code ignored;
    logbook.Stamp = StampOf(logbook.Source.LogbookFile, ignored);
    std::string title;
    TerminalProgress progress;
    if (ReadLogbook(logbook.Source.LogbookFile, logbook.Book, title, progress, codePage))
        return true;
    const bool reading = logbook.Book.LoadState == LoadStates::Reading;
    Fail(std::string(Text(reading ? TextId::ReadFailed : TextId::OpenFailed, language)) + ": " + file);
    return false;
}

bool ReadComments(const SourceFile& file, SourceLogbook& logbook, Language language,
                  const CodePage& codePage) {
    const CommentsFileResult result = CommentLogbook(file.Path, logbook.Book.Entries, codePage);
    if (result.Result == CommentsFileResult::Outcome::Read)
        return true;
    std::string message = CommentsFileMessage(file.Name, result, language);
    if (result.Result == CommentsFileResult::Outcome::NoHeader)
        message.insert(0, file.Name + ": ");
    Fail(message);
    return false;
}

bool ReadFilters(const SourceFile& file, std::vector<FilterDefinition>& filters, Language language,
                 const CodePage& codePage) {
    FilterFileContent content = ImportFilterFile(file.Path, codePage);
    if (content.Result != FilterFileContent::Outcome::Read) {
        Fail(FilterFileMessage(file.Name, content, language));
        return false;
    }
    filters = std::move(content.Filters);
    return true;
}
