// SPDX-License-Identifier: MIT
#include "helpbook/ChmFile.h"

#include "base/ProgramOutput.h"
#include "helpbook/HelpMemberStream.h"

#include <cstring>
#include <string_view>

namespace {

constexpr std::chrono::seconds MostTime{10};

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

std::optional<HelpMembers> ReadChmFile(const std::filesystem::path& file,
                                       const std::filesystem::path& reader) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error))
        return std::nullopt;
    // The reader is another program: the file may bring it down.
    return MembersOf(ProgramOutput(reader, file, 2 * MostHelpBytes, MostTime));
}
