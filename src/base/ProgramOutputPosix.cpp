// SPDX-License-Identifier: MIT
#include "base/ProgramOutput.h"

#include "base/Paths.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Everything from the pipe until its other end is closed; less when that takes too long.
std::string Receive(int pipe, std::size_t mostBytes, std::chrono::milliseconds mostTime) {
    const auto deadline = std::chrono::steady_clock::now() + mostTime;
    std::string bytes;
    char block[64 * 1024];
    while (bytes.size() <= mostBytes) {
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        pollfd wait{pipe, POLLIN, 0};
        const int ready = left.count() > 0 ? poll(&wait, 1, static_cast<int>(left.count())) : 0;
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready <= 0)
            break;
        const ssize_t count = read(pipe, block, sizeof block);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        bytes.append(block, static_cast<std::size_t>(count));
    }
    return bytes;
}

// Starts the program with its output in a pipe. It is not a fork, because a fork of a program with threads
// may call only few functions. -1 when it cannot be started.
pid_t Start(const std::filesystem::path& program, const std::filesystem::path& argument, int pipe) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, pipe, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::string name = PathText(program);
    std::string word = PathText(argument);
    char* const arguments[] = {name.data(), word.data(), nullptr};
    pid_t process = -1;
    if (posix_spawn(&process, name.c_str(), &actions, nullptr, arguments, environ) != 0)
        process = -1;
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

std::string ProgramOutput(const std::filesystem::path& program, const std::filesystem::path& argument,
                          std::size_t mostBytes, std::chrono::milliseconds mostTime) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return {};
    const pid_t process = Start(program, argument, ends[1]);
    close(ends[1]);
    std::string bytes;
    if (process > 0) {
        bytes = Receive(ends[0], mostBytes, mostTime);
        kill(process, SIGKILL); // in vain, when it has ended by itself
        while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    close(ends[0]);
    return bytes;
}

void LimitThisProcess(int processorSeconds) {
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const auto seconds = static_cast<rlim_t>(processorSeconds);
    const rlimit processorTime{seconds, seconds};
    setrlimit(RLIMIT_CPU, &processorTime);
}

bool WriteToStandardOutput(const void* data, std::size_t size) {
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = write(STDOUT_FILENO, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

void EndThisProcess(int status) { _exit(status); }
