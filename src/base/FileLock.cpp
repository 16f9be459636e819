// SPDX-License-Identifier: MIT
#include "base/FileLock.h"

#include "base/SystemFile.h"

#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr std::chrono::seconds MostWait{5};
constexpr std::chrono::milliseconds Pause{2};

} // namespace

FileLock::FileLock(const std::string& path) {
    // Readable for all, so that a file made by another user does not shut this one out.
    constexpr mode_t Mode = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
    // Does not wait for the other end of a pipe. Follows no link: it may lead to any file.
    constexpr int Flags = O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    handle_ = OpenToLock(path, Flags | O_CREAT | O_EXCL, Mode);
    if (handle_.IsOpen())
        (void)::fchmod(SystemFile::Number(handle_), Mode);
    else
        handle_ = OpenToLock(path, Flags | O_CREAT, Mode);
    if (!Take())
        handle_.Close();
}

bool FileLock::Take() const {
    if (!IsRegular(handle_))
        return false;
    const auto until = std::chrono::steady_clock::now() + MostWait;
    LockOutcome lock = TryLock(handle_);
    for (; lock == LockOutcome::InUse && std::chrono::steady_clock::now() < until; lock = TryLock(handle_))
        std::this_thread::sleep_for(Pause);
    return lock != LockOutcome::Failed;
}
