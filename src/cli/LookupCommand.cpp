// SPDX-License-Identifier: MIT
#include "cli/LookupCommand.h"

#include "base/DeviceStream.h"
#include "base/VisibleControls.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "cli/Options.h"
#include "eventinfo/iZEKEventInfo.h"
#include "rows/ContentText.h"

#include <CLI/CLI.hpp>

CLI::App* AddLookupCommand(CLI::App& app, LookupOptions& options) {
    CLI::App* command = app.add_subcommand("lookup", "Print the control's own text for an event or error");
    command->add_option("DATA", options.Data, "What the list shows as the entry's data")->required();
    command
        ->add_option("--language-folder", options.Folder,
                     "The folder of the control's language files instead of \"language\" beside the program")
        ->check(NameIsGiven());
    AddLanguageOption(*command, options.TextLanguage, "Of the text");
    return command;
}

int RunLookup(const LookupOptions& options) {
    const std::string folder = options.Folder.empty() ? GetErrorInfoPath() : options.Folder;
    // As the entry's dialog has it: the lines below each other.
    ProposedComment proposed = AutoFillComment(WithLineBreaks(options.Data), options.TextLanguage, folder);
    if (const std::string mistake = FacilityFileMessage(proposed.Mistake, options.TextLanguage);
        !mistake.empty())
        TellMessage(mistake);
    if (!proposed.Text)
        return ExitStatus::Failed;
    std::erase(*proposed.Text, '\r');
    DeviceStream output;
    if (output.IsTerminal())
        proposed.Text = WithVisibleControls(*proposed.Text, "\n\t");
    output.Stream() << *proposed.Text << std::endl;
    return output.Stream() ? ExitStatus::Done : ExitStatus::Failed;
}
