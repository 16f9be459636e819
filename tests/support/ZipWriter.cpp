// SPDX-License-Identifier: MIT
#include "support/ZipWriter.h"

#include <gtest/gtest.h>
#include <zip.h>

void WriteZip(const std::string& path, const std::vector<std::pair<std::string, std::string>>& members) {
    zip_t* const archive = zip_open(path.c_str(), ZIP_CREATE | ZIP_TRUNCATE, nullptr);
    ASSERT_NE(archive, nullptr);
    for (const auto& [name, content] : members) {
        zip_source_t* const source = zip_source_buffer(archive, content.data(), content.size(), 0);
        ASSERT_GE(zip_file_add(archive, name.c_str(), source, ZIP_FL_OVERWRITE), 0);
    }
    ASSERT_EQ(zip_close(archive), 0);
}
