// SPDX-License-Identifier: MIT
#include "base/AppendWhole.h"

#include "base/LastError.h"
#include "base/Paths.h"
#include "base/RandomName.h"
#include "base/SystemFile.h"

#include <new>
#include <string>

FileHandle MakeFileToAppend(std::filesystem::path& name, std::error_code& error) {
    constexpr std::size_t Random = 6;
    constexpr int Attempts = 100;
    const std::string text = PathText(name);
    for (int i = 0; i < Attempts; ++i) {
        std::filesystem::path chosen =
            ToPath(text.substr(0, text.size() - Random) + RandomCharacters(Random));
        errno = 0;
        FileHandle file = SystemFile::Open(
            chosen, {.Access = SystemFile::Access::Append, .Existing = SystemFile::Existing::MustNot});
        error = file.IsOpen() ? std::error_code() : LastError();
        if (file.IsOpen())
            name.swap(chosen); // needs no memory: nobody else would know the file
        if (error != std::errc::file_exists)
            return file;
    }
    return {};
}

std::error_code AppendWhole(const FileHandle& file, std::string_view bytes) {
    errno = 0;
    const std::int64_t before = SystemFile::Size(file);
    if (before < 0)
        return LastError();
    const std::error_code error = SystemFile::Append(file, bytes) ? Flush(file) : LastError();
    if (error)
        (void)SystemFile::Resize(file, before);
    return error;
}
