// SPDX-License-Identifier: MIT
#include "base/FollowLinks.h"

#include "base/FileProblem.h"
#include "base/SystemFile.h"

#include <vector>

std::filesystem::path FollowLinks(const std::filesystem::path& path, std::error_code& error) {
    constexpr int MostLinks = 40;
    std::vector<std::filesystem::path> left; // the parts that are still to go, the next one last
    const auto go = [&](const std::filesystem::path& way) {
        const std::vector<std::filesystem::path> parts(way.begin(), way.end());
        left.insert(left.end(), parts.rbegin(), parts.rend());
    };
    error.clear();
    go(path);
    std::filesystem::path reached; // without links
    for (int links = 0; !left.empty();) {
        const std::filesystem::path next = reached / left.back();
        left.pop_back();
        std::error_code noLink;
        if (!std::filesystem::is_symlink(next, noLink)) {
            reached = next;
            continue;
        }
        if (links++ == MostLinks)
            error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
        else if (SystemFile::MayBePlanted(next, reached))
            error = FileProblem::ForeignLink;
        if (error)
            return path;
        const std::filesystem::path link = std::filesystem::read_symlink(next, error);
        if (error)
            return path;
        if (link.is_absolute())
            reached.clear();
        go(link);
    }
    return reached;
}
