// SPDX-License-Identifier: MIT
#include "settings/FileLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

FileLock::FileLock(const std::string& path) {
    // Readable for all, so that a run as another user does not shut this one out.
    constexpr mode_t Mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    // A pipe is opened without waiting for its other end.
    handle_ = ::open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, Mode);
    if (!Take(Mode))
        Release();
}

bool FileLock::Take(unsigned mode) const {
    struct stat status {};
    if (handle_ < 0 || ::fstat(handle_, &status) != 0 || !S_ISREG(status.st_mode))
        return false;
    (void)::fchmod(handle_, mode);
    int result = 0;
    do
        result = ::flock(handle_, LOCK_EX);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

FileLock::~FileLock() { Release(); }

void FileLock::Release() {
    if (handle_ >= 0)
        ::close(handle_);
    handle_ = -1;
}
