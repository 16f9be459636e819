// SPDX-License-Identifier: MIT
#include "rows/ListSorting.h"

#include "rows/RowSorting.h"
#include "rows/TextSort.h"

#include <algorithm>
#include <new>
#include <utility>

std::string RowTag(const EntryTable& entries, EntryNumber number, const ListOrder& order) {
    return order.TagColumn ? CellText(entries, number, *order.TagColumn)
                           : std::to_string(entries.Kind(number).EventType);
}

bool SortListByColumn(const EntryTable& entries, LogbookRows& rows, LogbookColumn column, ListOrder& order,
                      const SortHook& hook) {
    const auto columnNumber = static_cast<std::int16_t>(column);
    const SortDirection direction =
        columnNumber == order.LastSortColumn ? Opposite(order.Direction) : order.Direction;
    SortProgress progress(hook);
    try {
        LogbookRows sorted;
        if (!SortRows(entries, rows, column, direction, sorted, progress))
            return false;
        rows = std::move(sorted);
    } catch (const std::bad_alloc&) {
        return false;
    }
    order.Direction = direction;
    order.LastSortColumn = columnNumber;
    if (LogbookColumns[static_cast<std::size_t>(column)].Rule != SortRule::Text)
        order.TagColumn = column;
    return true;
}

std::vector<std::uint32_t> SortedOrder(std::span<const std::string> cells, SortRule rule,
                                       SortDirection direction) {
    std::vector<std::string> keys;
    for (const std::string& cell : cells)
        keys.push_back(rule == SortRule::Date     ? DateKey(cell)
                       : rule == SortRule::Number ? NumberKey(cell)
                                                  : cell);
    const std::vector<std::string_view> texts(keys.begin(), keys.end());
    const TextList source(texts);
    const SortHook noHook;
    SortProgress progress(noHook);
    TextSort sort(source, texts.size(), direction, progress);
    for (std::uint32_t i = 0; i < texts.size(); ++i)
        sort.Add(i);
    sort.Sort(100);
    std::vector<std::uint32_t> order;
    for (std::size_t i = 0; i < sort.Count(); ++i)
        order.push_back(sort[i]);
    return order;
}
