// SPDX-License-Identifier: MIT
#include "filter/Filter.h"

#include "filter/FilterRun.h"

#include <algorithm>
#include <array>

bool MatchText(std::string_view field, std::string_view filterText) {
    return field.find(filterText) != std::string_view::npos;
}

namespace {

// The rows of a batch, before they join the others.
class RowsOfBatch {
  public:
    // Makes the rows of the entries from `first` up to `end`. Returns the entry that has no name for its
    // event type, otherwise `end`.
    template <typename Decide>
    EntryNumber Add(EntryNumber first, EntryNumber end, Decide decide) {
        for (EntryNumber number = first; number < end; ++number) {
            const FilterRun::Decision decision = decide(number);
            if (decision == FilterRun::Decision::Invalid)
                return number;
            // Written in any case: to jump around it would cost more.
            rows_[count_] = {.Entry = number & MostEntries,
                             .Highlighted = decision == FilterRun::Decision::Highlighted};
            count_ += decision != FilterRun::Decision::Hidden ? 1 : 0;
        }
        return end;
    }

    void MoveTo(LogbookRows& rows) {
        rows.insert(rows.end(), rows_.begin(), rows_.begin() + static_cast<std::ptrdiff_t>(count_));
        count_ = 0;
    }

  private:
    std::array<LogbookRow, FilterRun::BatchSize> rows_;
    std::size_t count_ = 0;
};

} // namespace

bool ApplyFilters(const EntryTable& entries, std::span<const FilterDefinition> filters, LogbookRows& rows,
                  const FilterProgress& progress) {
    constexpr EntryNumber ProgressStep = 101;
    rows.clear();
    rows.reserve(entries.Count());
    FilterRun run(entries, filters);
    RowsOfBatch made;
    const EntryNumber count = entries.Count();
    EntryNumber toShow = ProgressStep;
    if (progress)
        progress(0);
    EntryNumber done = 0;
    for (EntryNumber first = 0; first < count && done == first; first += FilterRun::BatchSize) {
        const EntryNumber end = first + std::min(count - first, FilterRun::BatchSize);
        run.BeginBatch(first, end);
        for (EntryNumber block = first; block < end && done == block; block += FilterRun::BlockSize) {
            const EntryNumber blockEnd = block + std::min(end - block, FilterRun::BlockSize);
            done =
                run.KindsDecide(block)
                    ? made.Add(block, blockEnd, [&](EntryNumber number) { return run.DecideByKind(number); })
                    : made.Add(block, blockEnd, [&](EntryNumber number) { return run.Decide(number); });
        }
        made.MoveTo(rows);
        for (; progress && toShow < done; toShow += ProgressStep)
            progress(static_cast<double>(toShow) / (count - 1) * 100.0);
    }
    if (done < count)
        return false;
    if (progress)
        progress(0);
    return true;
}

std::optional<std::size_t> RowForEntry(const LogbookRows& rows, EntryNumber number) {
    const auto row =
        std::partition_point(rows.begin(), rows.end(), [&](const LogbookRow& r) { return r.Entry < number; });
    if (row == rows.end())
        return std::nullopt;
    return static_cast<std::size_t>(row - rows.begin());
}
