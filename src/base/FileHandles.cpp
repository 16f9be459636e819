// SPDX-License-Identifier: MIT
#include "base/FileHandles.h"

#include <cerrno>

#if defined(__unix__) || defined(__APPLE__)

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

void FileHandle::Close() {
    if (number_ >= 0)
        ::close(number_);
    number_ = -1;
}

FileHandle OpenToLock(const std::filesystem::path& file, int flags, unsigned mode) {
    FileHandle handle(::open(file.c_str(), flags | O_RDWR | O_CLOEXEC, mode));
    if (!handle.IsOpen() && (errno == EACCES || errno == EPERM || errno == EROFS))
        handle = FileHandle(::open(file.c_str(), flags | O_RDONLY | O_CLOEXEC, mode));
    return handle;
}

LockOutcome TryLock(int handle) {
    constexpr int Attempts = 100; // signals may come in between, but not for ever
    int locked = -1;
    for (int i = 0; i < Attempts && locked != 0; ++i) {
        locked = ::flock(handle, LOCK_EX | LOCK_NB);
        if (locked != 0 && errno != EINTR)
            break;
    }
    if (locked == 0)
        return LockOutcome::Held;
    // A network answers EBADF for a handle that is not open for writing, which OpenToLock falls back to.
    const bool unsupported = errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOTSUP || errno == ENOSYS ||
                             errno == EINVAL || errno == EBADF;
    if (unsupported)
        return LockOutcome::Unsupported;
    return errno == EWOULDBLOCK ? LockOutcome::InUse : LockOutcome::Failed;
}

std::error_code Flush(int handle) {
    errno = 0;
    if (::fsync(handle) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP || errno == ENOTSUP)
        return {};
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

bool IsNameOf(const std::filesystem::path& name, int handle) {
    struct stat opened {};
    struct stat named {};
    return handle >= 0 && ::fstat(handle, &opened) == 0 && ::lstat(name.c_str(), &named) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

#else

void FileHandle::Close() {}
FileHandle OpenToLock(const std::filesystem::path&, int, unsigned) { return {}; }
LockOutcome TryLock(int) { return LockOutcome::Unsupported; }
std::error_code Flush(int) { return {}; }
bool IsNameOf(const std::filesystem::path&, int) { return false; }

#endif
