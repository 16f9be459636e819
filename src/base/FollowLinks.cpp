// SPDX-License-Identifier: MIT
#include "base/FollowLinks.h"

#include "base/FileProblem.h"

#include <vector>

#if defined(__unix__) || defined(__APPLE__)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

#if defined(__unix__) || defined(__APPLE__)

bool MayBePlanted(const std::filesystem::path& link, const std::filesystem::path& folder) {
    constexpr mode_t ForAll = S_ISVTX | S_IWOTH;
    struct stat ofLink {};
    struct stat ofFolder {};
    if (::lstat(link.c_str(), &ofLink) != 0 || ::stat(folder.empty() ? "." : folder.c_str(), &ofFolder) != 0)
        return true;
    return (ofFolder.st_mode & ForAll) == ForAll && ofLink.st_uid != ::geteuid() &&
           ofLink.st_uid != ofFolder.st_uid;
}

#else

bool MayBePlanted(const std::filesystem::path&, const std::filesystem::path&) { return false; }

#endif

} // namespace

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
        else if (MayBePlanted(next, reached))
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
