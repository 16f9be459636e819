// SPDX-License-Identifier: MIT
#include "base/FileProblem.h"

#include "base/SystemFile.h"

#include <string>

namespace {

class Category : public std::error_category {
  public:
    const char* name() const noexcept override { return "file"; }

    std::string message(int problem) const override {
        switch (static_cast<FileProblem>(problem)) {
        case FileProblem::NoRegularFile:
            return "not a regular file";
        case FileProblem::TooLarge:
            return "the file is too large";
        case FileProblem::LineTooLong:
            return "a line is too long";
        case FileProblem::TooManyLines:
            return "the file has too many lines";
        case FileProblem::ForeignLink:
            return "another user's link in a folder that all may write to";
        }
        return "unknown";
    }
};

} // namespace

const std::error_category& FileProblems() {
    static const Category category;
    return category;
}

std::error_code CheckRegularFile(const std::filesystem::path& path) {
    if (SystemFile::IsNameOfDevice(path))
        return FileProblem::NoRegularFile;
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    switch (status.type()) {
    case std::filesystem::file_type::regular:
        return {};
    case std::filesystem::file_type::directory:
        return std::make_error_code(std::errc::is_a_directory);
    case std::filesystem::file_type::not_found:
        return error ? error : std::make_error_code(std::errc::no_such_file_or_directory);
    case std::filesystem::file_type::none:
        return error;
    default:
        return FileProblem::NoRegularFile;
    }
}
