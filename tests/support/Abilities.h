// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <system_error>

// What a test needs of the system beside the program. Such a test begins with the word for it; where the
// system has no such thing, or the tests cannot make it, the test is skipped and says why.
#ifdef _WIN32
#define NEEDS_LINKS() GTEST_SKIP() << "the C++ library makes no links here"
#define NEEDS_NAMED_PIPES() GTEST_SKIP() << "no pipe has a name in a folder here"
#define NEEDS_PERMISSIONS() GTEST_SKIP() << "a file has the rights of its folder here"
#define NEEDS_FILE_SIZE_LIMIT() GTEST_SKIP() << "no process has a limit for its files here"
#define NEEDS_REMOVING_OPEN_FILES() GTEST_SKIP() << "a file that is open cannot be removed or replaced here"
#define NEEDS_NAMES_WITH_CASE() GTEST_SKIP() << "names here have no case"
#define NEEDS_SETTINGS_FILE() GTEST_SKIP() << "the settings are in the registry here"
#define NEEDS_SHELL() GTEST_SKIP() << "there is no shell here"
#define NEEDS_TERMINAL() GTEST_SKIP() << "a console here does not hand out what is written"
#else
#define NEEDS_LINKS() static_cast<void>(0)
#define NEEDS_NAMED_PIPES() static_cast<void>(0)
#define NEEDS_PERMISSIONS() static_cast<void>(0)
#define NEEDS_FILE_SIZE_LIMIT() static_cast<void>(0)
#define NEEDS_REMOVING_OPEN_FILES() static_cast<void>(0)
#define NEEDS_NAMES_WITH_CASE() static_cast<void>(0)
#define NEEDS_SETTINGS_FILE() static_cast<void>(0)
#define NEEDS_SHELL() static_cast<void>(0)
#define NEEDS_TERMINAL() static_cast<void>(0)
#endif

// Why a path fails that goes on behind the name of a file.
#ifdef _WIN32
inline constexpr std::errc BehindAFile = std::errc::no_such_file_or_directory;
inline constexpr const char* BehindAFileText = "No such file or directory";
#else
inline constexpr std::errc BehindAFile = std::errc::not_a_directory;
inline constexpr const char* BehindAFileText = "Not a directory";
#endif
