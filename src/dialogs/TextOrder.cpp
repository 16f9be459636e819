// SPDX-License-Identifier: MIT
#include "dialogs/TextOrder.h"

#include "list/QtText.h"

#include <algorithm>
#include <numeric>

std::vector<std::uint32_t> TextOrder(std::span<const std::string> cells, bool descending) {
    std::vector<std::u32string> keys;
    for (const std::string& cell : cells)
        keys.push_back(ToQString(cell).toCaseFolded().toStdU32String());
    std::vector<std::uint32_t> rows(cells.size());
    std::iota(rows.begin(), rows.end(), 0U);
    std::stable_sort(rows.begin(), rows.end(), [&](std::uint32_t a, std::uint32_t b) {
        return descending ? keys[b] < keys[a] : keys[a] < keys[b];
    });
    return rows;
}
