// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

// The members of a zip archive, name and content, in their order; empty when it cannot be opened.
std::vector<std::pair<std::string, std::string>> ReadZip(const std::string& path);
