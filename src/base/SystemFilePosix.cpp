// SPDX-License-Identifier: MIT
#include "base/SystemFile.h"

#include "base/AtomicFile.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr mode_t OwnerFile = S_IRUSR | S_IWUSR;
constexpr mode_t Permissions = S_IRWXU | S_IRWXG | S_IRWXO;

bool IsOwnOfType(const std::filesystem::path& path, mode_t type) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && (status.st_mode & S_IFMT) == type &&
           status.st_uid == ::geteuid();
}

} // namespace

FileHandle SystemFile::Open(const std::filesystem::path& path, const Opening& opening) {
    int flags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    flags |= opening.Access == Access::Read        ? O_RDONLY
             : opening.Access == Access::ReadWrite ? O_RDWR
                                                   : O_RDWR | O_APPEND;
    flags |= opening.Existing == Existing::Must  ? 0
             : opening.Existing == Existing::May ? O_CREAT
                                                 : O_CREAT | O_EXCL;
    return Handle(::open(path.c_str(), flags | (opening.FollowsLink ? 0 : O_NOFOLLOW), OwnerFile));
}

FileHandle SystemFile::HoldFolder(const std::filesystem::path& folder) {
    return Handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

std::int64_t SystemFile::Size(const FileHandle& file) {
    struct stat status {};
    return ::fstat(Number(file), &status) == 0 ? std::int64_t{status.st_size} : -1;
}

bool SystemFile::Resize(const FileHandle& file, std::int64_t size) {
    return ::ftruncate(Number(file), static_cast<off_t>(size)) == 0;
}

std::int64_t SystemFile::ReadAt(const FileHandle& file, std::int64_t place, char* bytes, std::size_t most) {
    return ::pread(Number(file), bytes, most, static_cast<off_t>(place));
}

bool SystemFile::WriteAt(const FileHandle& file, std::int64_t& place, std::string_view bytes) {
    while (!bytes.empty()) {
        errno = 0;
        const ssize_t count = ::pwrite(Number(file), bytes.data(), bytes.size(), static_cast<off_t>(place));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
        place += count;
    }
    return true;
}

bool SystemFile::Append(const FileHandle& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t count = ::write(Number(file), bytes.data(), bytes.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

// A part file is for its owner only until this widens that; after a failure it stays so.
void SystemFile::GivePermissionsOf(const std::filesystem::path& target, const FileHandle& file) {
    constexpr mode_t Unmasked = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    constexpr mode_t OfGroup = S_IRWXG;
    const int handle = Number(file);
    struct stat replaced {};
    struct stat part {};
    if (::fstat(handle, &part) != 0)
        return;
    if (::stat(target.c_str(), &replaced) != 0) {
        // The mask can be read only by setting it; meanwhile nothing is made that others may read.
        const mode_t mask = ::umask(S_IRWXG | S_IRWXO);
        ::umask(mask);
        (void)::fchmod(handle, Unmasked & ~mask);
        return;
    }
    mode_t mode = replaced.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    // A group's permissions are for that group alone; another group gets no more than everybody else.
    if (part.st_gid != replaced.st_gid && ::fchown(handle, static_cast<uid_t>(-1), replaced.st_gid) != 0)
        mode &= ~OfGroup | ((mode & S_IRWXO) << 3U);
    (void)::fchmod(handle, mode);
}

std::error_code SystemFile::Replace(const std::filesystem::path& file, const std::filesystem::path& target) {
    std::error_code error;
    std::filesystem::rename(file, target, error);
    return error;
}

void SystemFile::ShareForReading(const FileHandle& file) {
    (void)::fchmod(Number(file), OwnerFile | S_IRGRP | S_IROTH);
}

bool SystemFile::MakeFolder(const std::filesystem::path& folder) {
    return ::mkdir(folder.c_str(), S_IRWXU) == 0;
}

bool SystemFile::RemoveFile(const std::filesystem::path& file) { return ::unlink(file.c_str()) == 0; }
bool SystemFile::RemoveFolder(const std::filesystem::path& folder) { return ::rmdir(folder.c_str()) == 0; }

bool SystemFile::IsNameOfDevice(const std::filesystem::path&) { return false; }

bool SystemFile::IsOwnFile(const std::filesystem::path& path) { return IsOwnOfType(path, S_IFREG); }
bool SystemFile::IsOwnFolder(const std::filesystem::path& path) { return IsOwnOfType(path, S_IFDIR); }

bool SystemFile::IsOwn(const FileHandle& file) {
    struct stat status {};
    return ::fstat(Number(file), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

bool SystemFile::IsPrivate(const FileHandle& file) {
    struct stat status {};
    return ::fstat(Number(file), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & Permissions) == OwnerFile && status.st_nlink == 1;
}

bool SystemFile::IsPrivateFolder(const std::filesystem::path& path) {
    struct stat status {};
    return IsOwnOfType(path, S_IFDIR) && ::lstat(path.c_str(), &status) == 0 &&
           (status.st_mode & Permissions) == S_IRWXU;
}

bool SystemFile::MayBePlanted(const std::filesystem::path& link, const std::filesystem::path& folder) {
    constexpr mode_t ForAll = S_ISVTX | S_IWOTH;
    struct stat ofLink {};
    struct stat ofFolder {};
    if (::lstat(link.c_str(), &ofLink) != 0 || ::stat(folder.empty() ? "." : folder.c_str(), &ofFolder) != 0)
        return true;
    return (ofFolder.st_mode & ForAll) == ForAll && ofLink.st_uid != ::geteuid() &&
           ofLink.st_uid != ofFolder.st_uid;
}

void FlushFolder(const std::filesystem::path& folder) {
    const FileHandle handle =
        SystemFile::Handle(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.IsOpen())
        (void)Flush(handle);
}
