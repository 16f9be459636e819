// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// The path that a UTF-8 text names.
std::filesystem::path ToPath(std::string_view path);

// Splits a path behind its last "\" or "/": the folder keeps that separator and is "" for a bare file name.
void SplitPath(std::string_view path, std::string& folder, std::string& fileName);

// True when there is a regular file that can be opened for reading at this moment. To open a pipe may never
// end.
bool FileExists(const std::string& path);

// The paths of what lies in a folder, as far as the system lists it; a failing disk raises nothing here. The
// error tells why not all of it is listed.
std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder, std::error_code& error);
std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder);

// True for a path that names something below a folder, or the folder itself, links followed.
bool LiesIn(const std::filesystem::path& path, const std::filesystem::path& folder);

// The name with everything from its last "." on replaced by `newExtension`, which is appended when there is
// no ".". A "." in the folder part of a path does not count.
std::string ChangeExtension(std::string_view fileName, std::string_view newExtension);
