// SPDX-License-Identifier: MIT
#include "support/OwnerAlone.h"

bool IsForOwnerAlone(const std::filesystem::path& path) {
    using std::filesystem::perms;
    const perms forOwner =
        std::filesystem::is_directory(path) ? perms::owner_all : perms::owner_read | perms::owner_write;
    return std::filesystem::status(path).permissions() == forOwner;
}
