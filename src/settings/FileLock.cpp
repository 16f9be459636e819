// SPDX-License-Identifier: MIT
#include "settings/FileLock.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

FileLock::FileLock(const std::string& path) {
    handle_ = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (handle_ < 0)
        return;
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
