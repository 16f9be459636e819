// SPDX-License-Identifier: MIT
#include "base/AppendWhole.h"

#include "base/LastError.h"
#include "base/SystemFile.h"

#include <cstdlib>
#include <new>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool WriteAll(int handle, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(handle, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

FileHandle MakeFileToAppend(std::filesystem::path& name, std::error_code& error) {
    std::string chosen = name.string();
    errno = 0;
    FileHandle file = SystemFile::Handle(::mkostemp(chosen.data(), O_APPEND | O_CLOEXEC));
    error = file.IsOpen() ? std::error_code() : LastError();
    try {
        name = chosen;
    } catch (const std::bad_alloc&) {
        // Nobody would know the file.
        if (file.IsOpen())
            ::unlink(chosen.c_str());
        throw;
    }
    return file;
}

std::error_code AppendWhole(const FileHandle& file, std::string_view bytes) {
    const int handle = SystemFile::Number(file);
    struct stat before {};
    errno = 0;
    if (::fstat(handle, &before) != 0)
        return LastError();
    const std::error_code error = WriteAll(handle, bytes) ? Flush(file) : LastError();
    if (error)
        (void)!::ftruncate(handle, before.st_size);
    return error;
}
