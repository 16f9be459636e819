// SPDX-License-Identifier: MIT
#include "base/ProgramFolder.h"

#include <filesystem>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

namespace {

std::filesystem::path ProgramFile() {
#ifdef _WIN32
    std::wstring path(32768, L'\0'); // the longest path that Windows has
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return path;
#else
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::filesystem::path() : path;
#endif
}

} // namespace

std::string ProgramFolder() {
    const std::u8string folder = ProgramFile().parent_path().u8string();
    return {folder.begin(), folder.end()};
}
