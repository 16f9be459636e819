// SPDX-License-Identifier: MIT
// sort-bench FILE [ROUNDS]: sorts the list of a logbook by each column, from several orders, beside plain
// radix sorts of as many 64-bit keys. sort-bench --texts NUMBER [ROUNDS]: sorts this many different texts
// with the same beginning. Median times, all measured in turn.
#include "bench/BenchTools.h"
#include "bench/PlainRadixSort.h"
#include "bench/ProcessMemory.h"
#include "rows/ListSorting.h"
#include "rows/TimeKeys.h"

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Items = std::vector<std::pair<std::uint64_t, std::uint32_t>>;

constexpr std::array<const char*, 7> ColumnNames{"Event", "Data",  "Sender", "Name",
                                                 "Time",  "Index", "Comment"};

LogbookRows AllRows(EntryNumber count) {
    LogbookRows rows(count);
    for (EntryNumber i = 0; i < count; ++i)
        rows[i] = {i & MostEntries, i % 7 == 0};
    return rows;
}

LogbookRows Shuffled(LogbookRows rows) {
    std::mt19937_64 random(1);
    for (std::size_t i = rows.size(); i > 1; --i)
        std::swap(rows[i - 1], rows[random() % i]);
    return rows;
}

// One sort in this direction, whatever the list was sorted by before.
double SortSeconds(const EntryTable& entries, LogbookRows& rows, LogbookColumn column,
                   SortDirection direction) {
    ListOrder order{static_cast<std::int16_t>(column), Opposite(direction), {}};
    return Seconds([&] {
        if (!SortListByColumn(entries, rows, column, order, [](int) { return true; }))
            std::fprintf(stderr, "the sort failed\n");
    });
}

struct Yardstick {
    const char* Name;
    Items Keys;
    std::vector<double> Times8{};
    std::vector<double> Times11{};

    void Measure() {
        Items scratch(Keys.size());
        Items items = Keys;
        Times8.push_back(Seconds([&] { PlainRadixSort<8>(items, scratch); }));
        items = Keys;
        Times11.push_back(Seconds([&] { PlainRadixSort<11>(items, scratch); }));
    }
    double Best() const { return std::min(Median(Times8), Median(Times11)); }
};

template <typename KeyOf>
Items KeysOf(const LogbookRows& rows, KeyOf keyOf) {
    Items items;
    for (std::size_t i = 0; i < rows.size(); ++i)
        items.emplace_back(keyOf(rows[i].Entry), static_cast<std::uint32_t>(i));
    return items;
}

// Every ten-thousandth entry is commented.
void AddComments(EntryTable& entries) {
    for (EntryNumber i = 0; i < entries.Count(); i += 10000)
        entries.SetComment(i, "Seen " + std::to_string(i * 7919 % 1000));
}

void MeasureColumns(const EntryTable& entries, int rounds) {
    const LogbookRows inOrder = AllRows(entries.Count());
    const LogbookRows shuffled = Shuffled(inOrder);
    LogbookRows byData = inOrder;
    SortSeconds(entries, byData, LogbookColumn::Data, SortDirection::Ascending);
    LogbookRows bySender = inOrder;
    SortSeconds(entries, bySender, LogbookColumn::Sender, SortDirection::Ascending);

    struct Times {
        std::vector<double> Ascending, Descending, FromOther, FromShuffled;
    };
    std::array<Times, ColumnNames.size()> times;
    std::mt19937_64 random(1);
    const TimeKeys timeKeys(entries);
    const auto timeOf = [&](EntryNumber entry) { return timeKeys[entry]; };
    const auto indexOf = [](EntryNumber entry) { return std::uint64_t{entry}; };
    std::vector<Yardstick> yardsticks;
    yardsticks.push_back({"random keys", KeysOf(inOrder, [&](EntryNumber) { return random(); })});
    yardsticks.push_back({"times, entry order", KeysOf(inOrder, timeOf)});
    yardsticks.push_back({"times, by data", KeysOf(byData, timeOf)});
    yardsticks.push_back({"times, shuffled", KeysOf(shuffled, timeOf)});
    yardsticks.push_back({"indices, entry order", KeysOf(inOrder, indexOf)});
    yardsticks.push_back({"indices, by data", KeysOf(byData, indexOf)});
    yardsticks.push_back({"indices, shuffled", KeysOf(shuffled, indexOf)});

    for (int round = 0; round < rounds; ++round) {
        for (Yardstick& yardstick : yardsticks)
            yardstick.Measure();
        for (std::size_t i = 0; i < times.size(); ++i) {
            const auto column = static_cast<LogbookColumn>(i);
            LogbookRows rows = inOrder;
            times[i].Ascending.push_back(SortSeconds(entries, rows, column, SortDirection::Ascending));
            times[i].Descending.push_back(SortSeconds(entries, rows, column, SortDirection::Descending));
            rows = column == LogbookColumn::Data ? bySender : byData;
            times[i].FromOther.push_back(SortSeconds(entries, rows, column, SortDirection::Ascending));
            rows = shuffled;
            times[i].FromShuffled.push_back(SortSeconds(entries, rows, column, SortDirection::Ascending));
        }
    }

    for (const Yardstick& yardstick : yardsticks)
        std::printf("yardstick, %-20s %.3f s with 8-bit digits, %.3f s with 11-bit digits\n", yardstick.Name,
                    Median(yardstick.Times8), Median(yardstick.Times11));
    for (std::size_t i = 0; i < times.size(); ++i)
        std::printf(
            "%-8s ascending %.3f s, then descending %.3f s; from %s order %.3f s, from shuffled %.3f s\n",
            ColumnNames[i], Median(times[i].Ascending), Median(times[i].Descending),
            static_cast<LogbookColumn>(i) == LogbookColumn::Data ? "sender" : "data",
            Median(times[i].FromOther), Median(times[i].FromShuffled));
    for (const auto& [column, first] :
         {std::pair{LogbookColumn::Time, 1U}, std::pair{LogbookColumn::Index, 4U}}) {
        const Times& time = times[static_cast<std::size_t>(column)];
        std::printf(
            "%s: to the same keys %.2f, from data order %.2f, from shuffled %.2f; to random keys %.2f, "
            "%.2f, %.2f\n",
            ColumnNames[static_cast<std::size_t>(column)], Median(time.Ascending) / yardsticks[first].Best(),
            Median(time.FromOther) / yardsticks[first + 1].Best(),
            Median(time.FromShuffled) / yardsticks[first + 2].Best(),
            Median(time.Ascending) / yardsticks[0].Best(), Median(time.FromOther) / yardsticks[0].Best(),
            Median(time.FromShuffled) / yardsticks[0].Best());
    }
}

