// SPDX-License-Identifier: MIT
#include "sources/LostJournal.h"

#include <array>
#include <cstring>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool BeginsLikeAJournal(int handle) {
    std::array<char, 256> begin;
    const ssize_t count = ::pread(handle, begin.data(), begin.size(), 0);
    return count > 0 && std::memchr(begin.data(), '\n', static_cast<std::size_t>(count)) != nullptr;
}

bool IsOrdinaryFile(int handle) {
    struct stat opened {};
    return ::fstat(handle, &opened) == 0 && S_ISREG(opened.st_mode);
}

} // namespace

std::optional<LostJournal> LostJournal::Hold(const std::filesystem::path& file) {
    const int handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK);
    if (handle < 0)
        return std::nullopt;
    LostJournal journal(file, handle);
    if (!IsOrdinaryFile(handle) || !BeginsLikeAJournal(handle) || ::flock(handle, LOCK_EX | LOCK_NB) != 0)
        return std::nullopt;
    return journal;
}

LostJournal::~LostJournal() {
    if (handle_ >= 0)
        ::close(handle_);
}

void LostJournal::Remove() const {
    std::error_code ignored;
    if (IsNameOf(file_, handle_))
        std::filesystem::remove(file_, ignored);
}

bool IsNameOf(const std::filesystem::path& name, int handle) {
    struct stat opened {};
    struct stat named {};
    return handle >= 0 && ::fstat(handle, &opened) == 0 && ::lstat(name.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}
