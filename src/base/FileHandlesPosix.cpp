// SPDX-License-Identifier: MIT
#include "base/FileHandles.h"

#include "base/LastError.h"
#include "base/SystemFile.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

void FileHandle::Close() {
    if (number_ >= 0)
        ::close(number_);
    number_ = -1;
}

LockOutcome TryLock(const FileHandle& file) {
    constexpr int Attempts = 100; // signals may come in between, but not for ever
    int locked = -1;
    for (int i = 0; i < Attempts && locked != 0; ++i) {
        locked = ::flock(SystemFile::Number(file), LOCK_EX | LOCK_NB);
        if (locked != 0 && errno != EINTR)
            break;
    }
    if (locked == 0)
        return LockOutcome::Held;
    // A network answers EBADF for a handle that is open for reading only, which OpenToLock falls back to.
    const bool unsupported = errno == ENOLCK || errno == EOPNOTSUPP || errno == ENOTSUP || errno == ENOSYS ||
                             errno == EINVAL || errno == EBADF;
    if (unsupported)
        return LockOutcome::Unsupported;
    return errno == EWOULDBLOCK ? LockOutcome::InUse : LockOutcome::Failed;
}

std::error_code Flush(const FileHandle& file) {
    errno = 0;
    if (::fsync(SystemFile::Number(file)) == 0 || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP ||
        errno == ENOTSUP)
        return {};
    return LastError();
}

bool IsNameOf(const std::filesystem::path& name, const FileHandle& file) {
    struct stat opened {};
    struct stat named {};
    return file.IsOpen() && ::fstat(SystemFile::Number(file), &opened) == 0 &&
           ::lstat(name.c_str(), &named) == 0 && opened.st_dev == named.st_dev &&
           opened.st_ino == named.st_ino;
}

bool IsRegular(const FileHandle& file) {
    struct stat opened {};
    return file.IsOpen() && ::fstat(SystemFile::Number(file), &opened) == 0 && S_ISREG(opened.st_mode);
}
