// SPDX-License-Identifier: MIT
// selection-bench FILE [ROUNDS]: removing selected rows from the list of a logbook and toggling their
// highlighting, with the settings in a file; then the filter runs after that, beside the run without these
// filters. Median times.
#include "bench/BenchTools.h"
#include "filter/Filter.h"
#include "filter/FilterStorage.h"
#include "rows/EntryActions.h"
#include "settings/JsonSettings.h"
#include "settings/Registry.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

// Rows in pairs with gaps between them, spread over the first million rows.
RowRanges Pairs(const LogbookRows& rows, std::size_t pairs) {
    RowRanges selected;
    const std::size_t step = std::min<std::size_t>(rows.size(), 1000000) / pairs;
    for (std::size_t pair = 0; pair < pairs; ++pair)
        selected.push_back({pair * step, pair * step + 1});
    return selected;
}

LogbookRows Shuffled(LogbookRows rows) {
    std::shuffle(rows.begin(), rows.end(), std::mt19937(1));
    return rows;
}

std::size_t Parts(const std::vector<FilterDefinition>& filters) {
    std::size_t parts = 0;
    for (const FilterDefinition& filter : filters)
        if (filter.FilterType == FilterTypes::Numbers)
            parts += static_cast<std::size_t>(
                         std::count(filter.StringFilter.begin(), filter.StringFilter.end(), ',')) +
                     1;
    return parts;
}

class Bench {
  public:
    Bench(const EntryTable& entries, std::string settingsFile, int rounds)
        : entries_(entries), settingsFile_(std::move(settingsFile)), rounds_(rounds) {}

    // Toggles the highlighting of the rows on and off, takes them out of the list, and runs the filters.
    void Measure(const char* name, const LogbookRows& rows, const RowRanges& selected) {
        std::vector<double> on;
        std::vector<double> off;
        std::vector<double> removal;
        std::vector<double> runWithout;
        std::vector<double> run;
        std::size_t filters = 0;
        std::size_t parts = 0;
        for (int round = 0; round < rounds_; ++round) {
            std::filesystem::remove(settingsFile_);
            JsonSettings store(settingsFile_);
            Registry registry(store);
            runWithout.push_back(Seconds([&] { RunFilters(registry); }));
            LogbookRows shown = rows;
            const auto toggle = [&] {
                ToggleHighlighting(shown, ToggleHighlighting(registry, shown, selected));
            };
            on.push_back(Seconds(toggle));
            off.push_back(Seconds(toggle));
            removal.push_back(
                Seconds([&] { RemoveFromList(shown, RemoveFromList(registry, shown, selected)); }));
            run.push_back(Seconds([&] { RunFilters(registry); }));
            const std::vector<FilterDefinition> stored = LoadFilterList(registry).Filters;
            filters = stored.size();
            parts = Parts(stored);
        }
        std::printf("%-34s %8zu rows: removed %8.2f ms, highlighted %8.2f ms, plain again %8.2f ms; %zu "
                    "filters, %zu parts; run %.2f ms, %.2f of the run without\n",
                    name, RowCount(selected), Median(removal) * 1000, Median(on) * 1000, Median(off) * 1000,
                    filters, parts, Median(run) * 1000, Median(run) / Median(runWithout));
    }

  private:
    void RunFilters(const Registry& registry) {
        ApplyFilters(entries_, LoadFilters(registry, {}).Filters, rows_);
    }

    const EntryTable& entries_;
    std::string settingsFile_;
    int rounds_;
    LogbookRows rows_;
};

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "selection-bench FILE [ROUNDS]\n");
        return 2;
    }
    Logbook logbook;
    ReadOnce(argv[1], logbook);
    LogbookRows rows;
    ApplyFilters(logbook.Entries, DefaultFilters(), rows);
    const LogbookRows shuffled = Shuffled(rows);

    std::string folder = (std::filesystem::temp_directory_path() / "selection-bench-XXXXXX").string();
    if (mkdtemp(folder.data()) == nullptr)
        return 1;
    Bench bench(logbook.Entries, folder + "/Qorvix.json", argc > 2 ? std::atoi(argv[2]) : 5);
    const std::size_t hundredThousand = std::min<std::size_t>(rows.size(), 100000);
    bench.Measure("one", rows, {{rows.size() / 2, rows.size() / 2}});
    bench.Measure("pairs with gaps", rows, Pairs(rows, 5000));
    bench.Measure("scattered", shuffled, {{0, 9999}});
    bench.Measure("scattered", shuffled, {{0, hundredThousand - 1}});
    bench.Measure("all", rows, {{0, rows.size() - 1}});
    bench.Measure("all, in no order", shuffled, {{0, rows.size() - 1}});
    std::filesystem::remove_all(folder);
}