// Texts that are all different, each only far behind a beginning that many share; no two neighbours alike.
void FillWithLikeTexts(EntryTable& entries, EntryNumber count) {
    entries.Clear(count, std::size_t{count} * 64);
    const CodePage codePage;
    std::mt19937_64 random(1);
    for (EntryNumber i = 0; i < count; ++i) {
        const std::string data = "Sollwert ausserhalb der Grenzen in Programm P" +
                                 std::to_string(random() % 100) + ".NC, Satz " +
                                 std::to_string(i * 2654435761U);
        ParsedEntry entry;
        entry.EventType = EventTypes::Info;
        entry.Data = data;
        entry.Time = "04.01.2010 12:34:56";
        entries.Append(entry, codePage);
    }
    entries.Trim();
}

void MeasureTexts(const EntryTable& entries, int rounds) {
    const LogbookRows inOrder = AllRows(entries.Count());
    const LogbookRows shuffled = Shuffled(inOrder);
    std::vector<double> fromEntries;
    std::vector<double> fromShuffled;
    for (int round = 0; round < rounds; ++round) {
        LogbookRows rows = inOrder;
        fromEntries.push_back(SortSeconds(entries, rows, LogbookColumn::Data, SortDirection::Ascending));
        rows = shuffled;
        fromShuffled.push_back(SortSeconds(entries, rows, LogbookColumn::Data, SortDirection::Descending));
    }
    std::printf(
        "different texts of %.0f bytes that begin alike: from entry order %.3f s, from shuffled %.3f s\n",
        static_cast<double>(entries.Text().size()) / entries.Count(), Median(fromEntries),
        Median(fromShuffled));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "sort-bench FILE [ROUNDS]\nsort-bench --texts NUMBER [ROUNDS]\n");
        return 2;
    }
    const bool texts = std::string_view(argv[1]) == "--texts" && argc > 2;
    const int roundsAt = texts ? 3 : 2;
    const int rounds = argc > roundsAt ? std::atoi(argv[roundsAt]) : 5;
    Logbook logbook;
    if (texts)
        FillWithLikeTexts(logbook.Entries, static_cast<EntryNumber>(std::atoi(argv[2])));
    else
        ReadOnce(argv[1], logbook);

    // The memory of the sort of the data first: later the peak is that of the yardsticks.
    LogbookRows rows = AllRows(logbook.Entries.Count());
    const std::size_t before = ResidentMemory();
    SortSeconds(logbook.Entries, rows, LogbookColumn::Data, SortDirection::Ascending);
    const auto perRow = [&](std::size_t bytes) {
        return (static_cast<double>(bytes) - static_cast<double>(before)) / static_cast<double>(rows.size());
    };
    std::printf("%zu rows; a sort by data takes %.1f bytes a row at its peak and %.1f after it\n",
                rows.size(), perRow(PeakResidentMemory()), perRow(ResidentMemory()));
    if (texts)
        return MeasureTexts(logbook.Entries, rounds), 0;
    AddComments(logbook.Entries);
    MeasureColumns(logbook.Entries, rounds);
}
