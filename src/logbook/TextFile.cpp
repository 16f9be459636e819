// SPDX-License-Identifier: MIT
#include "logbook/TextFile.h"

#include "logbook/modUtil.h"

#include <cerrno>

namespace {

std::error_code LastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

} // namespace

std::error_code OpenTextFile(const std::string& path, std::ifstream& stream) {
    std::error_code ignored;
    if (std::filesystem::is_directory(ToPath(path), ignored))
        return std::make_error_code(std::errc::is_a_directory);
    errno = 0;
    stream.open(ToPath(path), std::ios::binary);
    return stream ? std::error_code{} : LastError();
}

bool ReadTextLine(std::istream& stream, std::string& line) {
    if (!std::getline(stream, line))
        return false;
    if (line.ends_with('\r'))
        line.pop_back();
    return true;
}

std::error_code TextFileError(const std::istream& stream) {
    return stream.bad() ? LastError() : std::error_code{};
}
