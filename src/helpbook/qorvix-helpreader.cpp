// SPDX-License-Identifier: MIT
// The program that reads a help file for others: `qorvix-helpreader FILE` writes its members to standard
// output (HelpMemberStream.h). It may fail in any way; ReadChmFile, which starts it, then treats the file as
// damaged.
#include "helpbook/HelpMemberStream.h"

#include <chm_lib.h>

#include <cerrno>
#include <cstring>
#include <string_view>
#include <vector>

#include <sys/resource.h>
#include <unistd.h>

namespace {

constexpr std::size_t MostMembers = 10'000;
constexpr rlim_t MostProcessorSeconds = 5;

// Skips an orderly exit: a damaged heap may not survive one.
[[noreturn]] void GiveUp() { _exit(1); }

void Send(const void* data, std::size_t size) {
    const char* bytes = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t written = write(STDOUT_FILENO, bytes, size);
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

void SendMembers(chmFile& file, std::vector<chmUnitInfo>& units) {
    std::size_t total = 0;
    for (chmUnitInfo& unit : units) {
        const std::string_view name(unit.path, strnlen(unit.path, sizeof unit.path));
        if (!name.starts_with('/') || name.ends_with('/'))
            continue;
        if (unit.length > MostHelpBytes - total)
            GiveUp();
        std::vector<unsigned char> content(unit.length);
        if (!content.empty() &&
            chm_retrieve_object(&file, &unit, content.data(), 0, static_cast<LONGINT64>(content.size())) !=
                static_cast<LONGINT64>(content.size()))
            content.clear(); // a member that cannot be read is there, and is empty
        total += content.size();
        const MemberHead head{name.size(), content.size()};
        Send(&head, sizeof head);
        Send(name.data(), name.size());
        Send(content.data(), content.size());
    }
    const MemberHead end;
    Send(&end, sizeof end);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2)
        return 1;
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    const rlimit processorTime{MostProcessorSeconds, MostProcessorSeconds};
    setrlimit(RLIMIT_CPU, &processorTime);

    chmFile* const file = chm_open(argv[1]);
    if (!file)
        GiveUp();
    std::vector<chmUnitInfo> units;
    if (!chm_enumerate(file, CHM_ENUMERATE_ALL, CollectMember, &units))
        GiveUp();
    SendMembers(*file, units);
    _exit(0);
}
