// SPDX-License-Identifier: MIT
#include "rows/NextRow.h"

#include <vector>

namespace {

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
        return NextRowThat(rows, start, direction, [&, errors = ErrorKinds(entries)](const LogbookRow& row) {
            return errors[entries.KindNumber(row.Entry)];
        });
    case RowMark::Highlighted:
        return NextRowThat(rows, start, direction,
                           [](const LogbookRow& row) { return row.Highlighted != 0; });
    case RowMark::Commented:
        if (entries.Comments().empty())
            return std::nullopt;
        return NextRowThat(
            rows, start, direction,
            [commented = CommentedEntries(entries)](const LogbookRow& row) { return commented[row.Entry]; });
    }
    return std::nullopt;
}
