// SPDX-License-Identifier: MIT
#include "faults/RunningProgram.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int NewFile = O_WRONLY | O_CREAT | O_TRUNC;

// In the child: becomes the program, or ends.
[[noreturn]] void Become(const std::string& program, const std::vector<std::string>& arguments,
                         const Environment& environment, const int* handles) {
    for (int i = 0; i < 3; ++i)
        dup2(handles[i], i);
    for (const auto& [name, value] : environment)
        setenv(name.c_str(), value.c_str(), 1);
    std::vector<char*> words{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        words.push_back(const_cast<char*>(argument.c_str()));
    words.push_back(nullptr);
    execv(program.c_str(), words.data());
    _exit(127);
}

int Descriptor(std::intptr_t file) { return static_cast<int>(file); }
pid_t PidOf(std::intptr_t process) { return static_cast<pid_t>(process); }

ProgramEnd EndOf(int status) {
    return WIFSIGNALED(status) ? ProgramEnd{-1, WTERMSIG(status)} : ProgramEnd{WEXITSTATUS(status), 0};
}

} // namespace

RunningProgram::RunningProgram(const std::string& program, const std::vector<std::string>& arguments,
                               const Environment& environment) {
    std::signal(SIGPIPE, SIG_IGN);
    int input[2];
    int output[2];
    EXPECT_EQ(pipe2(input, O_CLOEXEC) + pipe2(output, O_CLOEXEC), 0);
    const int errors = open((folder_ / "errors").c_str(), NewFile | O_CLOEXEC, 0600);
    process_ = fork();
    if (process_ == 0) {
        std::signal(SIGPIPE, SIG_DFL);
        const int handles[] = {input[0], output[1], errors};
        Become(program, arguments, environment, handles);
    }
    close(input[0]);
    close(output[1]);
    close(errors);
    input_ = input[1];
    output_ = output[0];
}

RunningProgram::~RunningProgram() {
    if (!end_) {
        Kill();
        waitpid(PidOf(process_), nullptr, 0);
    }
    close(Descriptor(input_));
    close(Descriptor(output_));
}

void RunningProgram::Say(const std::string& line) {
    const std::string text = line + '\n';
    (void)!write(Descriptor(input_), text.data(), text.size());
}

std::optional<std::string> RunningProgram::Hear() {
    const auto limit = Clock::now() + LongestWait;
    for (;;) {
        if (const std::size_t end = heard_.find('\n'); end != std::string::npos) {
            std::string line = heard_.substr(0, end);
            heard_.erase(0, end + 1);
            return line;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(limit - Clock::now());
        pollfd ready{Descriptor(output_), POLLIN, 0};
        char part[4096];
        if (left.count() <= 0 || poll(&ready, 1, static_cast<int>(left.count())) <= 0)
            return std::nullopt;
        const ssize_t size = read(Descriptor(output_), part, sizeof part);
        if (size <= 0)
            return std::nullopt;
        heard_.append(part, static_cast<std::size_t>(size));
    }
}

void RunningProgram::Kill() { kill(PidOf(process_), SIGKILL); }

bool RunningProgram::IsRunning() {
    int status = 0;
    if (!end_ && waitpid(PidOf(process_), &status, WNOHANG) == process_)
        end_ = EndOf(status);
    return !end_;
}

ProgramEnd RunningProgram::WaitForEnd() {
    // Its output ends with it; what it still says is not wanted.
    while (!end_ && Hear()) {
    }
    constexpr useconds_t Pause = 1000;
    const auto limit = Clock::now() + LongestWait;
    while (IsRunning()) {
        if (Clock::now() > limit) {
            ADD_FAILURE() << "the program hangs";
            Kill();
            int status = 0;
            waitpid(PidOf(process_), &status, 0);
            end_ = EndOf(status);
        }
        usleep(Pause);
    }
    return *end_;
}

std::string RunningProgram::Errors() const { return FileContent(folder_.Path() / "errors"); }
