// SPDX-License-Identifier: MIT
#include "support/ZipReader.h"

#include <gtest/gtest.h>
#include <zip.h>

std::vector<std::pair<std::string, std::string>> ReadZip(const std::string& path) {
    std::vector<std::pair<std::string, std::string>> members;
    zip_t* const archive = zip_open(path.c_str(), ZIP_RDONLY | ZIP_CHECKCONS, nullptr);
    if (archive == nullptr)
        return members;
    for (zip_int64_t i = 0; i < zip_get_num_entries(archive, 0); ++i) {
        const auto index = static_cast<zip_uint64_t>(i);
        zip_stat_t status;
        EXPECT_EQ(zip_stat_index(archive, index, 0, &status), 0);
        std::string content(status.size, '\0');
        zip_file_t* const file = zip_fopen_index(archive, index, 0);
        EXPECT_EQ(zip_fread(file, content.data(), content.size()), static_cast<zip_int64_t>(status.size));
        EXPECT_EQ(zip_fclose(file), 0);
        members.emplace_back(status.name, std::move(content));
    }
    zip_discard(archive);
    return members;
}
