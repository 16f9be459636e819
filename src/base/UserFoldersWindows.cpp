// SPDX-License-Identifier: MIT
#include "base/UserFolders.h"

#include <cstdlib>

#include <windows.h>

#include <shlobj.h>

namespace {

// The folder that an environment variable names, or that the system has for the user.
std::filesystem::path FolderOf(const wchar_t* variable, const KNOWNFOLDERID& known) {
    const wchar_t* const named = ::_wgetenv(variable);
    if (named != nullptr && std::filesystem::path(named).is_absolute())
        return named;
    wchar_t* path = nullptr;
    const bool isKnown = SUCCEEDED(SHGetKnownFolderPath(known, 0, nullptr, &path));
    std::filesystem::path folder(isKnown ? path : L"");
    CoTaskMemFree(path);
    return folder;
}

} // namespace

std::filesystem::path ConfigurationFolder() {
    return FolderOf(L"APPDATA", FOLDERID_RoamingAppData) / "VELTRANDOR";
}

std::filesystem::path DataFolder() { return ConfigurationFolder() / "Qorvix"; }

std::filesystem::path StateFolder() {
    return FolderOf(L"LOCALAPPDATA", FOLDERID_LocalAppData) / "VELTRANDOR" / "Qorvix";
}
