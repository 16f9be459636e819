// SPDX-License-Identifier: MIT
#include "rows/RowSorting.h"

#include "rows/DistinctData.h"
#include "rows/KeyedRows.h"
#include "rows/TextSort.h"
#include "rows/TimeKeys.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace {

// The part of the remaining way that giving ranks to texts takes, in percent.
constexpr int RanksPart = 40;
constexpr int FewRanksPart = 1;

// An entry has at most one row, so two bits for each entry hold everything to sort.
bool SortByIndex(const EntryTable& entries, const LogbookRows& rows, SortDirection direction,
                 LogbookRows& sorted, SortProgress& progress) {
    const EntryNumber count = entries.Count();
    std::vector<bool> shown(count);
    std::vector<bool> highlighted(count);
    progress.BeginPhase(OrderPart, rows.size());
    if (!progress.ForEach(0, rows.size(), [&](std::size_t i) {
            shown[rows[i].Entry] = true;
            highlighted[rows[i].Entry] = rows[i].Highlighted != 0;
        }))
        return false;
    progress.BeginPhase(100, count);
    sorted.reserve(rows.size());
    return progress.ForEach(0, count, [&](std::size_t i) {
        const auto number =
            static_cast<EntryNumber>(direction == SortDirection::Descending ? count - 1 - i : i);
        if (shown[number])
            sorted.push_back({number & MostEntries, highlighted[number]});
    });
}

bool SortByTime(const EntryTable& entries, const LogbookRows& rows, SortDirection direction,
                LogbookRows& sorted, SortProgress& progress) {
    const TimeKeys keys(entries);
    // Seconds from the table's first day on fit into 32 bits for 136 years; a stamp of an odd form may lie
    // outside that time.
    const std::uint64_t before = keys.Earliest() - 1;
    bool fits = true;
    const auto shortKey = [&](EntryNumber number) {
        const std::uint64_t key = keys[number];
        const std::uint64_t seconds = key == TimeKeys::None ? 0 : key - before;
        fits = fits && seconds <= std::numeric_limits<std::uint32_t>::max() &&
               (key == TimeKeys::None || key > before);
        return static_cast<std::uint32_t>(seconds);
    };
    {
        KeyedRows<std::uint32_t> keyed(rows.size(), direction);
        if (!keyed.Fetch(entries, rows, shortKey, progress))
            return false;
        if (fits)
            return keyed.Sort(sorted, progress);
    }
    KeyedRows<std::uint64_t> keyed(rows.size(), direction);
    return keyed.Fetch(
               entries, rows, [&](EntryNumber number) { return keys[number]; }, progress) &&
           keyed.Sort(sorted, progress);
}

// The kind decides sender, name and event type.
bool SortByKind(const EntryTable& entries, const LogbookRows& rows, LogbookColumn column,
                SortDirection direction, LogbookRows& sorted, SortProgress& progress) {
    const EntryKinds& kinds = entries.Kinds();
    std::vector<std::string_view> texts;
    for (std::uint32_t kind = 0; kind < kinds.Count(); ++kind)
        texts.push_back(KindText(kinds[kind], column));
    const std::vector<std::uint32_t> ranks = RanksOf(texts, FewRanksPart, progress);
    if (ranks.size() != texts.size())
        return false;
    KeyedRows<std::uint32_t> keyed(rows.size(), direction);
    return keyed.Fetch(
               entries, rows, [&](EntryNumber number) { return ranks[entries.KindNumber(number)]; },
               progress) &&
           keyed.Sort(sorted, progress);
}

// The texts of the rows' entries; the number of a text is its row, packed.
class DataOfRows : public TextSource {
  public:
    explicit DataOfRows(const EntryTable& entries) : entries_(entries) {}
    std::string_view Text(std::uint32_t number) const override {
        return entries_.Data(Unpacked(number).Entry);
    }
    void PrepareFirst(std::uint32_t number) const override {
        entries_.PrefetchRecord(Unpacked(number).Entry);
    }
    void PrepareSecond(std::uint32_t number) const override { entries_.PrefetchData(Unpacked(number).Entry); }

