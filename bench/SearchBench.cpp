// SPDX-License-Identifier: MIT
// search-bench FILE [ROUNDS]: searches through the list of a logbook for texts that do not occur, beside
// counting the same text in the file with ripgrep (rg, which must be installed), and the drawing of the tag
// viewer's marks. Median times, all measured in turn.
#include "bench/BenchTools.h"
#include "rows/ListSearch.h"
#include "rows/TagMarks.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

struct Measured {
    const char* Name;
    SearchState Search;
    const LogbookRows& Rows;
    std::vector<double> Times{};
    std::int32_t Found = 0;
};

double CountWithRipgrep(const std::string& options, const std::string& text, const std::string& path) {
    const std::string command = "rg -j1 -a " + options + " -c -F -- '" + text + "' '" + path + "' >/dev/null";
    return Seconds([&] {
        if (std::system(command.c_str()) > 256) // 256: it found nothing
            std::fprintf(stderr, "rg failed\n");
    });
}

LogbookRows AllRows(const EntryTable& entries) {
    LogbookRows rows;
    rows.reserve(entries.Count());
    for (EntryNumber number = 0; number < entries.Count(); ++number)
        rows.push_back({.Entry = number & MostEntries, .Highlighted = 0});
    return rows;
}

// All slices of a drawing.
double DrawingTime(const EntryTable& entries, const LogbookRows& rows) {
    constexpr std::int64_t Height = 1000;
    return Seconds([&] {
        TagMarks marks;
        std::vector<std::int64_t> tops;
        while (!marks.NextSlice(entries, rows, Height, tops)) {
        }
    });
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "search-bench FILE [ROUNDS]\n");
        return 2;
    }
    const std::string path = argv[1];
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    Logbook logbook;
    ReadOnce(path, logbook);
    const EntryTable& entries = logbook.Entries;
    LogbookRows inOrder = AllRows(entries);
    LogbookRows shuffled = inOrder;
    std::mt19937 random(1);
    std::shuffle(shuffled.begin(), shuffled.end(), random);

    const std::string text = "no such text";
    const std::string oddForms = "kikeriki";
    // Longer than any cell, so that no cell has its length.
    const std::string longText(5000, 'y');
    Measured searches[] = {
        {"in entry order", {text}, inOrder},
        {"sorted (shuffled)", {text}, shuffled},
        {"with case, sorted", {text, false, 0, 1}, shuffled},
        {"text with k and i, sorted", {oddForms}, shuffled},
        {"whole word, sorted", {longText, false, 1, 0}, shuffled},
        {"a common text, 'tz': all rows", {"tz"}, shuffled},
    };
    std::vector<double> caseless;
    std::vector<double> exact;
    std::vector<double> drawing;
    std::vector<double> drawingShuffled;
    for (int round = 0; round < rounds; ++round) {
        for (Measured& search : searches)
            search.Times.push_back(Seconds([&] {
                const bool all = search.Search.SearchText == "tz";
                search.Found =
                    all ? static_cast<std::int32_t>(MatchingRows(entries, search.Rows, search.Search).size())
                        : FindInList(entries, search.Rows, 0, search.Search, SearchDirection::Down);
            }));
        caseless.push_back(CountWithRipgrep("-i", text, path));
        exact.push_back(CountWithRipgrep("", text, path));
        for (LogbookRows* rows : {&inOrder, &shuffled})
            for (LogbookRow& row : *rows)
                row.Highlighted = row.Entry % 10 == 3;
        drawing.push_back(DrawingTime(entries, inOrder));
        drawingShuffled.push_back(DrawingTime(entries, shuffled));
    }
    std::printf("%zu rows; rg -i %.3f s, rg %.3f s\n", inOrder.size(), Median(caseless), Median(exact));
    for (const Measured& search : searches)
        std::printf("%-30s %.3f s (%d); to rg -i %.2f\n", search.Name, Median(search.Times), search.Found,
                    Median(search.Times) / Median(caseless));
    std::printf("marks of every tenth row: %.3f s in entry order, %.3f s sorted\n", Median(drawing),
                Median(drawingShuffled));
}
