// SPDX-License-Identifier: MIT
#include "helpbook/ChmFile.h"

#include <chm_lib.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr std::size_t MostBytes = std::size_t{64} << 20;
constexpr std::size_t MostMembers = 10'000;
constexpr rlim_t MostProcessorSeconds = 5;
constexpr std::chrono::seconds MostTime{10};

// What the reading process sends: for each member the length of its path, that of its content, and both; at
// the end a head with this path length and without content.
struct MemberHead {
    static constexpr std::uint64_t AtEnd = ~std::uint64_t{0};

    std::uint64_t PathLength = AtEnd;
    std::uint64_t ContentLength = 0;
};

// The reading process.

[[noreturn]] void GiveUp() { _exit(1); }

void Send(int pipe, const void* data, std::size_t size) {
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = write(pipe, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            GiveUp();
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
}

int CollectMember(chmFile*, chmUnitInfo* unit, void* context) {
    auto& units = *static_cast<std::vector<chmUnitInfo>*>(context);
    if (units.size() == MostMembers)
        return CHM_ENUMERATOR_FAILURE;
    units.push_back(*unit);
    return CHM_ENUMERATOR_CONTINUE;
}

[[noreturn]] void SendMembers(const std::filesystem::path& path, int pipe) {
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGABRT, SIGILL, SIGPIPE})
        std::signal(signal, SIG_DFL);
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const rlimit processorTime{MostProcessorSeconds, MostProcessorSeconds};
    setrlimit(RLIMIT_CPU, &processorTime);
    // What the C library has to say of a damaged heap is of no use to anybody.
    if (const int nowhere = open("/dev/null", O_WRONLY); nowhere >= 0)
        dup2(nowhere, STDERR_FILENO);

    chmFile* const file = chm_open(path.c_str());
    if (!file)
        GiveUp();
    std::vector<chmUnitInfo> units;
    if (!chm_enumerate(file, CHM_ENUMERATE_ALL, CollectMember, &units))
        GiveUp();
    std::size_t total = 0;
    for (chmUnitInfo& unit : units) {
        const std::string_view name(unit.path, strnlen(unit.path, sizeof unit.path));
        if (!name.starts_with('/') || name.ends_with('/'))
            continue;
        if (unit.length > MostBytes - total)
            GiveUp();
        std::vector<unsigned char> content(unit.length);
        if (!content.empty() &&
            chm_retrieve_object(file, &unit, content.data(), 0, static_cast<LONGINT64>(content.size())) !=
                static_cast<LONGINT64>(content.size()))
            content.clear(); // a member that cannot be read is there, and is empty
        total += content.size();
        const MemberHead head{name.size(), content.size()};
        Send(pipe, &head, sizeof head);
        Send(pipe, name.data(), name.size());
        Send(pipe, content.data(), content.size());
    }
    const MemberHead end;
    Send(pipe, &end, sizeof end);
    _exit(0);
}

// The process that asks.

// All that comes through the pipe until its other end is closed; less when that takes too long.
std::string Receive(int pipe) {
    const auto deadline = std::chrono::steady_clock::now() + MostTime;
    std::string bytes;
    char block[64 * 1024];
    while (bytes.size() <= 2 * MostBytes) {
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

} // namespace

std::optional<HelpMembers> ReadChmFile(const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return std::nullopt;
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return std::nullopt;
    const pid_t reader = fork();
    if (reader == 0) {
        close(ends[0]);
        SendMembers(file, ends[1]);
    }
    close(ends[1]);
    std::string bytes;
    if (reader > 0) {
        bytes = Receive(ends[0]);
        kill(reader, SIGKILL); // in vain, when it has ended by itself
        while (waitpid(reader, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    close(ends[0]);
    return MembersOf(bytes);
}
