// SPDX-License-Identifier: MIT
#include "base/FileHandles.h"

#include "base/LastError.h"
#include "base/SystemFile.h"
#include "base/WindowsError.h"

#include <windows.h>

#include <io.h>

namespace {

HANDLE HandleOf(const FileHandle& file) {
    return reinterpret_cast<HANDLE>(::_get_osfhandle(SystemFile::Number(file)));
}

} // namespace

void FileHandle::Close() {
    if (number_ >= 0)
        ::_close(number_);
    number_ = -1;
}

LockOutcome TryLock(const FileHandle& file) {
    // A lock here keeps others from reading and writing, so it lies where no byte is.
    OVERLAPPED behindAll{};
    behindAll.OffsetHigh = 0x40000000;
    if (LockFileEx(HandleOf(file), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1, 0,
                   &behindAll) != 0)
        return LockOutcome::Held;
    switch (GetLastError()) {
    case ERROR_LOCK_VIOLATION:
    case ERROR_IO_PENDING:
        return LockOutcome::InUse;
    case ERROR_NOT_SUPPORTED:
    case ERROR_INVALID_FUNCTION:
        return LockOutcome::Unsupported;
    default:
        FailedCall();
        return LockOutcome::Failed;
    }
}

std::error_code Flush(const FileHandle& file) {
    if (FlushFileBuffers(HandleOf(file)) != 0 || GetLastError() == ERROR_NOT_SUPPORTED ||
        GetLastError() == ERROR_INVALID_FUNCTION)
        return {};
    FailedCall();
    return LastError();
}

bool IsNameOf(const std::filesystem::path& name, const FileHandle& file) {
    BY_HANDLE_FILE_INFORMATION opened{};
    BY_HANDLE_FILE_INFORMATION named{};
    if (!file.IsOpen() || GetFileInformationByHandle(HandleOf(file), &opened) == 0)
        return false;
    const HANDLE handle =
        CreateFileW(name.c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (handle == INVALID_HANDLE_VALUE)
        return false;
    const bool isKnown = GetFileInformationByHandle(handle, &named) != 0;
    CloseHandle(handle);
    return isKnown && opened.dwVolumeSerialNumber == named.dwVolumeSerialNumber &&
           opened.nFileIndexHigh == named.nFileIndexHigh && opened.nFileIndexLow == named.nFileIndexLow;
}

bool IsRegular(const FileHandle& file) {
    BY_HANDLE_FILE_INFORMATION opened{};
    return file.IsOpen() && GetFileType(HandleOf(file)) == FILE_TYPE_DISK &&
           GetFileInformationByHandle(HandleOf(file), &opened) != 0 &&
           (opened.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT)) == 0;
}
