// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

// Why the program refuses a file, where the system has no error for it. Settings' ReasonText puts it in the
// user's language.
enum class FileProblem {
    NoRegularFile = 1, // a device or a pipe: reading it may never end, and a file may not take its place
    TooLarge,
    LineTooLong,
    TooManyLines,
    ForeignLink, // on the way to the file is a link that another user may have planted (FollowLinks)
};

// The problems as errors; their messages are English.
const std::error_category& FileProblems();

inline std::error_code make_error_code(FileProblem problem) {
    return {static_cast<int>(problem), FileProblems()};
}

template <>
struct std::is_error_code_enum<FileProblem> : std::true_type {};

// No error for a regular file, also at the end of links; otherwise why it is not one, or cannot be examined.
std::error_code CheckRegularFile(const std::filesystem::path& path);
