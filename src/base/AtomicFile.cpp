// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "base/FileProblem.h"
#include "base/FollowLinks.h"
#include "base/LastError.h"
#include "base/Paths.h"
#include "base/SystemFile.h"

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace {

#if defined(__unix__) || defined(__APPLE__)

// A part file is for its owner only until this widens that; after a failure it stays so.
void GivePermissionsOf(const std::filesystem::path& target, int handle) {
    constexpr mode_t Unmasked = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    constexpr mode_t OfGroup = S_IRWXG;
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

// Makes the part file ready for its place.
std::error_code Finish(const std::filesystem::path& part, const std::filesystem::path& target) {
    errno = 0;
    const FileHandle handle = SystemFile::Handle(::open(part.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC));
    if (!handle.IsOpen())
        return LastError();
    GivePermissionsOf(target, SystemFile::Number(handle));
    return Flush(handle);
}

#else

std::error_code Finish(const std::filesystem::path&, const std::filesystem::path&) { return {}; }

#endif

} // namespace

AtomicFile::AtomicFile(const std::string& path) : target_(FollowLinks(ToPath(path), error_)) {
    if (!error_ && CheckRegularFile(target_) == FileProblem::NoRegularFile)
        error_ = FileProblem::NoRegularFile;
    if (error_)
        return;
    part_ = MakePartFile(target_, error_);
    if (part_.Path.empty())
        return;
    errno = 0;
    stream_.open(part_.Path, std::ios::binary | std::ios::trunc);
    if (!stream_)
        error_ = LastError();
}

AtomicFile::~AtomicFile() {
    stream_.close();
    std::error_code ignored;
    if (!part_.Path.empty())
        std::filesystem::remove(part_.Path, ignored);
}

std::error_code AtomicFile::Prepare() {
    if (error_ || isPrepared_)
        return error_;
    // Closing does not say again why a write failed.
    if (stream_)
        errno = 0;
    stream_.close();
    if (!stream_)
        return error_ = LastError();
    isPrepared_ = true;
    return error_ = Finish(part_.Path, target_);
}

std::error_code AtomicFile::Commit() {
    if (Prepare())
        return error_;
    const std::filesystem::path folder = target_.parent_path();
    std::filesystem::rename(part_.Path, target_, error_);
    if (error_)
        return error_;
    part_.Path.clear();
    FlushFolder(folder);
    return {};
}

void FlushFolder([[maybe_unused]] const std::filesystem::path& folder) {
#if defined(__unix__) || defined(__APPLE__)
    const FileHandle handle =
        SystemFile::Handle(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (handle.IsOpen())
        (void)Flush(handle);
#endif
}
