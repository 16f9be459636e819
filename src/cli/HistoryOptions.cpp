// SPDX-License-Identifier: MIT
#include "cli/HistoryOptions.h"

#include "cli/Options.h"
#include "eventinfo/iZEKEventInfo.h"

#include <CLI/CLI.hpp>

void AddHistoryOptions(CLI::App& command, HistoryOptions& options) {
    AddSourceAndOutput(command, options.File, options.Output);
    AddFormOptions(command, options.Form);
    AddLanguageFolderOption(command, options.LanguageFolder);
    AddPartialOption(command, options.Partial);
    AddLanguageOption(command, options.MessageLanguage, "Of messages and of the text form");
}

std::vector<std::string> LanguageFolders(const std::string& given) {
    return given.empty() ? LanguageFolders() : std::vector{given};
}

void AddLanguageFolderOption(CLI::App& command, std::string& folder) {
    command
        .add_option(
            "--language-folder", folder,
            "The folder of the control's language files instead of the user's own and \"language\" beside "
            "the program")
        ->check(NameIsGiven());
}

CLI::Option* AddPartialOption(CLI::App& command, bool& partial) {
    return command.add_flag(
        "--partial", partial,
        "If an error ends the read of the logbook, use what was read; the exit status is then 3");
}
