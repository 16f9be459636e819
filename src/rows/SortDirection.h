// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

enum class SortDirection : std::uint8_t { Ascending, Descending };

constexpr SortDirection Opposite(SortDirection direction) {
    return direction == SortDirection::Ascending ? SortDirection::Descending : SortDirection::Ascending;
}
