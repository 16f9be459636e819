// SPDX-License-Identifier: MIT
#include "logbook/AtomicFile.h"

#include "logbook/FileProblem.h"
#include "logbook/modUtil.h"

#include <cerrno>

#if defined(__unix__) || defined(__APPLE__)
#include <fcntl.h>
#include <unistd.h>
#endif

namespace {

std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

std::error_code FlushToDisk([[maybe_unused]] const std::filesystem::path& file) {
#if defined(__unix__) || defined(__APPLE__)
    const int handle = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0)
        return LastError();
    const std::error_code error = ::fsync(handle) == 0 ? std::error_code{} : LastError();
    ::close(handle);
    return error;
#else
    return {};
#endif
}

// The file that a link names in the end, also when it does not exist yet.
std::filesystem::path FollowLinks(std::filesystem::path path, std::error_code& error) {
    constexpr int MostLinks = 40;
    std::error_code noLink;
    for (int links = 0; std::filesystem::is_symlink(path, noLink); ++links) {
        if (links == MostLinks) {
            error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
            return path;
        }
        const std::filesystem::path link = std::filesystem::read_symlink(path, error);
        if (error)
            return path;
        path = path.parent_path() / link;
    }
    return path;
}

} // namespace

AtomicFile::AtomicFile(const std::string& path) : target_(FollowLinks(ToPath(path), error_)) {
    if (!error_ && CheckRegularFile(target_) == FileProblem::NoRegularFile)
        error_ = FileProblem::NoRegularFile;
    if (error_)
        return;
    inUse_.emplace(target_);
    std::error_code ignored;
    temporary_ = MakePartFile(target_, error_);
    if (temporary_.empty())
        return;
    error_.clear();
    const std::filesystem::file_status status = std::filesystem::status(target_, ignored);
    if (std::filesystem::exists(status))
        std::filesystem::permissions(temporary_, status.permissions(), ignored);
    errno = 0;
    stream_.open(temporary_, std::ios::binary | std::ios::trunc);
    if (!stream_)
        error_ = LastError();
}

AtomicFile::~AtomicFile() {
    stream_.close();
    std::error_code ignored;
    if (!temporary_.empty())
        std::filesystem::remove(temporary_, ignored);
}

std::error_code AtomicFile::Commit() {
    if (error_)
        return error_;
    errno = 0;
    stream_.close();
    if (!stream_)
        return error_ = LastError();
    if (error_ = FlushToDisk(temporary_); error_)
        return error_;
    std::filesystem::rename(temporary_, target_, error_);
    if (error_)
        return error_;
    temporary_.clear();
    FlushFolder(target_.parent_path());
    return {};
}

void FlushFolder([[maybe_unused]] const std::filesystem::path& folder) {
#if defined(__unix__) || defined(__APPLE__)
    const int handle = ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return;
    ::fsync(handle);
    ::close(handle);
#endif
}
