// SPDX-License-Identifier: MIT
#include "settings/FileLock.h"

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::chrono::seconds MostWait{5};
constexpr std::chrono::milliseconds Pause{2};

} // namespace

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
    const auto until = std::chrono::steady_clock::now() + MostWait;
    while (::flock(handle_, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EINTR && errno != EWOULDBLOCK)
            return false;
        if (std::chrono::steady_clock::now() >= until)
            break;
        std::this_thread::sleep_for(Pause);
    }
    return true;
}

FileLock::~FileLock() { Release(); }

void FileLock::Release() {
    if (handle_ >= 0)
        ::close(handle_);
    handle_ = -1;
}
