// SPDX-License-Identifier: MIT
#include "base/Paths.h"

#include <fstream>

namespace {
constexpr std::string_view PathSeparators = "\\/";
} // namespace

std::filesystem::path ToPath(std::string_view path) { return std::u8string(path.begin(), path.end()); }

void SplitPath(std::string_view path, std::string& folder, std::string& fileName) {
    const std::size_t separator = path.find_last_of(PathSeparators);
    const std::size_t cut = separator == std::string_view::npos ? 0 : separator + 1;
    folder = path.substr(0, cut);
    fileName = path.substr(cut);
}

bool FileExists(const std::string& path) {
    std::error_code error;
    return std::filesystem::is_regular_file(ToPath(path), error) &&
           std::ifstream(ToPath(path), std::ios::binary).is_open();
}

std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder, std::error_code& error) {
    std::vector<std::filesystem::path> items;
    const std::filesystem::directory_iterator end;
    for (std::filesystem::directory_iterator item(folder, error); !error && item != end;
         item.increment(error))
        items.push_back(item->path());
    return items;
}

std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder) {
    std::error_code ignored;
    return ItemsIn(folder, ignored);
}

bool LiesIn(const std::filesystem::path& path, const std::filesystem::path& folder) {
    std::error_code error;
    const auto whole = [&](const std::filesystem::path& part) {
        return error ? part
                     : std::filesystem::weakly_canonical(std::filesystem::absolute(part, error), error);
    };
    const std::filesystem::path relative = whole(path).lexically_relative(whole(folder));
    return !error && !relative.empty() && *relative.begin() != "..";
}

std::string ChangeExtension(std::string_view fileName, std::string_view newExtension) {
    const std::size_t dot = fileName.rfind('.');
    const std::size_t separator = fileName.find_last_of(PathSeparators);
    const bool hasDot =
        dot != std::string_view::npos && (separator == std::string_view::npos || dot > separator);
    return std::string(hasDot ? fileName.substr(0, dot) : fileName).append(newExtension);
}
