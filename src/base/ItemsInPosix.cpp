// SPDX-License-Identifier: MIT
#include "base/LastError.h"
#include "base/Paths.h"

#include <memory>
#include <string_view>

#include <dirent.h>

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { ::closedir(folder); }
};

} // namespace

// The standard library's directory_iterator ends the program when it has no memory for a name.
std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder, std::error_code& error) {
    std::vector<std::filesystem::path> items;
    errno = 0;
    const std::unique_ptr<DIR, CloseFolder> open(::opendir(folder.c_str()));
    error = open ? std::error_code() : LastError();
    while (!error) {
        errno = 0;
        const dirent* const item = ::readdir(open.get());
        if (item == nullptr) {
            if (errno != 0)
                error = LastError();
            break;
        }
        const std::string_view name = item->d_name;
        if (name != "." && name != "..")
            items.push_back(folder / name);
    }
    return items;
}

std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder) {
    std::error_code ignored;
    return ItemsIn(folder, ignored);
}
