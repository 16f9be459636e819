// SPDX-License-Identifier: MIT
#include "FuzzSupport.h"

#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/mman.h>
#include <unistd.h>

void Check(bool holds) {
    if (!holds)
        std::abort();
}

std::string_view TakeLine(std::string_view& rest) { return TakePart(rest, "\n"); }

std::string_view TakePart(std::string_view& rest, std::string_view mark) {
    const std::size_t end = rest.find(mark);
    const std::string_view part = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + mark.size());
    return part;
}

MemoryFile::MemoryFile(std::string_view content) : handle_(memfd_create("input", MFD_CLOEXEC)) {
    Check(handle_ >= 0);
    Check(write(handle_, content.data(), content.size()) == static_cast<ssize_t>(content.size()));
}

MemoryFile::~MemoryFile() { close(handle_); }

ScratchFolder::ScratchFolder() {
    std::string path = (std::filesystem::temp_directory_path() / "qorvix-fuzz-XXXXXX").string();
    Check(mkdtemp(path.data()) != nullptr);
    path_ = path;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string ScratchFolder::Write(std::string_view name, std::string_view content) const {
    const std::filesystem::path file = path_ / name;
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    stream.close();
    Check(!stream.fail());
    return file.string();
}

std::string ContentOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    Check(stream.is_open());
    return {std::istreambuf_iterator<char>(stream), {}};
}
