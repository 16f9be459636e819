// SPDX-License-Identifier: MIT
#include "base/UserFolders.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace {

// The folder that an environment variable names, or one below the user's home. A relative name is as good as
// none.
std::filesystem::path FolderOf(const char* variable, const char* belowHome) {
    const char* const named = std::getenv(variable);
    if (named != nullptr && *named == '/')
        return named;
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0')
        if (const passwd* user = getpwuid(getuid()); user != nullptr)
            home = user->pw_dir;
    return std::filesystem::path(home == nullptr ? "" : home) / belowHome;
}

} // namespace

std::filesystem::path ConfigurationFolder() { return FolderOf("XDG_CONFIG_HOME", ".config") / "VELTRANDOR"; }

std::filesystem::path DataFolder() {
    return FolderOf("XDG_DATA_HOME", ".local/share") / "VELTRANDOR" / "Qorvix";
}

std::filesystem::path StateFolder() {
    return FolderOf("XDG_STATE_HOME", ".local/state") / "VELTRANDOR" / "Qorvix";
}
