// SPDX-License-Identifier: MIT
// filter-bench FILE [ROUNDS]: filter runs over a logbook, beside reading it with the bare reader and counting
// the same text in the file with ripgrep (rg, which must be installed), and beside counting what each run
// hides. Median times, all measured in turn.
#include "bench/BareReader.h"
#include "bench/BenchTools.h"
#include "filter/Filter.h"
#include "filter/HiddenEntries.h"

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

using Filters = std::vector<FilterDefinition>;

struct Measured {
    const char* Name;
    Filters List;
    std::vector<double> Times;
    std::vector<double> Counting = {}; // what is hidden
    std::size_t Rows = 0;
};

FilterDefinition Exclude(std::int16_t filterType, std::string text) {
    return {FilterActions::Exclude, filterType, std::move(text), "", "", true};
}

Filters WithDefault(Filters others) {
    others.insert(others.begin(), FilterDefinition{});
    return others;
}

// Ten thousand parts, every second one a range, spread over all entries.
std::string LongNumberList(std::int64_t entries) {
    std::string list;
    const std::int64_t step = entries / 10000;
    for (std::int64_t part = 0; part < 10000; ++part) {
        const std::int64_t first = part * step;
        list += (list.empty() ? "" : ",") + std::to_string(first);
        if (part % 2 == 0)
            list += "-" + std::to_string(first + 3);
    }
    return list;
}

double CountWithRipgrep(const std::string& text, const std::string& path) {
    const std::string command = "rg -j1 -a -c -F -- '" + text + "' '" + path + "' >/dev/null";
    return Seconds([&] {
        if (std::system(command.c_str()) > 256) // 256: it found nothing
            std::fprintf(stderr, "rg failed\n");
    });
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "filter-bench FILE [ROUNDS]\n");
        return 2;
    }
    const std::string path = argv[1];
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    Logbook logbook;
    const std::int64_t entries = ReadOnce(path, logbook);

    const std::string text = "verbunden";
    Filters ten;
    for (const char* part : {"verbunden", "Werkzeug", "nicht referenziert", "Platz", "fertig", "Nullpunkt",
                             "block", "buffer", "pages", "Satz"})
        ten.push_back(Exclude(FilterTypes::All, part));
    Measured runs[] = {
        {"default filter", WithDefault({}), {}},
        {"one text filter", WithDefault({Exclude(FilterTypes::All, text)}), {}},
        {"one text that does not occur", WithDefault({Exclude(FilterTypes::All, "no such text")}), {}},
        {"ten text filters", WithDefault(ten), {}},
        {"list of 10,000 parts", WithDefault({Exclude(FilterTypes::Numbers, LongNumberList(entries))}), {}}};
    std::vector<double> bare;
    std::vector<double> ripgrep;
    LogbookRows rows;
    for (int round = 0; round < rounds; ++round) {
        for (Measured& run : runs) {
            run.Times.push_back(Seconds([&] { ApplyFilters(logbook.Entries, run.List, rows); }));
            run.Rows = rows.size();
            HiddenEntries hidden;
            run.Counting.push_back(Seconds([&] { hidden = CountHidden(logbook.Entries, run.List); }));
            if (hidden.Sum() + rows.size() != logbook.Entries.Count())
                std::fprintf(stderr, "the counts do not add up\n");
        }
        ripgrep.push_back(CountWithRipgrep(text, path));
        bare.push_back(Seconds([&] {
            BareReader reader;
            reader.Read(path, BareReader::Room::Grows);
        }));
    }
    std::printf("%lld entries; bare reader %.3f s, rg of one text %.3f s\n", static_cast<long long>(entries),
                Median(bare), Median(ripgrep));
    for (const Measured& run : runs)
        std::printf("%-30s %.3f s, %zu rows; to bare %.2f, to rg %.2f, to default %.2f, to one text %.2f; "
                    "counting %.3f s, to the run %.2f\n",
                    run.Name, Median(run.Times), run.Rows, Median(run.Times) / Median(bare),
                    Median(run.Times) / Median(ripgrep), Median(run.Times) / Median(runs[0].Times),
                    Median(run.Times) / Median(runs[1].Times), Median(run.Counting),
                    Median(run.Counting) / Median(run.Times));
}
