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
    command.add_option("--output", output, "Write to this file instead of standard output")
        ->check(NameIsGiven());
}

CLI::Validator NameIsGiven() {
    return CLI::Validator(
        [](const std::string& text) { return std::string(text.empty() ? "the name is empty" : ""); }, "", "");
}
