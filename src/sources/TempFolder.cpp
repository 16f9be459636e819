// SPDX-License-Identifier: MIT
#include "sources/TempFolder.h"

#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

std::filesystem::path TempFolder::SystemFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    return error ? std::filesystem::path() : folder;
}

TempFolder::TempFolder(const std::filesystem::path& parent) {
    if (parent.empty())
        return;
    const std::filesystem::path shared = parent / "Qorvix";
    ::mkdir(shared.c_str(), S_IRWXU);
    if (Take(shared)) {
        Empty();
        return;
    }
    std::string own = (parent / "Qorvix-XXXXXX").string();
    if (::mkdtemp(own.data()) != nullptr)
        Take(own);
}

// Holds the folder when it is this user's, no link, and free.
bool TempFolder::Take(const std::filesystem::path& folder) {
    const int handle = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (handle < 0)
        return false;
    struct stat status {};
    if (::fstat(handle, &status) != 0 || status.st_uid != ::geteuid() ||
        ::flock(handle, LOCK_EX | LOCK_NB) != 0 || ::fchmod(handle, S_IRWXU) != 0) {
        ::close(handle);
        return false;
    }
    path_ = folder;
    lock_ = handle;
    return true;
}

TempFolder::~TempFolder() {
    if (lock_ < 0)
        return;
    Empty();
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
    ::close(lock_);
}

void TempFolder::Empty() const {
    std::error_code ignored;
    for (const auto& item : std::filesystem::directory_iterator(path_, ignored))
        std::filesystem::remove_all(item.path(), ignored);
}

std::filesystem::path TempFolder::MakeSubfolder() const {
    if (path_.empty())
        return {};
    std::string folder = (path_ / "new-XXXXXX").string();
    return ::mkdtemp(folder.data()) != nullptr ? std::filesystem::path(folder) : std::filesystem::path();
}
