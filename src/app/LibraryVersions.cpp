// SPDX-License-Identifier: MIT
#include "app/LibraryVersions.h"

#include <QtGlobal>

#include <nlohmann/json.hpp>
#include <utf8proc.h>
#include <zip.h>

#include <string>

std::vector<LibraryVersion> LibraryVersions() {
    const std::string json = std::to_string(NLOHMANN_JSON_VERSION_MAJOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_MINOR) + '.' +
                             std::to_string(NLOHMANN_JSON_VERSION_PATCH);
    return {{"Qt", qVersion(), "LGPL 3"},
            {"libzip", zip_libzip_version(), "BSD"},
            {"JSON for Modern C++", json, "MIT"},
            {"utf8proc", utf8proc_version(), "MIT"},
            // It does not tell its version.
            {"libchm", "", "LGPL 2.1"}};
}
