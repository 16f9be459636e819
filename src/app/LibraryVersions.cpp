// SPDX-License-Identifier: MIT
#include "app/LibraryVersions.h"

#include <QtGlobal>

#include <nlohmann/json.hpp>
#include <utf8proc.h>
#include <xxhash.h>
#include <zip.h>

#include <string>

std::vector<LibraryVersion> LibraryVersions() {
    const std::string json = std::to_string(NLOHMANN_JSON_VERSION_MAJOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_MINOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_PATCH);
    const unsigned number = XXH_versionNumber(); // 10000 major + 100 minor + release
    const std::string checksum = std::to_string(number / 10000) + '.' + std::to_string(number / 100 % 100) +
                                 '.' + std::to_string(number % 100);
    return {{"Qt", qVersion(), "LGPL 3"},
            {"libzip", zip_libzip_version(), "BSD"},
            {"JSON for Modern C++", json, "MIT"},
            {"utf8proc", utf8proc_version(), "MIT"},
            {"xxHash", checksum, "BSD"},
            // It does not tell its version.
            {"libchm", "", "LGPL 2.1"}};
}
