// SPDX-License-Identifier: MIT
// list-bench FILE: the list of the real main window with the rows of a logbook: memory a row, keys, sorting
// by every column with all of the window's work for it, and removing a scattered selection.
#include "app/frmMain.h"
#include "bench/BenchDocument.h"
#include "bench/BenchTools.h"
#include "bench/ProcessMemory.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "rows/LogbookColumns.h"

#include <QApplication>
#include <QKeyEvent>

#include <cstdio>
#include <memory>

namespace {

constexpr int Rounds = 5;

// The median of some rounds of an action and the painting after it, in seconds.
template <typename Action>
double Painted(const LogbookView& list, Action action, int rounds = Rounds) {
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round)
        times.push_back(Seconds([&] {
            action();
            list.viewport()->repaint();
        }));
    return Median(times);
}

void Press(LogbookView& list, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QApplication::sendEvent(&list, &press);
}

void MeasureKeys(LogbookView& list) {
    const struct {
        const char* Name;
        Qt::Key Key;
        Qt::KeyboardModifiers Modifiers;
    } keys[] = {{"Page Down", Qt::Key_PageDown, {}},
                {"Ctrl+End", Qt::Key_End, Qt::ControlModifier},
                {"Ctrl+Home", Qt::Key_Home, Qt::ControlModifier},
                {"Shift+Ctrl+End", Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier},
                {"Ctrl+A", Qt::Key_A, Qt::ControlModifier}};
    for (const auto& key : keys)
        std::printf("%-16s %8.2f ms\n", key.Name,
                    Painted(list, [&] { Press(list, key.Key, key.Modifiers); }) * 1000);
}

void MeasureSorts(frmMain& window, LogbookView& list) {
    for (int column = 0; column < LogbookColumnCount; ++column) {
        std::vector<double> first;
        for (int round = 0; round < 3; ++round) {
            window.ApplyFilter();
            list.selectRow(0);
            first.push_back(Painted(
                list, [&] { window.Run(Command::SortByColumn, column); }, 1));
        }
        const double again = Painted(
            list, [&] { window.Run(Command::SortByColumn, column); }, 3);
        std::printf("sort by %-8s %8.3f s from entry order, %8.3f s again\n",
                    Text(LogbookColumns[static_cast<std::size_t>(column)].Header, {}).data(), Median(first),
                    again);
    }
}

void MeasureRemoval(frmMain& window, LogbookView& list) {
    std::vector<double> select;
    std::vector<double> remove;
    for (int round = 0; round < 3; ++round) {
        window.ApplyFilter();
        const std::size_t rows = list.Logbook()->Rows().size();
        RowRanges scattered;
        for (std::size_t i = 0; i < 10000 && rows >= 20000; ++i)
            scattered.push_back({i * (rows / 10000), i * (rows / 10000)});
        select.push_back(Painted(
            list, [&] { list.SelectRanges(scattered, 0); }, 1));
        remove.push_back(Painted(
            list, [&] { window.Run(Command::RemoveFromList); }, 1));
        if (list.Logbook()->Rows().size() + scattered.size() != rows)
            std::printf("rows are missing\n");
    }
    std::printf("10,000 scattered rows: selected in %.3f s, removed in %.3f s\n", Median(select),
                Median(remove));
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "list-bench FILE\n");
        return 2;
    }
    BenchDocument bench;
    ReadOnce(argv[1], bench.Document.Book());
    frmMain window(bench.Document, bench.Settings);
    window.show();
    QApplication::processEvents();
    auto* const list = window.findChild<LogbookView*>("lvLogbook");

    const std::size_t before = ResidentMemory();
    window.ApplyFilter();
    QApplication::processEvents();
    const std::size_t rows = list->Logbook()->Rows().size();
    std::printf("%zu rows; memory of the list %.1f bytes a row\n", rows,
                static_cast<double>(ResidentMemory() - before) / static_cast<double>(rows));
    MeasureKeys(*list);
    MeasureSorts(window, *list);
    MeasureRemoval(window, *list);
}
