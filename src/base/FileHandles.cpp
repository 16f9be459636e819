// SPDX-License-Identifier: MIT
#include "base/FileHandles.h"

#include "base/SystemFile.h"

#include <cerrno>

FileHandle OpenToLock(const std::filesystem::path& file, SystemFile::Existing existing) {
    FileHandle handle =
        SystemFile::Open(file, {.Access = SystemFile::Access::ReadWrite, .Existing = existing});
    if (!handle.IsOpen() && (errno == EACCES || errno == EPERM || errno == EROFS))
        handle = SystemFile::Open(file, {.Access = SystemFile::Access::Read, .Existing = existing});
    return handle;
}

FileHandle OpenToHold(const std::filesystem::path& file) {
    return OpenToLock(file, SystemFile::Existing::Must);
}

std::string FirstBytes(const FileHandle& file, std::size_t most) {
    std::string begin(most, '\0');
    const std::int64_t count = SystemFile::ReadAt(file, 0, begin.data(), most);
    begin.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return begin;
}
