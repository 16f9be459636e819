// SPDX-License-Identifier: MIT
#include "base/PlacedWriter.h"

#include "base/LastError.h"
#include "base/SystemFile.h"

PlacedWriter::PlacedWriter(const std::filesystem::path& file, std::error_code& error) {
    errno = 0;
    file_ = SystemFile::Open(file, {.Access = SystemFile::Access::ReadWrite,
                                    .Existing = SystemFile::Existing::May,
                                    .FollowsLink = true});
    error = file_.IsOpen() ? std::error_code() : LastError();
}

std::error_code PlacedWriter::Empty() {
    return SystemFile::Resize(file_, 0) ? std::error_code() : LastError();
}

std::error_code PlacedWriter::Write(std::string_view bytes, std::int64_t& place) {
    return SystemFile::WriteAt(file_, place, bytes) ? std::error_code() : LastError();
}

std::uint64_t PlacedWriter::Size(std::error_code& error) const {
    const std::int64_t size = SystemFile::Size(file_);
    error = size >= 0 ? std::error_code() : LastError();
    return size >= 0 ? static_cast<std::uint64_t>(size) : 0;
}
