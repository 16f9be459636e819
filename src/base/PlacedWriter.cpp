// SPDX-License-Identifier: MIT
#include "base/PlacedWriter.h"

#include "base/LastError.h"
#include "base/SystemFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

PlacedWriter::PlacedWriter(const std::filesystem::path& file, std::error_code& error) {
    errno = 0;
    file_ = SystemFile::Handle(::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR));
    error = file_.IsOpen() ? std::error_code() : LastError();
}

std::error_code PlacedWriter::Empty() {
    return ::ftruncate(SystemFile::Number(file_), 0) == 0 ? std::error_code() : LastError();
}

std::error_code PlacedWriter::Write(std::string_view bytes, std::int64_t& place) {
    while (!bytes.empty()) {
        errno = 0;
        const ssize_t count = ::pwrite(SystemFile::Number(file_), bytes.data(), bytes.size(), place);
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return LastError();
        bytes.remove_prefix(static_cast<std::size_t>(count));
        place += count;
    }
    return {};
}

std::uint64_t PlacedWriter::Size(std::error_code& error) const {
    struct stat status {};
    error = ::fstat(SystemFile::Number(file_), &status) == 0 ? std::error_code() : LastError();
    return static_cast<std::uint64_t>(status.st_size);
}
