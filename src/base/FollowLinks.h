// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

// The file that a path names once all links are followed, those of its folders, too. The file need not exist
// yet.
//
// FileProblem::ForeignLink for a link that another user may have planted: a link in a folder that all may
// write to (sticky, as a folder for temporary files is), unless this user or the folder's owner owns it. Call
// this before you write to a file that a person names.
std::filesystem::path FollowLinks(const std::filesystem::path& path, std::error_code& error);
