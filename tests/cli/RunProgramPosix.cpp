// SPDX-License-Identifier: MIT
#include "cli/RunProgram.h"

#include "support/TemporaryFolder.h"

#include <cstdlib>

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string Quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

// The user's state, which the runs of a test share, as copies of the program do.
std::string SharedState() {
    static const TemporaryFolder folder;
    return folder / "state";
}

} // namespace

ProgramResult RunCommandLineTool(const std::vector<std::string>& arguments, const std::string& configFolder) {
    const TemporaryFolder folder;
    std::string command =
        "LC_ALL=C.UTF-8 XDG_CONFIG_HOME=" + Quoted(configFolder.empty() ? folder / "config" : configFolder) +
        " XDG_DATA_HOME=" + Quoted(configFolder.empty() ? folder / "data" : configFolder + "-data") +
        " XDG_STATE_HOME=" + Quoted(SharedState()) + " " + Quoted(QORVIX_PROGRAM_FOLDER "/qorvix-cli");
    for (const std::string& argument : arguments)
        command += " " + Quoted(argument);
    command += " >" + Quoted(folder / "output") + " 2>" + Quoted(folder / "errors");
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, FileContent(folder.Path() / "output"),
            FileContent(folder.Path() / "errors")};
}

ProgramResult RunOnTerminal(const std::vector<std::string>& arguments) {
    const TemporaryFolder folder;
    int terminal = -1;
    int end = -1;
    if (::openpty(&terminal, &end, nullptr, nullptr, nullptr) != 0)
        return {};
    std::vector<std::string> words{QORVIX_PROGRAM_FOLDER "/qorvix-cli"};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> list;
    for (std::string& word : words)
        list.push_back(word.data());
    list.push_back(nullptr);
    const pid_t process = ::fork();
    if (process == 0) {
        ::setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
        ::setenv("XDG_DATA_HOME", (folder / "data").c_str(), 1);
        ::setenv("XDG_STATE_HOME", (folder / "state").c_str(), 1);
        ::setenv("LC_ALL", "C.UTF-8", 1);
        ::dup2(end, STDOUT_FILENO);
        ::dup2(::open((folder / "errors").c_str(), O_WRONLY | O_CREAT, 0600), STDERR_FILENO);
        ::close(terminal);
        ::close(end);
        ::execv(list.front(), list.data());
        ::_exit(127);
    }
    ::close(end);
    ProgramResult result;
    char bytes[4096];
    for (ssize_t count; (count = ::read(terminal, bytes, sizeof bytes)) > 0;)
        result.Output.append(bytes, static_cast<std::size_t>(count));
    int status = 0;
    ::waitpid(process, &status, 0);
    ::close(terminal);
    result.ExitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    result.Errors = FileContent(folder.Path() / "errors");
    return result;
}
