// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>
#include <vector>

// Writes a zip archive of members, name and content, in their order.
void WriteZip(const std::string& path, const std::vector<std::pair<std::string, std::string>>& members);