  private:
    const EntryTable& entries_;
};

class CommentsOfRows : public TextSource {
  public:
    explicit CommentsOfRows(const EntryTable& entries) : entries_(entries) {}
    std::string_view Text(std::uint32_t number) const override {
        return entries_.Comment(Unpacked(number).Entry);
    }

  private:
    const EntryTable& entries_;
};

// Sorts by each row's own text.
bool SortByOwnData(const EntryTable& entries, const LogbookRows& rows, SortDirection direction,
                   LogbookRows& sorted, SortProgress& progress) {
    const DataOfRows source(entries);
    TextSort sort(source, rows.size(), direction, progress);
    for (const LogbookRow& row : rows)
        sort.Add(Packed(row));
    if (!sort.Sort(OrderPart))
        return false;
    sort.ReleaseScratch();
    return TakeRows(sort, sort.Count(), sorted, progress);
}

// When texts recur, sorts by the rank of each text.
bool SortByData(const EntryTable& entries, const LogbookRows& rows, SortDirection direction,
                LogbookRows& sorted, SortProgress& progress) {
    DistinctData distinct;
    progress.BeginPhase(KeysPart, entries.Count());
    if (rows.size() <= entries.Count() / 2 || !FindDistinctData(entries, distinct, progress)) {
        distinct = {};
        return !progress.IsStopped() && SortByOwnData(entries, rows, direction, sorted, progress);
    }
    const std::vector<std::uint32_t> ranks = RanksOf(distinct.Texts, RanksPart, progress);
    if (ranks.size() != distinct.Texts.size())
        return false;
    distinct.Texts = {};
    KeyedRows<std::uint32_t> keyed(rows.size(), direction);
    return keyed.Fetch(
               entries, rows, [&](EntryNumber number) { return ranks[distinct.Numbers[number]]; },
               progress) &&
           keyed.Sort(sorted, progress);
}

// Most rows have no comment: they keep their order, before or behind the others.
bool SortByComment(const EntryTable& entries, const LogbookRows& rows, SortDirection direction,
                   LogbookRows& sorted, SortProgress& progress) {
    std::vector<bool> commented(entries.Count());
    for (const auto& [number, comment] : entries.Comments())
        commented[number] = true;
    const auto isCommented = [&](const LogbookRow& row) { return commented[row.Entry]; };
    const auto count = static_cast<std::size_t>(std::count_if(rows.begin(), rows.end(), isCommented));

    const CommentsOfRows source(entries);
    TextSort sort(source, count, direction, progress);
    LogbookRows others;
    others.reserve(rows.size());
    progress.BeginPhase(KeysPart, rows.size());
    if (!progress.ForEach(0, rows.size(), [&](std::size_t i) {
            if (isCommented(rows[i]))
                sort.Add(Packed(rows[i]));
            else
                others.push_back(rows[i]);
        }))
        return false;
    if (!sort.Sort(OrderPart) || !TakeRows(sort, sort.Count(), sorted, progress))
        return false;
    // `others` has room for all rows.
    others.insert(direction == SortDirection::Descending ? others.begin() : others.end(), sorted.begin(),
                  sorted.end());
    sorted = std::move(others);
    return true;
}

} // namespace

bool SortRows(const EntryTable& entries, const LogbookRows& rows, LogbookColumn column,
              SortDirection direction, LogbookRows& sorted, SortProgress& progress) {
    switch (column) {
    case LogbookColumn::Event:
    case LogbookColumn::Sender:
    case LogbookColumn::Name:
        return SortByKind(entries, rows, column, direction, sorted, progress);
    case LogbookColumn::Data:
        return SortByData(entries, rows, direction, sorted, progress);
    case LogbookColumn::Time:
        return SortByTime(entries, rows, direction, sorted, progress);
    case LogbookColumn::Index:
        return SortByIndex(entries, rows, direction, sorted, progress);
    case LogbookColumn::Comment:
        return SortByComment(entries, rows, direction, sorted, progress);
    }
    return false;
}
