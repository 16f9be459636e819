// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>

// True for a file or folder that only its owner may use.
bool IsForOwnerAlone(const std::filesystem::path& path);
