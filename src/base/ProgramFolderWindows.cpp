// SPDX-License-Identifier: MIT
#include "base/ProgramFolder.h"

#include "base/Paths.h"

#include <windows.h>

std::string ProgramFolder() {
    std::wstring path(32768, L'\0'); // the longest path that Windows has
    path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
    return PathText(std::filesystem::path(path).parent_path());
}

std::string ProgramFolderWithSeparator() { return ProgramFolder() + '\\'; }

std::string ProgramFileName(std::string_view program) { return std::string(program) + ".exe"; }
