// SPDX-License-Identifier: MIT
#include "support/OddFiles.h"

#include <gtest/gtest.h>

std::string MakePipe(const TemporaryFolder&, std::string_view) {
    ADD_FAILURE() << "no pipe has a name in a folder here";
    return {};
}

// The names of devices lie in every folder.
std::vector<std::string> NoFiles(const TemporaryFolder& folder) {
    return {"NUL", "nul", folder / "NUL", "\\\\.\\NUL", "CON", "COM1"};
}
