// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

// The order of a list's rows by the texts (UTF-8) of one column: the row numbers, compared without case. Rows
// with the same text stay in the order in which they stand, in both directions.
std::vector<std::uint32_t> TextOrder(std::span<const std::string> cells, bool descending);
