// SPDX-License-Identifier: MIT
#include "sources/TempFolder.h"

#include "logbook/modUtil.h"

#include <cerrno>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* OwnPrefix = "Qorvix-temp-";

// True while the name leads to the folder that the handle was opened for.
bool IsFolderOf(int handle, const std::filesystem::path& name) {
    struct stat opened {};
    struct stat named {};
    return ::fstat(handle, &opened) == 0 && ::lstat(name.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

} // namespace

std::filesystem::path TempFolder::SystemFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return error ? std::filesystem::path() : folder;
}

TempFolder::TempFolder(const std::filesystem::path& parent) : parent_(parent) { Make(); }

void TempFolder::Make() const {
    Release();
    if (parent_.empty())
        return;
    RemoveLeft();
    // A copy that ends may remove the folder between its making and its taking.
    constexpr int Attempts = 100;
    const std::filesystem::path shared = parent_ / "Qorvix";
    for (int i = 0; i < Attempts; ++i) {
        ::mkdir(shared.c_str(), S_IRWXU);
        const Taking taking = Take(shared);
        if (taking == Taking::Held)
            return Empty();
        if (taking == Taking::Refused)
            break;
    }
    // Another copy that begins may take a new folder for a left one.
    for (int i = 0; i < Attempts && lock_ < 0; ++i) {
        std::string own = (parent_ / OwnPrefix).string() + "XXXXXX";
        if (::mkdtemp(own.data()) == nullptr)
            break;
        if (Take(own) != Taking::Held)
            ::rmdir(own.c_str());
    }
}

void TempFolder::RemoveLeft() const {
    for (const std::filesystem::path& item : ItemsIn(parent_))
        if (item.filename().string().starts_with(OwnPrefix) && Take(item) == Taking::Held)
            Remove();
}

// Holds the folder when it is this user's, no link, and free.
TempFolder::Taking TempFolder::Take(const std::filesystem::path& folder) const {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return errno == ENOENT ? Taking::Gone : Taking::Refused;
    struct stat status {};
    const bool held = ::fstat(handle, &status) == 0 && status.st_uid == ::geteuid() &&
                      ::flock(handle, LOCK_EX | LOCK_NB) == 0 && ::fchmod(handle, S_IRWXU) == 0;
    if (held && IsFolderOf(handle, folder)) {
        path_ = folder;
        lock_ = handle;
        return Taking::Held;
    }
    ::close(handle);
    return held ? Taking::Gone : Taking::Refused;
}

bool TempFolder::IsHeld() const { return lock_ >= 0 && IsFolderOf(lock_, path_); }

void TempFolder::Release() const {
    if (lock_ >= 0)
        ::close(lock_);
    lock_ = -1;
    path_.clear();
}

TempFolder::~TempFolder() {
    // Another copy may have made a folder of that name since this one's was removed.
    if (IsHeld())
        Remove();
    Release();
}

void TempFolder::Remove() const {
    Empty();
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
    Release();
}

void TempFolder::Empty() const {
    std::error_code ignored;
    for (const std::filesystem::path& item : ItemsIn(path_))
        std::filesystem::remove_all(item, ignored);
}

std::filesystem::path TempFolder::MakeSubfolder() const {
    if (!IsHeld())
        Make();
    if (path_.empty())
        return {};
    std::string folder = (path_ / "new-XXXXXX").string();
    return ::mkdtemp(folder.data()) != nullptr ? std::filesystem::path(folder) : std::filesystem::path();
}
