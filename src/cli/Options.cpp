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

CLI::Validator NameIsGiven() {
    return CLI::Validator(
        [](const std::string& text) { return std::string(text.empty() ? "the name is empty" : ""); }, "", "");
}
