// SPDX-License-Identifier: MIT
#include "sources/OwnArchive.h"

#include "base/AsciiCase.h"
#include "comments/Comments.h"
#include "filter/FilterFile.h"

#include <array>

namespace {

constexpr std::array<ZipBound, 2> Bounds{{
    {FilterExtension, FilterFileBounds::Bytes.File, TextId::ZipFiltersTooLarge},
    {CommentsExtension, CommentsFileBounds.File, TextId::ZipCommentsTooLarge},
}};

} // namespace

std::span<const ZipBound> BoundsBesideLogbook() { return Bounds; }

std::optional<OwnMembers> FindOwnMembers(const ZipArchive& archive) {
    const std::optional<std::size_t> logbook = archive.FindMember(
        [](const ZipMember& member) { return LowerCase(member.Name).ends_with(LogExtension); });
    if (!logbook)
        return std::nullopt;
    const ZipMember& log = archive.Members()[*logbook];
    const std::string base(log.FileName().substr(0, log.FileName().size() - LogExtension.size()));
    const std::string folder = log.Name.substr(0, log.Name.size() - log.FileName().size());
    const auto beside = [&](std::string_view extension) {
        const std::string name = std::string(base).append(extension);
        const auto found = archive.FindMember(
            [&](const ZipMember& member) { return IsSameWithoutCase(member.Name, folder + name); });
        return found ? found : archive.FindMember([&](const ZipMember& member) {
            return IsSameWithoutCase(member.FileName(), name);
        });
    };
    return OwnMembers{base, *logbook, beside(FilterExtension), beside(CommentsExtension)};
}
