// SPDX-License-Identifier: MIT
#include "sources/CommandLine.h"

#include "base/AsciiCase.h"
#include "base/Blanks.h"
#include "settings/Texts.h"

#include <algorithm>

namespace {

// Cuts the next word off the line; "" ends the command line.
std::string_view TakeToken(std::string_view& rest) {
    rest.remove_prefix(std::min(rest.find_first_not_of(Blank), rest.size()));
    if (!rest.starts_with('"')) {
        const std::size_t blank = rest.find(Blank);
        const std::string_view token = rest.substr(0, blank);
        rest.remove_prefix(blank == std::string_view::npos ? rest.size() : blank + 1);
        return token;
    }
    const std::size_t closing = rest.find('"', 1);
    if (closing == std::string_view::npos || closing == 1) {
        const std::string_view token = rest.substr(1);
        rest = {};
        return token;
    }
    const std::string_view token = rest.substr(1, closing - 1);
    rest.remove_prefix(closing + 1);
    return token;
}

void ApplyOption(std::string_view text, CommandLine& commandLine) {
    const std::string option = UpperCase(text);
    if (option.starts_with('X'))
        return;
    if (option.starts_with("EMB"))
        commandLine.Embedded = true;
    else
        commandLine.ShowUsage = true;
}

// In a command line, a file's number between two of these stands for its name. No argument holds it.
constexpr char FileMark = '\0';

std::string WithNames(const std::string& source, const std::vector<std::string>& arguments) {
    std::string text;
    for (std::size_t i = 0; i < source.size(); ++i) {
        if (source[i] != FileMark) {
            text += source[i];
            continue;
        }
        const std::size_t end = source.find(FileMark, i + 1);
        text += arguments[std::stoul(source.substr(i + 1, end - i - 1))];
        i = end;
    }
    return text;
}

} // namespace

CommandLine ParseCommandLine(std::string_view line, const std::function<bool(std::string_view)>& isFile) {
    CommandLine commandLine;
    for (std::string_view token = TakeToken(line); !token.empty(); token = TakeToken(line)) {
        const bool isOption = token.front() == '-' || (token.front() == '/' && !isFile(token));
        if (isOption)
            ApplyOption(token.substr(1), commandLine);
        else if (token == "?")
            commandLine.ShowUsage = true;
        else
            commandLine.Sources.emplace_back(token);
    }
    commandLine.ShowUsage = commandLine.ShowUsage && !commandLine.Embedded;
    return commandLine;
}

CommandLine ParseArguments(const std::vector<std::string>& arguments,
                           const std::function<bool(const std::string&)>& fileExists) {
    std::vector<std::string> words;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        const bool isFile =
            !argument.empty() && argument.front() != '-' && argument != "?" && fileExists(argument);
        words.push_back(isFile ? FileMark + std::to_string(i) + FileMark : argument);
    }
    CommandLine commandLine = ParseCommandLine(JoinArguments(words), [&](std::string_view word) {
        return word.find('/', 1) != std::string_view::npos || fileExists(std::string(word));
    });
    for (std::string& source : commandLine.Sources)
        source = WithNames(source, arguments);
    return commandLine;
}

std::string JoinArguments(const std::vector<std::string>& arguments) {
    std::string line;
    for (const std::string& argument : arguments) {
        const bool quoted = argument.find(Blank) != std::string::npos;
        line += line.empty() ? "" : " ";
        line += quoted ? '"' + argument + '"' : argument;
    }
    return line;
}

std::string UsageText(Language language) {
    const auto text = [&](TextId id) { return std::string(Text(id, language)); };
    return text(TextId::UsageHeading) + "\r\n\r\n" + text(TextId::UsageFile) + "\r\n" +
           text(TextId::UsageEmbedded);
}
