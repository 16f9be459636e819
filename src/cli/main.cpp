// SPDX-License-Identifier: MIT
#include "base/Arguments.h"
#include "base/FileSizeLimit.h"
#include "base/Interruption.h"
#include "base/StandardStreams.h"
#include "base/UnicodeCase.h"
#include "base/VisibleControls.h"
#include "cli/ErrorsCommand.h"
#include "cli/ExitStatus.h"
#include "cli/ExportCommand.h"
#include "cli/FindCommand.h"
#include "cli/LookupCommand.h"
#include "cli/Options.h"
#include "cli/PackCommand.h"
#include "cli/SessionsCommand.h"
#include "cli/StitchCommand.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

// What the commands that print rows have in common.
void AddListOptions(CLI::App& command, ListOptions& options) {
    AddSourceAndOutput(command, options.File, options.Output);
    AddFormOptions(command, options.Form);
    CLI::Option* filters =
        command.add_option("--filters", options.Filters, "Only what this filter file lets through")
            ->check(NameIsGiven());
    CLI::Option* storedFilters = command
                                     .add_flag("--stored-filters", options.StoredFilters,
                                               "Only what the program's own filters let through")
                                     ->excludes(filters);
    command
        .add_flag("--use-archive-filters", options.ArchiveFilters,
                  "Only what the filters in the program's own archive let through, if it has some")
        ->excludes(filters)
        ->excludes(storedFilters);
    AddLanguageOption(command, options.MessageLanguage, "Of messages and of HTML");
}

void AddSearchOptions(CLI::App& command, SearchState& search) {
    const CLI::Validator utf8(
        [](const std::string& text) { return std::string(IsUtf8(text) ? "" : "the text is no UTF-8"); }, "",
        "");
    command
        .add_option("TEXT", search.SearchText,
                    "What to find in the event type, the data and the comment of a row")
        ->required()
        ->check(utf8);
    command.add_flag_callback(
        "--whole-word", [&search] { search.SearchWholeWord = 1; },
        "Only whole words, as the program finds them");
    command.add_flag_callback(
        "--case-sensitive", [&search] { search.SearchCaseSensitive = 1; }, "The text exactly as it is");
}

// The words of the command line that nothing takes, in their order. Where there is no command that is known,
// those behind the first plain word may be options of the command that was meant.
std::vector<std::string> UnknownWords(const CLI::App& app) {
    std::vector<std::string> words = app.remaining(true);
    if (app.get_subcommands().empty()) {
        const auto plain =
            std::find_if(words.begin(), words.end(), [](const std::string& word) { return word[0] != '-'; });
        if (plain != words.end())
            words.erase(plain + 1, words.end());
    }
    return words;
}

// Tells what is wrong with the command line, or what it asks for: the help, the version. The exit status.
int Tell(const CLI::App& app, const CLI::ParseError& error) {
    const std::vector<std::string> unknown = UnknownWords(app);
    const bool isUsage = error.get_exit_code() == static_cast<int>(CLI::ExitCodes::ExtrasError) ||
                         error.get_exit_code() == static_cast<int>(CLI::ExitCodes::RequiredError);
    std::ostringstream message;
    int status = ExitStatus::WrongUsage;
    if (!isUsage || unknown.empty()) {
        status = app.exit(error, std::cout, message) == 0 ? ExitStatus::Done : ExitStatus::WrongUsage;
    } else {
        message << (unknown.size() > 1 ? "The following arguments were not expected:"
                                       : "The following argument was not expected:");
        for (const std::string& word : unknown)
            message << ' ' << word;
        message << "\nRun with --help for more information.\n";
    }
    std::cerr << WithVisibleControls(message.str(), "\n");
    return status;
}

// The exit status.
int Run(int argc, char** argv) {
    CLI::App app("Reads the event logbook of a ZEK machine-tool control.", "qorvix-cli");
    app.set_version_flag("--version", "qorvix-cli " QORVIX_VERSION);
    app.require_subcommand(1);
    // "/" begins a path, also on Windows.
    app.allow_windows_style_options(false);

    ListOptions options;
    CLI::App* const exportCommand = app.add_subcommand("export", "Print the list of a logbook, a row a line");
    AddListOptions(*exportCommand, options);
    AddPartialOption(*exportCommand, options.Partial);
    CLI::App* const find = app.add_subcommand(
        "find", "Print the rows of the list that hold a text; the exit status is 1 when none does");
    SearchState search;
    AddListOptions(*find, options);
    AddSearchOptions(*find, search);

    HistoryOptions sessionsOptions;
    const CLI::App* const sessionsCommand = AddSessionsCommand(app, sessionsOptions);
    ErrorsOptions errorsOptions;
    const CLI::App* const errorsCommand = AddErrorsCommand(app, errorsOptions);
    LookupOptions lookupOptions;
    const CLI::App* const lookupCommand = AddLookupCommand(app, lookupOptions);
    PackOptions packOptions;
    const CLI::App* const packCommand = AddPackCommand(app, packOptions);
    StitchOptions stitchOptions;
    const CLI::App* const stitchCommand = AddStitchCommand(app, stitchOptions);

    // The parser takes them from behind.
    std::vector<std::string> words = Arguments(argc, argv);
    std::reverse(words.begin(), words.end());
    try {
        app.parse(std::move(words));
    } catch (const CLI::ParseError& error) {
        return Tell(app, error);
    }
    if (sessionsCommand->parsed())
        return RunSessions(sessionsOptions);
    if (errorsCommand->parsed())
        return RunErrors(errorsOptions);
    if (packCommand->parsed())
        return RunPack(packOptions);
    if (stitchCommand->parsed())
        return RunStitch(stitchOptions);
    if (lookupCommand->parsed())
        return RunLookup(lookupOptions);
    return find->parsed() ? RunFind(options, search) : RunExport(options);
}

} // namespace

int main(int argc, char** argv) {
    OpenMissingStandardStreams();
    FailAtFileSizeLimit();
    std::ios::sync_with_stdio(false);
    const Interruption interruption;
    const int status = Run(argc, argv);
    Interruption::EndBySignal();
    return status;
}
