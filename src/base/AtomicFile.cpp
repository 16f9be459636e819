// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "base/FileProblem.h"
#include "base/FollowLinks.h"
#include "base/LastError.h"
#include "base/Paths.h"
#include "base/SystemFile.h"

namespace {

// Makes the part file ready for its place.
std::error_code Finish(const std::filesystem::path& part, const std::filesystem::path& target) {
    errno = 0;
    const FileHandle handle = SystemFile::Open(part, {.Access = SystemFile::Access::ReadWrite});
    if (!handle.IsOpen())
        return LastError();
    SystemFile::GivePermissionsOf(target, handle);
    return Flush(handle);
}

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
    if ((error_ = SystemFile::Replace(part_.Path, target_)))
        return error_;
    part_.Path.clear();
    part_.Handle.Close(); // the next writer may not be able to replace a file that is open
    FlushFolder(folder);
    return {};
}
