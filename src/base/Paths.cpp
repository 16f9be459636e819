// SPDX-License-Identifier: MIT
#include "base/Paths.h"

#include "base/LastError.h"

#include <fstream>
#include <new>
#include <system_error>

namespace {
constexpr std::string_view PathSeparators = "\\/";
} // namespace

std::filesystem::path ToPath(std::string_view path) { return std::u8string(path.begin(), path.end()); }

std::string PathText(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string GenericPathText(const std::filesystem::path& path) {
    const std::u8string text = path.generic_u8string();
    return {text.begin(), text.end()};
}

void SplitPath(std::string_view path, std::string& folder, std::string& fileName) {
    const std::size_t separator = path.find_last_of(PathSeparators);
    const std::size_t cut = separator == std::string_view::npos ? 0 : separator + 1;
    folder = path.substr(0, cut);
    fileName = path.substr(cut);
}

bool FileExists(const std::string& path) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(ToPath(path), error))
        return false;
    errno = 0;
    const bool opens = std::ifstream(ToPath(path), std::ios::binary).is_open();
    if (!opens && LastError() == std::errc::not_enough_memory)
        throw std::bad_alloc();
    return opens;
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
