// SPDX-License-Identifier: MIT
#include "sources/OwnArchive.h"

#include "base/AsciiCase.h"
#include "comments/Comments.h"
#include "filter/FilterFile.h"

#include <algorithm>
#include <array>
#include <vector>

namespace {

constexpr std::array<ZipBound, 2> Bounds{{
    {FilterExtension, FilterFileBounds::Bytes.File, TextId::ZipFiltersTooLarge},
    {CommentsExtension, CommentsFileBounds.File, TextId::ZipCommentsTooLarge},
}};

// The first member that fits.
template <typename Condition>
std::optional<std::size_t> Find(const std::vector<ZipMember>& members, const Condition& fits) {
    const auto member = std::find_if(members.begin(), members.end(), fits);
    if (member == members.end())
        return std::nullopt;
    return static_cast<std::size_t>(member - members.begin());
}

} // namespace

std::span<const ZipBound> BoundsBesideLogbook() { return Bounds; }

std::optional<OwnMembers> FindOwnMembers(const ZipArchive& archive) {
    const std::vector<ZipMember>& members = archive.Members();
    const std::optional<std::size_t> logbook =
        Find(members, [](const ZipMember& member) { return LowerCase(member.Name).ends_with(LogExtension); });
    if (!logbook)
        return std::nullopt;
    const ZipMember& log = members[*logbook];
    const std::string base(log.FileName().substr(0, log.FileName().size() - LogExtension.size()));
    const std::string folder = log.Name.substr(0, log.Name.size() - log.FileName().size());
    const auto beside = [&](std::string_view extension) {
        const std::string name = std::string(base).append(extension);
        const auto found = Find(
            members, [&](const ZipMember& member) { return IsSameWithoutCase(member.Name, folder + name); });
        return found ? found : Find(members, [&](const ZipMember& member) {
            return IsSameWithoutCase(member.FileName(), name);
        });
    };
    return OwnMembers{base, *logbook, beside(FilterExtension), beside(CommentsExtension)};
}
