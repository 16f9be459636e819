// SPDX-License-Identifier: MIT
#include "cli/PackCommand.h"

#include "base/AsciiCase.h"
#include "cli/ExitStatus.h"
#include "cli/Options.h"
#include "cli/ReadSource.h"
#include "settings/Texts.h"
#include "sources/ArchivedComments.h"
#include "sources/LogbookArchive.h"

#include <CLI/CLI.hpp>

#include <set>

CLI::App* AddPackCommand(CLI::App& app, PackOptions& options) {
    // The program tells its archives by their names.
    const CLI::Validator archiveName(
        [](const std::string& text) {
            return std::string(LowerCase(text).ends_with(".qorvix") ? "" : "the name must end with .qorvix");
        },
        "", "");
    CLI::App* const command =
        app.add_subcommand("pack", "Save a logbook with filters and comments as the program's own archive");
    command
        ->add_option(
            "SOURCE", options.Source,
            "The logbook, a service archive (*.zip), or an own archive (*.qorvix), whose filters and "
            "comments are taken over")
        ->required();
    command->add_option("ARCHIVE", options.Archive, "The archive to write (*.qorvix)")
        ->required()
        ->check(archiveName);
    command->add_option("--filters", options.Filters, "The filters of this filter file instead")
        ->check(NameIsGiven());
    command->add_option("--comments", options.Comments, "The comments of this comments file instead")
        ->check(NameIsGiven());
    CLI::Option* const keep = command->add_flag(
        "--keep-comments", options.KeepComments,
        "Keep the comments of the archive that is replaced, too, behind others of the same entry");
    command
        ->add_flag("--drop-comments", options.DropComments,
                   "Let the comments of the archive that is replaced go")
        ->excludes(keep);
    AddLanguageOption(*command, options.MessageLanguage, "Of messages");
    return command;
}

namespace {

// Deals with comments that would be lost with the archive that is there, as the options say. The reason why
// it may not be replaced; "" when it may.
std::string ReasonToKeep(const PackOptions& options, SourceLogbook& logbook, const CodePage& codePage,
                         const TempFolder& tempFolder) {
    if (options.DropComments)
        return {};
    const std::set<EntryNumber> noneChanged;
    EntryTable& entries = logbook.Book.Entries;
    const ArchivedComments lost = CommentsLostWith(options.Archive,
                                                   {.Entries = entries,
                                                    .Changed = noneChanged,
                                                    .LogbookFile = logbook.Source.LogbookFile,
                                                    .FileCodePage = codePage},
                                                   tempFolder, options.MessageLanguage);
    if (lost.What == ArchivedComments::Kind::None)
        return {};
    const bool canKeep = lost.What == ArchivedComments::Kind::OfThisLogbook;
    if (!canKeep || !options.KeepComments)
        return TellArchivedComments(lost, options.MessageLanguage) + "; " +
               std::string(Text(canKeep ? TextId::KeepOrDropComments : TextId::DropComments,
                                options.MessageLanguage));
    for (const auto& [number, comment] : lost.Comments)
        entries.SetComment(number, comment);
    return {};
}

} // namespace

int RunPack(const PackOptions& options) {
    const Language language = options.MessageLanguage;
    const CodePage codePage = CodePage::OfUser();
    const TempFolder tempFolder(TempFolder::SystemFolder(), KeptFiles({options.Source, options.Archive,
                                                                       options.Filters, options.Comments}));
    TerminalUser user(UserInterface::Answer::Yes);
    SourceLogbook logbook;
    if (!ReadSource(options.Source, logbook, tempFolder, user, language, codePage))
        return ExitStatus::Failed;

    const SourceFile comments = logbook.Comments(options.Comments);
    if (!comments.Path.empty() && !ReadComments(comments, logbook, language, codePage))
        return ExitStatus::Failed;
    std::vector<FilterDefinition> filters = DefaultFilters();
    const SourceFile filterFile = logbook.Filters(options.Filters);
    if (!filterFile.Path.empty() && !ReadFilters(filterFile, filters, language, codePage))
        return ExitStatus::Failed;

    std::error_code noFile;
    const SeenFile replaced{StampOf(options.Archive, noFile)};
    std::string reason = ReasonToKeep(options, logbook, codePage, tempFolder);
    // Filters and comments come out of files in the same code page, so they lose nothing.
    if (reason.empty())
        reason = SaveLogbookArchive(options.Archive,
                                    {.LogbookFile = logbook.Source.LogbookFile,
                                     .LogbookName = logbook.Source.LogbookName,
                                     .LogbookStamp = logbook.Stamp,
                                     .Filters = filters,
                                     .Entries = logbook.Book.Entries,
                                     .FileCodePage = codePage,
                                     .Replaced = replaced},
                                    tempFolder, language);
    if (reason.empty())
        return ExitStatus::Done;
    return Fail(std::string(Text(TextId::ArchiveNotSaved, language)) + " (" + options.Archive + ": " +
                reason + ")");
}
