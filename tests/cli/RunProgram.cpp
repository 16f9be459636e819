// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"

#include "support/TemporaryFolder.h"

#include <cstdlib>

#include <sys/wait.h>

namespace {

std::string Quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

} // namespace

ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments, const std::string& configFolder) {
    const TemporaryFolder folder;
    std::string command =
        "LC_ALL=C.UTF-8 XDG_CONFIG_HOME=" + Quoted(configFolder.empty() ? folder / "config" : configFolder) +
        " " + Quoted(QORVIX_PROGRAM_FOLDER "/qorvix-cli");
    for (const std::string& argument : arguments)
        command += " " + Quoted(argument);
    command += " >" + Quoted(folder / "output") + " 2>" + Quoted(folder / "errors");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileContent(folder.Path() / "output"),
            FileContent(folder.Path() / "errors")};
}
