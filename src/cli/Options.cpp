// SPDX-License-Identifier: MIT
#include "cli/Options.h"

#include <CLI/CLI.hpp>

void AddLanguageOption(CLI::App& command, Language& language, const std::string& ofWhat) {
    command
        .add_option_function<std::string>(
            "--language",
            [&language](const std::string& code) {
                language.Number = code == "de" ? Language::German : Language::English;
            },
            ofWhat + ": en or de")
        ->check(CLI::IsMember({"en", "de"}));
}

void AddSourceAndOutput(CLI::App& command, std::string& file, std::string& output) {
    command.add_option("FILE", file, "The logbook, a service archive (*.zip), or an own archive (*.qorvix)")
        ->required();
    AddOutputOption(command, output);
}

CLI::Option* AddOutputOption(CLI::App& command, std::string& output) {
    return command.add_option("--output", output, "Write to this file instead of standard output")
        ->check(NameIsGiven());
}

std::vector<CLI::Option*> AddFormOptions(CLI::App& command, RowForm& form) {
    const bool hasText = form.Format == "text";
    CLI::Option* format =
        command
            .add_option("--format", form.Format,
                        hasText ? "text, jsonl (JSON Lines) or csv (RFC 4180)"
                                : "jsonl (JSON Lines), csv (RFC 4180) or html (a table to read)")
            ->capture_default_str();
    if (hasText)
        format->check(CLI::IsMember({"text", "jsonl", "csv"}));
    else
        format->check(CLI::IsMember({"jsonl", "csv", "html"}));
    CLI::Option* separator =
        command
            .add_option_function<std::string>(
                "--separator",
                [&form](const std::string& name) {
                    form.Separator = name == "semicolon" ? ';' : name == "tab" ? '\t' : ',';
                },
                "CSV: what stands between the fields: comma (without this option), semicolon or tab")
            ->check(CLI::IsMember({"comma", "semicolon", "tab"}));
    CLI::Option* mark = command.add_flag(
        "--bom", form.ByteOrderMark,
        "CSV: begin with a byte order mark, which tells some spreadsheets that this is UTF-8");
    CLI::Option* raw = command.add_flag(
        "--raw", form.Raw, "CSV: leave text that a spreadsheet would take for a formula as it is");
    command.parse_complete_callback([&command, &form] {
        for (const char* const option : {"--separator", "--bom"})
            if (command.count(option) != 0 && form.Format != "csv")
                throw CLI::ValidationError(option, "is for --format csv only");
    });
    return {format, separator, mark, raw};
}

CLI::Validator NameIsGiven() {
    return CLI::Validator(
        [](const std::string& text) { return std::string(text.empty() ? "the name is empty" : ""); }, "", "");
}
