// SPDX-License-Identifier: MIT
#include "cli/PackCommand.h"

#include "base/AsciiCase.h"
#include "cli/ExitStatus.h"
#include "cli/Messages.h"
#include "cli/Options.h"
#include "cli/TerminalDocument.h"
#include "settings/Texts.h"

#include <CLI/CLI.hpp>

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

// The decisions that options make. What they leave open is refused, with a message.
class PackDecisions : public ArchiveDecisions {
  public:
    explicit PackDecisions(const PackOptions& options) : options_(options) {}

    std::optional<std::string> Archive(const std::string&, const std::string&) override {
        return options_.Archive;
    }

    OldComments DecideOn(const ArchivedComments& lost, bool) override {
        if (options_.DropComments || lost.What == ArchivedComments::Kind::None)
            return OldComments::Replace;
        const bool canKeep = lost.What == ArchivedComments::Kind::OfThisLogbook;
        if (canKeep && options_.KeepComments)
            return OldComments::Keep;
        Refuse(TellArchivedComments(lost, options_.MessageLanguage) + "; " +
               Say(canKeep ? TextId::KeepOrDropComments : TextId::DropComments));
        return OldComments::Cancel;
    }

    // Filters and comments come out of files in the same code page, so they lose nothing.
    bool AgreesToLosses(std::string_view) override { return true; }

    bool AgreesToChangedLogbook() override {
        Refuse(Say(TextId::LogbookChangedMeanwhile));
        return false;
    }

  private:
    std::string Say(TextId id) const { return std::string(Text(id, options_.MessageLanguage)); }
    void Refuse(const std::string& reason) const {
        Fail(Say(TextId::ArchiveNotSaved) + " (" + options_.Archive + ": " + reason + ")");
    }

    const PackOptions& options_;
};

} // namespace

int RunPack(const PackOptions& options) {
    TerminalDocument document({.Files = {options.Source, options.Archive, options.Filters, options.Comments},
                               .ArchiveFilters = UserInterface::Answer::Yes,
                               .MessageLanguage = options.MessageLanguage});
    if (!document.Open(options.Source, {.Comments = options.Comments, .Filters = options.Filters}) ||
        !document.HasComments())
        return ExitStatus::Failed;
    PackDecisions decisions(options);
    return document.ZipLogbook(decisions) ? ExitStatus::Done : ExitStatus::Failed;
}
