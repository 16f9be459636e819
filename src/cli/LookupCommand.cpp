// SPDX-License-Identifier: MIT
#include "cli/LookupCommand.h"

#include "base/DeviceStream.h"
#include "base/VisibleControls.h"
#include "cli/ExitStatus.h"
#include "cli/LookupAll.h"
#include "cli/Messages.h"
#include "cli/Options.h"
#include "eventinfo/iZEKEventInfo.h"
#include "rows/ContentText.h"

#include <CLI/CLI.hpp>

CLI::App* AddLookupCommand(CLI::App& app, LookupOptions& options) {
    CLI::App* command = app.add_subcommand("lookup", "Print the control's own text for an event or error");
    CLI::Option_group* const subject = command->add_option_group("what to look up");
    subject->add_option("DATA", options.Data, "What the list shows as the entry's data");
    CLI::Option* const all =
        subject
            ->add_option("--all", options.All,
                         "Every code of this logbook, in both languages, and what is missing")
            ->check(NameIsGiven());
    subject->require_option(1);
    std::vector<CLI::Option*> listing = AddFormOptions(*command, options.Listing.Form);
    listing.push_back(AddOutputOption(*command, options.Listing.Output));
    listing.push_back(AddPartialOption(*command, options.Listing.Partial));
    for (CLI::Option* const option : listing)
        option->needs(all)->group("With --all");
    AddLanguageFolderOption(*command, options.Folder);
    AddLanguageOption(*command, options.TextLanguage, "Of the text");
    return command;
}

int RunLookup(const LookupOptions& options) {
    if (!options.All.empty()) {
        HistoryOptions listing = options.Listing;
        listing.File = options.All;
        listing.LanguageFolder = options.Folder;
        listing.MessageLanguage = options.TextLanguage;
        return RunLookupAll(listing);
    }
    // As the entry's dialog has it: the lines below each other.
    ProposedComment proposed =
        AutoFillComment(WithLineBreaks(options.Data), options.TextLanguage, LanguageFolders(options.Folder));
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
