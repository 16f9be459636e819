// SPDX-License-Identifier: MIT
#include "base/TempFolder.h"

#include "base/Paths.h"
#include "base/ProgramFolder.h"
#include "base/RandomName.h"
#include "base/SystemFile.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>
#include <system_error>

namespace {

constexpr std::size_t CharacterCount = 6;
constexpr const char* SharedName = "Qorvix";
constexpr std::string_view OwnPrefix = "Qorvix-temp-";

// Others may come in between, but not for ever.
constexpr int Attempts = 20;

std::filesystem::path RandomName(std::string_view prefix) {
    return ToPath(std::string(prefix) + RandomCharacters(CharacterCount));
}

bool HasOwnName(const std::filesystem::path& folder) {
    const std::string name = PathText(folder.filename());
    return name == SharedName ||
           (name.starts_with(OwnPrefix) && name.size() == OwnPrefix.size() + CharacterCount &&
            name.find_first_not_of(NameCharacters, OwnPrefix.size()) == std::string::npos);
}

// The name of something below a folder, as the folder's mark has it.
std::string NameIn(const std::filesystem::path& folder, const std::filesystem::path& path) {
    return GenericPathText(path.lexically_relative(folder));
}

} // namespace

std::filesystem::path TempFolder::SystemFolder() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (!error)
        return folder;
    // Variables that are set but empty name no folder.
    const char* const named = std::getenv("TMPDIR");
    return named != nullptr && *named == '\0' ? std::filesystem::path("/tmp") : std::filesystem::path();
}

TempFolder::TempFolder(const std::filesystem::path& parent, const std::vector<std::string>& kept)
    : parent_(parent) {
    if (parent_.empty())
        return;
    RemoveLeft(kept);
    Make();
}

TempFolder::~TempFolder() {
    // Another copy may have made a folder of that name since this one's was removed.
    try {
        if (mark_ && mark_->IsThere())
            mark_->Remove();
    } catch (const std::bad_alloc&) {
        // The next copy of the program that starts removes it.
    }
}

void TempFolder::RemoveLeft(const std::vector<std::string>& kept) const {
    for (const std::filesystem::path& folder : ItemsIn(parent_)) {
        const auto isIn = [&](const std::string& path) { return LiesIn(ToPath(path), folder); };
        if (!HasOwnName(folder) || isIn(ProgramFolder()) || std::any_of(kept.begin(), kept.end(), isIn))
            continue;
        if (std::optional<TempFolderMark> left = TempFolderMark::Take(folder))
            left->Remove();
    }
}

void TempFolder::Make() const {
    mark_.reset();
    path_.clear();
    if (parent_.empty())
        return;
    for (int i = 0; i < Attempts; ++i) {
        const bool isMade = SystemFile::MakeFolder(parent_ / SharedName);
        if (isMade && Mark(parent_ / SharedName))
            return;
        if (!isMade)
            break;
    }
    for (int i = 0; i < Attempts; ++i) {
        const std::filesystem::path own = parent_ / RandomName(OwnPrefix);
        const bool isMade = SystemFile::MakeFolder(own);
        if (isMade && Mark(own))
            return;
        if (!isMade && errno != EEXIST)
            return;
    }
}

// Marks a folder that was just made; removes it when that fails.
bool TempFolder::Mark(const std::filesystem::path& folder) const {
    mark_ = TempFolderMark::Make(folder);
    if (mark_)
        path_ = folder;
    else
        SystemFile::RemoveFolder(folder);
    return mark_.has_value();
}

std::filesystem::path TempFolder::MakeSubfolder() const {
    if (!mark_ || !mark_->IsThere())
        Make();
    for (int i = 0; i < Attempts && mark_; ++i) {
        const std::string name = PathText(RandomName("new-"));
        std::error_code ignored;
        if (std::filesystem::exists(std::filesystem::symlink_status(path_ / ToPath(name), ignored)))
            continue;
        if (mark_->Note(name + '/') && SystemFile::MakeFolder(path_ / ToPath(name)))
            return path_ / ToPath(name);
        break;
    }
    return {};
}

void TempFolder::RemoveSubfolder(const std::filesystem::path& folder) const {
    try {
        if (mark_ && !folder.empty())
            mark_->RemoveFolder(NameIn(path_, folder) + '/');
    } catch (const std::bad_alloc&) {
        // What is left is still noted.
    }
}

bool TempFolder::IsForeign(const std::filesystem::path& file) const {
    std::error_code ignored;
    return !mark_->HasNoted(NameIn(path_, file)) &&
           std::filesystem::exists(std::filesystem::symlink_status(file, ignored));
}

bool TempFolder::Note(const std::vector<std::filesystem::path>& files) const {
    return mark_ &&
           std::none_of(files.begin(), files.end(), [&](const auto& file) { return IsForeign(file); }) &&
           std::all_of(files.begin(), files.end(),
                       [&](const auto& file) { return mark_->Note(NameIn(path_, file)); });
}

void TempFolder::RemoveFile(const std::filesystem::path& file) const {
    if (mark_ && mark_->HasNoted(NameIn(path_, file)))
        SystemFile::RemoveFile(file);
}
