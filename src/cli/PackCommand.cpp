// SPDX-License-Identifier: MIT
#include "cli/PackCommand.h"

#include "cli/ExitStatus.h"
#include "cli/TerminalProgress.h"
#include "cli/TerminalUser.h"
#include "filter/FilterFile.h"
#include "filter/FilterStorage.h"
#include "logbook/Mod_FileHandling.h"
#include "logbook/modUtil.h"
#include "settings/Texts.h"
#include "sources/Comments.h"
#include "sources/LogbookArchive.h"
#include "sources/LogbookSource.h"

#include <CLI/CLI.hpp>

#include <iostream>

namespace {

int Fail(const std::string& message) {
    std::cerr << "qorvix-cli: " << message << std::endl;
    return ExitStatus::Failed;
}

std::string BaseNameOf(const std::string& path) {
    std::string folder;
    std::string fileName;
    SplitPath(path, folder, fileName);
    return ChangeExtension(fileName, "");
}

} // namespace

CLI::App* AddPackCommand(CLI::App& app, PackOptions& options) {
    CLI::App* const command = app.add_subcommand("pack", "Write an own archive (*.qorvix) of a logbook");
    command
        ->add_option("SOURCE", options.Source,
                     "The logbook, a service archive (*.zip), or an own archive (*.qorvix)")
        ->required();
    command
        ->add_option("OUT", options.Output,
                     "The archive; an existing one is replaced when the new one is whole")
        ->required();
    command->add_option("--filters", options.Filters, "This filter file in place of the source's filters");
    command->add_option("--comments", options.Comments,
                        "This comments file in place of the source's comments");
    command->add_flag("--allow-loss", options.AllowLoss,
                      "Write \"?\" for characters that the archive's files cannot hold");
    command
        ->add_option_function<std::string>(
            "--language",
            [&options](const std::string& code) {
                options.MessageLanguage.Number = code == "de" ? Language::German : Language::English;
            },
            "Of messages: en or de")
        ->check(CLI::IsMember({"en", "de"}));
    return command;
}

int RunPack(const PackOptions& options) {
    const auto text = [&](TextId id) { return std::string(Text(id, options.MessageLanguage)); };
    const CodePage codePage = CodePage::OfUser();
    const TempFolder tempFolder;
    TerminalUser user(UserInterface::Answer::Yes);
    const std::optional<LogbookSource> source =
        ResolveSource(options.Source, tempFolder, user, options.MessageLanguage);
    if (!source || user.MessageShown())
        return ExitStatus::Failed;

    // Comments belong to entries, so that the logbook is read, too.
    Logbook logbook;
    std::string title;
    TerminalProgress progress;
    if (!ReadLogbook(source->LogbookFile, logbook, title, progress, codePage))
        return Fail(text(logbook.LoadState == LoadStates::Reading ? TextId::ReadFailed : TextId::OpenFailed) +
                    ": " + options.Source);
    if (!options.Comments.empty() && !FileExists(options.Comments))
        return Fail(text(TextId::OpenFailed) + ": " + options.Comments);
    const std::string& comments = options.Comments.empty() ? source->CommentsFile : options.Comments;
    if (!comments.empty() && !CommentLogbook(comments, logbook.Entries, codePage))
        return Fail(comments + ": " + text(TextId::NoComments));

    std::vector<FilterDefinition> filters = DefaultFilters();
    if (const std::string& file = options.Filters.empty() ? source->FilterFile : options.Filters;
        !file.empty()) {
        FilterFileContent content = ImportFilterFile(file, codePage);
        if (content.Result != FilterFileContent::Outcome::Read)
            return Fail(FilterFileMessage(file, content, options.MessageLanguage));
        filters = std::move(content.Filters);
    }
    const std::string question =
        QuestionAboutLosses(CommentsThatLose(logbook.Entries, codePage), FiltersThatLose(filters, codePage),
                            options.MessageLanguage);
    if (!question.empty() && !options.AllowLoss)
        return Fail(question.substr(0, question.find("\n\n")));

    const std::string reason =
        WriteArchive(options.Output,
                     {BaseNameOf(options.Output), source->LogbookFile, FilterFileText(filters, codePage),
                      CommentsFileText(logbook.Entries, codePage)},
                     {});
    if (!reason.empty())
        return Fail(text(TextId::ArchiveNotWritten) + " (" + options.Output + "): " + reason);
    return ExitStatus::Done;
}
