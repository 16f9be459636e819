// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// The path that a UTF-8 text names.
std::filesystem::path ToPath(std::string_view path);

// A path as UTF-8 text; with "/" alone between its parts.
std::string PathText(const std::filesystem::path& path);
std::string GenericPathText(const std::filesystem::path& path);

// Splits a path behind its last "\" or "/". The folder keeps that separator; it is "" for a bare file name.
void SplitPath(std::string_view path, std::string& folder, std::string& fileName);

// True when there is a regular file that can be opened for reading now. Only a regular file: opening a pipe
// may never end.
bool FileExists(const std::string& path);

// The paths of what lies in a folder, as far as the system lists it. Throws nothing on a failing disk;
// `error` says why the list is not complete.
std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder, std::error_code& error);
std::vector<std::filesystem::path> ItemsIn(const std::filesystem::path& folder);

// True for a path that names the folder or something below it, once links are followed.
bool LiesIn(const std::filesystem::path& path, const std::filesystem::path& folder);

// Replaces everything from the name's last "." on by `newExtension`, or appends it when there is no ".". A
// "." in the folder part of a path does not count.
std::string ChangeExtension(std::string_view fileName, std::string_view newExtension);
