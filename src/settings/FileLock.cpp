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
    handle_ = ::open(path.c_str(), O_RDONLY | O_CREAT | O_CLOEXEC, Mode);
    if (handle_ < 0)
        return;
    (void)::fchmod(handle_, Mode);
    while (::flock(handle_, LOCK_EX) != 0)
        if (errno != EINTR) {
            ::close(handle_);
            handle_ = -1;
            return;
        }
}

FileLock::~FileLock() {
    if (handle_ >= 0)
        ::close(handle_);
}
