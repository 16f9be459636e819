// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <system_error>

// The file that a path names in the end, also when it does not exist yet: links are followed, those of its
// folders, too.
//
// FileProblem::ForeignLink for a link that another user may have planted there: one in a folder that all may
// write to (sticky, as a folder for temporary files is), unless it is this user's or that of the folder's
// owner. Whoever writes to a file that a person names asks here first.
std::filesystem::path FollowLinks(const std::filesystem::path& path, std::error_code& error);
