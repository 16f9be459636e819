// SPDX-License-Identifier: MIT
#include "cli/ExportCommand.h"
#include "cli/LookupCommand.h"
#include "cli/PackCommand.h"

#include <CLI/CLI.hpp>

#include <iostream>

int main(int argc, char** argv) {
    std::ios::sync_with_stdio(false);

    CLI::App app("Reads the event logbook of a ZEK machine-tool control.", "qorvix-cli");
    app.set_version_flag("--version", "qorvix-cli " QORVIX_VERSION);
    app.require_subcommand(1);

    const CLI::Validator notEmpty(
        [](const std::string& text) { return std::string(text.empty() ? "the name is empty" : ""); }, "", "");
    ExportOptions exportOptions;
    CLI::App* exportCommand = app.add_subcommand("export", "Print the list of a logbook, a row a line");
    exportCommand
        ->add_option("FILE", exportOptions.File,
                     "The logbook, a service archive (*.zip), or an own archive (*.qorvix)")
        ->required();
    exportCommand->add_option("--format", exportOptions.Format, "jsonl (JSON Lines) or csv (RFC 4180)")
        ->check(CLI::IsMember({"jsonl", "csv"}))
        ->capture_default_str();
    exportCommand
        ->add_option("--output", exportOptions.Output, "Write to this file instead of standard output")
        ->check(notEmpty);
    exportCommand->add_flag("--raw", exportOptions.Raw,
                            "CSV: leave text that a spreadsheet would take for a formula as it is");

    CLI::Option* filters =
        exportCommand
            ->add_option("--filters", exportOptions.Filters, "Only what this filter file lets through")
            ->check(notEmpty);
    CLI::Option* storedFilters = exportCommand
                                     ->add_flag("--stored-filters", exportOptions.StoredFilters,
                                                "Only what the program's own filters let through")
                                     ->excludes(filters);
    exportCommand
        ->add_flag("--use-archive-filters", exportOptions.ArchiveFilters,
                   "Only what the filters in the program's own archive let through, if it has some")
        ->excludes(filters)
        ->excludes(storedFilters);
    exportCommand
        ->add_option_function<std::string>(
            "--language",
            [&](const std::string& code) {
                exportOptions.MessageLanguage.Number = code == "de" ? Language::German : Language::English;
            },
            "Of messages: en or de")
        ->check(CLI::IsMember({"en", "de"}));

    LookupOptions lookupOptions;
    const CLI::App* const lookupCommand = AddLookupCommand(app, lookupOptions);
    PackOptions packOptions;
    const CLI::App* const packCommand = AddPackCommand(app, packOptions);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? ExitStatus::Done : ExitStatus::WrongUsage;
    }
    if (packCommand->parsed())
        return RunPack(packOptions);
    return lookupCommand->parsed() ? RunLookup(lookupOptions) : RunExport(exportOptions);
}
