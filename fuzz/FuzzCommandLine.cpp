// SPDX-License-Identifier: MIT
// Any text as a command line, and its lines as the arguments that a command line is made of.
#include "FuzzSupport.h"
#include "sources/CommandLine.h"

#include <algorithm>

namespace {

bool IsFile(std::string_view word) { return word.find('/', 1) != std::string_view::npos; }

// An argument that comes through the command line as it is.
bool IsPlain(std::string_view argument) {
    return !argument.empty() && argument != "?" && argument.front() != '-' &&
           (argument.front() != '/' || IsFile(argument)) && argument.find('"') == std::string_view::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view line = TextOf(data, size);
    const CommandLine commandLine = ParseCommandLine(line, IsFile);
    Check(!commandLine.Embedded || !commandLine.ShowUsage);
    std::size_t length = 0;
    for (const std::string& source : commandLine.Sources) {
        Check(!source.empty() && source != "?" && source.front() != '-');
        Check(source.front() != '/' || IsFile(source));
        Check(line.find(source) != std::string_view::npos);
        length += source.size();
    }
    Check(length <= line.size());

    std::vector<std::string> arguments;
    for (std::string_view rest = line; !rest.empty();)
        if (const std::string_view argument = TakeLine(rest); IsPlain(argument))
            arguments.emplace_back(argument);
    // Each argument is a file, whatever it looks like.
    std::vector<std::string> files;
    for (std::string_view rest = line.substr(0, line.find('\0')); !rest.empty();)
        if (const std::string_view name = TakeLine(rest); !name.empty() && name.front() != '-' && name != "?")
            files.emplace_back(name);
    Check(ParseArguments(files, [](const std::string&) { return true; }) == CommandLine{files, false, false});

    const CommandLine joined = ParseCommandLine(JoinArguments(arguments), IsFile);
    Check(joined == CommandLine{arguments, false, false});
    return 0;
}
