// SPDX-License-Identifier: MIT
#include "eventinfo/ErrorTextFolder.h"

#include "base/FileHandles.h"
#include "base/Paths.h"
#include "eventinfo/LanguageFile.h"
#include "settings/ReasonText.h"

#include <cerrno>
#include <utility>

namespace {

constexpr auto LargestText = static_cast<std::uint64_t>(LanguageFile::LargestSize);

std::string NameOf(const std::filesystem::path& path) { return PathText(path.filename()); }

} // namespace

ErrorTextFolder::ErrorTextFolder(const std::filesystem::path& folder, Language language)
    : language_(language) {
    std::vector<Found> found;
    // The items of one depth after those of the depth above.
    std::vector<std::filesystem::path> level{folder};
    std::size_t items = 0;
    for (std::size_t depth = 0; !level.empty(); ++depth) {
        std::vector<std::filesystem::path> below;
        for (const std::filesystem::path& place : level) {
            std::error_code error;
            for (const std::filesystem::path& item : ItemsIn(place, error)) {
                if (++items > MostItems) {
                    problem_ = Text(TextId::ErrorTextsTooMany, language);
                    return;
                }
                TakeItem(item, depth, found, below);
            }
            if (error && depth == 0) {
                problem_ = ReasonText(error, language);
                return;
            }
        }
        level = std::move(below);
    }
    Choose(std::move(found), language);
}

std::optional<std::string> ErrorTextFolder::Content(std::size_t file, std::string& reason) {
    const std::filesystem::path& path = paths_[PlaceOf(file)];
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    const FileHandle handle = OpenToHold(path);
    if (error || !IsRegular(handle) || size > LargestText) {
        reason = error ? ReasonText(error, language_)
                       : std::string(Text(size > LargestText ? TextId::FileTooLarge : TextId::NoRegularFile,
                                          language_));
        return std::nullopt;
    }
    std::string content = FirstBytes(handle, static_cast<std::size_t>(size));
    if (content.size() == size)
        return content;
    reason = SystemReason(EIO, language_);
    return std::nullopt;
}

void ErrorTextFolder::TakeItem(const std::filesystem::path& item, std::size_t depth,
                               std::vector<Found>& found, std::vector<std::filesystem::path>& below) {
    std::error_code error;
    const auto status = std::filesystem::symlink_status(item, error);
    if (std::filesystem::is_directory(status))
        below.push_back(item);
    if (!std::filesystem::is_regular_file(status))
        return;
    std::optional<ErrorTextFile> file =
        ErrorTextFileOf(NameOf(item.parent_path()).append("/").append(NameOf(item)));
    const std::uintmax_t size = file ? std::filesystem::file_size(item, error) : 0;
    if (!file || error)
        return;
    found.push_back({std::move(*file), depth, PathText(item), size, paths_.size()});
    paths_.push_back(item);
}
