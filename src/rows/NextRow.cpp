// SPDX-License-Identifier: MIT
#include "rows/NextRow.h"

#include <vector>

namespace {

// The nearest row that `has` accepts.
template <typename Has>
std::optional<std::size_t> Nearest(const LogbookRows& rows, std::optional<std::size_t> start,
                                   SearchDirection direction, Has has) {
    if (direction == SearchDirection::Down) {
        for (std::size_t row = start ? *start + 1 : 0; row < rows.size(); ++row)
            if (has(rows[row]))
                return row;
        return std::nullopt;
    }
    for (std::size_t row = start ? *start : rows.size(); row-- > 0;)
        if (has(rows[row]))
            return row;
    return std::nullopt;
}

// Which kinds of entry are errors, by their numbers.
std::vector<bool> ErrorKinds(const EntryTable& entries) {
    std::vector<bool> errors(entries.Kinds().Count());
    for (std::uint32_t kind = 0; kind < entries.Kinds().Count(); ++kind)
        errors[kind] = EventTypes::IsError(entries.Kinds()[kind].EventType);
    return errors;
}

std::vector<bool> CommentedEntries(const EntryTable& entries) {
    std::vector<bool> commented(entries.Count());
    for (const auto& [number, comment] : entries.Comments())
        commented[number] = !comment.empty();
    return commented;
}

} // namespace

std::optional<std::size_t> NextRow(const EntryTable& entries, const LogbookRows& rows,
                                   std::optional<std::size_t> start, RowMark mark,
                                   SearchDirection direction) {
    switch (mark) {
    case RowMark::Error:
        return Nearest(rows, start, direction, [&, errors = ErrorKinds(entries)](const LogbookRow& row) {
            return errors[entries.KindNumber(row.Entry)];
        });
    case RowMark::Highlighted:
        return Nearest(rows, start, direction, [](const LogbookRow& row) { return row.Highlighted != 0; });
    case RowMark::Commented:
        if (entries.Comments().empty())
            return std::nullopt;
        return Nearest(
            rows, start, direction,
            [commented = CommentedEntries(entries)](const LogbookRow& row) { return commented[row.Entry]; });
    }
    return std::nullopt;
}
