// SPDX-License-Identifier: MIT
#include "logbook/PartFiles.h"

#include "logbook/modUtil.h"

#include <cerrno>
#include <cstdio>
#include <random>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace {

constexpr std::string_view Extension = ".part";

// What the names of the part files begin with, before a ".". The longest names leave no room behind them.
std::filesystem::path StemOf(const std::filesystem::path& target) {
    constexpr std::size_t LongestStem = 200;
    return target.filename().native().substr(0, LongestStem);
}

} // namespace

std::filesystem::path MakePartFile(const std::filesystem::path& target, std::error_code& error) {
    constexpr int Attempts = 100;
    std::random_device random;
    for (int i = 0; i < Attempts; ++i) {
        std::filesystem::path part = target.parent_path() / StemOf(target);
        part += ToPath("." + std::to_string(random()).append(Extension));
        errno = 0;
        if (std::FILE* file = std::fopen(part.string().c_str(), "wbx"); file != nullptr) {
            std::fclose(file);
            return part;
        }
        error = {errno != 0 ? errno : EIO, std::generic_category()};
        if (error != std::errc::file_exists)
            return {};
    }
    return {};
}

#if defined(__unix__) || defined(__APPLE__)

namespace {

bool IsPartFile(std::string_view name, const std::string& stem) {
    if (!name.starts_with(stem + '.'))
        return false;
    name.remove_prefix(stem.size() + 1);
    const std::size_t digits = name.find_first_not_of("0123456789");
    if (digits == 0 || digits == std::string_view::npos)
        return false;
    name.remove_prefix(digits);
    return name == Extension || name.starts_with(std::string(Extension) + '.');
}

std::filesystem::path FolderOf(const std::filesystem::path& target) {
    return target.has_parent_path() ? target.parent_path() : ".";
}

void RemovePartFiles(const std::filesystem::path& target) {
    std::error_code ignored;
    for (const std::filesystem::path& item : ItemsIn(FolderOf(target)))
        if (IsPartFile(item.filename().native(), StemOf(target)))
            std::filesystem::remove(item, ignored);
}

} // namespace

PartFilesInUse::PartFilesInUse(const std::filesystem::path& target)
    : handle_(::open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    if (handle_ < 0)
        return;
    if (::flock(handle_, LOCK_EX | LOCK_NB) == 0)
        RemovePartFiles(target);
    // Who holds the folder alone is removing, which takes a moment. A lock of another kind of program is not
    // waited for.
    constexpr int Attempts = 100;
    constexpr useconds_t Pause = 1000;
    for (int i = 0; i < Attempts && ::flock(handle_, LOCK_SH | LOCK_NB) != 0; ++i)
        ::usleep(Pause);
}

PartFilesInUse::~PartFilesInUse() {
    if (handle_ >= 0)
        ::close(handle_);
}

#else

PartFilesInUse::PartFilesInUse(const std::filesystem::path&) {}
PartFilesInUse::~PartFilesInUse() = default;

#endif
