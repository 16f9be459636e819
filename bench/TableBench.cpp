// SPDX-License-Identifier: MIT
// table-bench FILE [ROUNDS]: the times that a person waits for one logbook, beside those of other programs
// for similar work (wc, grep, rg and lnav, which must be installed): the two lines of make-table. Medians in
// milliseconds, all measured in turn in one run.
#include "app/frmMain.h"
#include "bench/BareReader.h"
#include "bench/BenchTools.h"
#include "bench/ProcessMemory.h"
#include "filter/Filter.h"
#include "rows/ListSearch.h"
#include "rows/ListSorting.h"
#include "settings/Registry.h"

#include <QApplication>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

namespace {

struct Column {
    std::string Name;
    std::function<double()> Time; // in seconds
    bool Once = false;            // measured in the first round only
    std::vector<double> Times{};
};

constexpr const char* MissingText = "no such text";
constexpr const char* CommonText = "verbunden";

std::vector<FilterDefinition> WithDefault(std::initializer_list<const char*> excluded) {
    std::vector<FilterDefinition> filters(1);
    for (const char* text : excluded)
        filters.push_back({FilterActions::Exclude, FilterTypes::All, text, "", "", true});
    return filters;
}

// A command of the shell, its output thrown away; by way of another program, as grep is content with the
// first hit when it sees that nobody looks.
double CommandTime(const std::string& command) {
    return Seconds([&] {
        const int status = std::system((command + " 2>&1 </dev/null | cat >/dev/null").c_str());
        if (status != 0)
            std::fprintf(stderr, "%s: status %d\n", command.c_str(), status);
    });
}

// What a read and the rows of the default filter add to the memory of a process, in bytes: what they keep,
// and what they had at their peak.
std::array<double, 2> MemoryOf(const std::string& path) {
    std::array<double, 2> bytes{};
    int ends[2];
    if (pipe(ends) != 0)
        return bytes;
    if (const pid_t child = fork(); child != 0) {
        if (read(ends[0], bytes.data(), sizeof bytes) != sizeof bytes)
            std::fprintf(stderr, "the memory was not measured\n");
        waitpid(child, nullptr, 0);
        close(ends[0]);
        close(ends[1]);
        return bytes;
    }
    const auto before = static_cast<double>(ResidentMemory());
    Logbook logbook;
    ReadOnce(path, logbook);
    LogbookRows rows;
    ApplyFilters(logbook.Entries, WithDefault({}), rows);
    bytes = {static_cast<double>(ResidentMemory()) - before,
             static_cast<double>(PeakResidentMemory()) - before};
    _exit(write(ends[1], bytes.data(), sizeof bytes) == sizeof bytes ? 0 : 1);
}

void PrintTimes(const std::vector<Column>& columns) {
    for (const Column& column : columns)
        std::printf(" %.*f |", Median(column.Times) < 0.1 ? 2 : 0, Median(column.Times) * 1000);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "table-bench FILE [ROUNDS]\n");
        return 2;
    }
    const std::string path = argv[1];
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    const auto fileSize = static_cast<double>(std::filesystem::file_size(path));
    // First, while this process is small.
    const std::array<double, 2> memory = MemoryOf(path);

    Logbook logbook;
    LogbookRows rows;
    const auto filter = [&](const std::vector<FilterDefinition>& filters) {
        return Seconds([&] { ApplyFilters(logbook.Entries, filters, rows); });
    };
    const auto sort = [&](LogbookColumn column) {
        ApplyFilters(logbook.Entries, WithDefault({}), rows);
        ListOrder order;
        return Seconds(
            [&] { SortListByColumn(logbook.Entries, rows, column, order, [](int) { return true; }); });
    };
    std::vector<Column> ours{
        {"read",
         [&] {
             logbook.Entries.Clear();
             return Seconds([&] { ReadOnce(path, logbook); });
         }},
        {"default filter", [&] { return filter(WithDefault({})); }},
        {"one text", [&] { return filter(WithDefault({CommonText})); }},
        {"ten texts",
         [&] {
             return filter(WithDefault({CommonText, "Werkzeug", "nicht referenziert", "Platz", "fertig",
                                        "Nullpunkt", "block", "buffer", "pages", "Satz"}));
         }},
        {"search",
         [&] {
             ApplyFilters(logbook.Entries, WithDefault({}), rows);
             return Seconds(
                 [&] { FindInList(logbook.Entries, rows, 0, {MissingText}, SearchDirection::Down); });
         }},
        {"sort by Time", [&] { return sort(LogbookColumn::Time); }},
        {"sort by Data", [&] { return sort(LogbookColumn::Data); }},
        {"window", [&] {
             const std::unique_ptr<SettingsStore> settings = MakeUserSettings();
             Registry registry(*settings);
             const TempFolder tempFolder;
             StoredActiveFilters filters(registry);
             LogbookDocument document({.Filters = filters, .Settings = registry, .Temp = tempFolder},
                                      CodePage(), tempFolder.Path());
             frmMain window(document, registry);
             window.show();
             QApplication::processEvents();
             return Seconds([&] {
                 window.OpenLogbook(path);
                 QApplication::processEvents();
                 window.repaint();
             });
         }}};
    const std::string file = "'" + path + "'";
    const std::string lnav = "lnav -n -c ':";
    const bool lnavOnce = rounds < 5; // it takes most of the time
    std::vector<Column> others{
        {"bare reader",
         [&] {
             BareReader reader;
             return Seconds([&] { reader.Read(path, BareReader::Room::Grows); });
         }},
        {"wc -l", [&] { return CommandTime("wc -l " + file); }},
        {"grep -c -F",
         [&] { return CommandTime("grep -a -c -F '" + std::string(CommonText) + "' " + file); }},
        {"rg", [&] { return CommandTime("rg -j1 -a -c -F '" + std::string(CommonText) + "' " + file); }},
        {"rg -i",
         [&] { return CommandTime("rg -j1 -a -i -c -F '" + std::string(MissingText) + "' " + file); }},
        {"lnav", [&] { return CommandTime(lnav + "switch-to-view help' " + file); }, lnavOnce},
        {"lnav, filter", [&] { return CommandTime(lnav + "filter-in " + CommonText + "' " + file); },
         lnavOnce}};
    for (int round = 0; round < rounds; ++round)
        for (std::vector<Column>* columns : {&ours, &others})
            for (Column& column : *columns)
                if (round == 0 || !column.Once)
                    column.Times.push_back(column.Time());

    const auto median = [](const std::vector<Column>& columns, std::size_t i) {
        return Median(columns[i].Times);
    };
    std::printf("ours | %u |", logbook.Entries.Count());
    PrintTimes(ours);
    std::printf(" %.2f / %.2f |\n", memory[0] / fileSize, memory[1] / fileSize);
    std::printf("others |");
    PrintTimes(others);
    std::printf(" %.2f | %.1f | %.2f | %.2f |\n", median(ours, 0) / median(others, 0),
                median(others, 5) / median(ours, 0), median(ours, 2) / median(others, 3),
                median(ours, 4) / median(others, 4));
}
