// SPDX-License-Identifier: MIT
#include "helpbook/ChmFile.h"

#include "base/Paths.h"
#include "helpbook/HelpMemberStream.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <string_view>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds MostTime{10};

// Everything from the pipe until its other end is closed; less when that takes too long.
std::string Receive(int pipe) {
    const auto deadline = std::chrono::steady_clock::now() + MostTime;
    std::string bytes;
    char block[64 * 1024];
    while (bytes.size() <= 2 * MostHelpBytes) {
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

// Nothing when the end is missing.
std::optional<HelpMembers> MembersOf(std::string_view bytes) {
    HelpMembers members;
    while (true) {
        MemberHead head;
        if (bytes.size() < sizeof head)
            return std::nullopt;
        std::memcpy(&head, bytes.data(), sizeof head);
        bytes.remove_prefix(sizeof head);
        if (head.PathLength == MemberHead::AtEnd)
            return members;
        if (head.PathLength > bytes.size() || head.ContentLength > bytes.size() - head.PathLength)
            return std::nullopt;
        members.try_emplace(std::string(bytes.substr(0, head.PathLength)),
                            bytes.substr(head.PathLength, head.ContentLength));
        bytes.remove_prefix(head.PathLength + head.ContentLength);
    }
}

// Starts the reader with its output in a pipe; drops what it or the C library prints about a damaged file.
// The reader is another program because a fork of a program with threads may call only few functions. -1 when
// it cannot be started.
pid_t Start(const std::filesystem::path& reader, const std::filesystem::path& file, int pipe) {
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_adddup2(&actions, pipe, STDOUT_FILENO);
    posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    std::string name = PathText(reader);
    std::string argument = PathText(file);
    char* const arguments[] = {name.data(), argument.data(), nullptr};
    pid_t process = -1;
    if (posix_spawn(&process, name.c_str(), &actions, nullptr, arguments, environ) != 0)
        process = -1;
    posix_spawn_file_actions_destroy(&actions);
    return process;
}

} // namespace

std::optional<HelpMembers> ReadChmFile(const std::filesystem::path& file,
                                       const std::filesystem::path& reader) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return std::nullopt;
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    const pid_t process = Start(reader, file, ends[1]);
    close(ends[1]);
    std::string bytes;
    if (process > 0) {
        bytes = Receive(ends[0]);
        kill(process, SIGKILL); // in vain, when it has ended by itself
        while (waitpid(process, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    close(ends[0]);
    return MembersOf(bytes);
}
