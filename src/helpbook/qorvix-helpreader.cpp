// SPDX-License-Identifier: MIT
// The program that reads a help file for others: `qorvix-helpreader FILE` writes its members to standard
// output (HelpMemberStream.h). It may fail in any way; ReadChmFile, which starts it, then treats the file as
// damaged.
#include "base/Arguments.h"
#include "base/Paths.h"
#include "base/ProgramOutput.h"
#include "helpbook/HelpMemberStream.h"

#include <chm_lib.h>

#include <cstring>
#include <string_view>
#include <vector>

namespace {

constexpr std::size_t MostMembers = 10'000;
constexpr int MostProcessorSeconds = 5;

[[noreturn]] void GiveUp() { EndThisProcess(1); }

void Send(const void* data, std::size_t size) {
    if (!WriteToStandardOutput(data, size))
        GiveUp();
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
    const std::vector<std::string> arguments = Arguments(argc, argv);
    if (arguments.size() != 1)
        return 1;
    LimitThisProcess(MostProcessorSeconds);

    // libchm opens files by names of the system's code page, which need not have the letters of all folders.
    const std::filesystem::path path = ToPath(arguments.front());
    std::error_code error;
    if (path.has_parent_path())
        std::filesystem::current_path(path.parent_path(), error);
    chmFile* const file = error ? nullptr : chm_open(PathText(path.filename()).c_str());
    if (!file)
        GiveUp();
    std::vector<chmUnitInfo> units;
    if (!chm_enumerate(file, CHM_ENUMERATE_ALL, CollectMember, &units))
        GiveUp();
    SendMembers(*file, units);
    EndThisProcess(0);
}
