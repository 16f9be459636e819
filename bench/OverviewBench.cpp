// SPDX-License-Identifier: MIT
// overview-bench FILE: the overview beside the real main window: determining the history, opening again,
// zooming and moving the timeline, following a selection; and undoing the removal of scattered rows.
#include "app/frmMain.h"
#include "bench/BenchDocument.h"
#include "bench/BenchTools.h"
#include "bench/ProcessMemory.h"
#include "list/LogbookModel.h"
#include "list/LogbookView.h"
#include "overview/TimelineView.h"
#include "overview/frmOverview.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <cstdio>
#include <memory>

namespace {

constexpr int Rounds = 9;

void Settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

// Opens the overview and waits until it shows the history.
frmOverview* Open(frmMain& window) {
    window.Run(Command::Overview);
    auto* const overview = window.findChild<frmOverview*>("frmOverview");
    while (!overview->HasHistory())
        QApplication::processEvents();
    Settle();
    overview->repaint();
    return overview;
}

void MeasureOpening(frmMain& window) {
    const std::size_t before = ResidentMemory();
    std::printf("history determined, overview painted %8.1f ms\n", Seconds([&] { Open(window); }) * 1000);
    std::vector<double> again;
    for (int round = 0; round < Rounds; ++round) {
        window.findChild<frmOverview*>("frmOverview")->close();
        again.push_back(Seconds([&] { Open(window); }));
    }
    std::printf("opened again and painted             %8.1f ms\n", Median(again) * 1000);
    std::printf("memory of the overview               %8.1f MB\n",
                static_cast<double>(ResidentMemory() - before) / 1e6);
}

void MeasureFrames(TimelineView& timeline) {
    std::vector<double> zoom;
    std::vector<double> move;
    timeline.ShowAll();
    for (int step = 0; step < 60; ++step)
        zoom.push_back(Seconds([&] {
            timeline.ZoomIn();
            timeline.repaint();
        }));
    timeline.ShowAll();
    for (int step = 0; step < 8; ++step)
        timeline.ZoomIn();
    for (int step = 0; step < 60; ++step)
        move.push_back(Seconds([&] {
            QKeyEvent press(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
            QApplication::sendEvent(&timeline, &press);
            timeline.repaint();
        }));
    const double slowest =
        std::max(*std::max_element(zoom.begin(), zoom.end()), *std::max_element(move.begin(), move.end()));
    std::printf("a frame: zoomed %.2f ms, moved %.2f ms, the slowest of all %.2f ms\n", Median(zoom) * 1000,
                Median(move) * 1000, slowest * 1000);
}

double SelectionTime(LogbookView& list, const RowRanges& ranges) {
    std::vector<double> times;
    for (int round = 0; round < Rounds; ++round) {
        list.SelectRanges({{static_cast<std::size_t>(round), static_cast<std::size_t>(round)}}, {});
        Settle();
        times.push_back(Seconds([&] {
            list.SelectRanges(ranges, {});
            Settle();
        }));
    }
    return Median(times);
}

void MeasureSelection(frmMain& window, LogbookView& list) {
    const std::size_t rows = list.Logbook()->Rows().size();
    const struct {
        const char* Name;
        RowRanges Ranges;
    } selections[] = {{"one row", {{rows / 2, rows / 2}}},
                      {"all but two rows", {{1, rows - 2}}},
                      {"three quarters", {{rows / 8, rows / 2}, {rows / 2 + 9, rows - rows / 8}}}};
    for (const auto& selection : selections) {
        Open(window);
        const double open = SelectionTime(list, selection.Ranges);
        window.findChild<frmOverview*>("frmOverview")->close();
        const double closed = SelectionTime(list, selection.Ranges);
        std::printf("%-16s selected: %.2f ms with the overview, %.2f ms without\n", selection.Name,
                    open * 1000, closed * 1000);
    }
}

void MeasureUndo(frmMain& window, LogbookView& list) {
    const std::size_t rows = list.Logbook()->Rows().size();
    RowRanges scattered;
    for (std::size_t i = 0; i < 10000 && rows >= 20000; ++i)
        scattered.push_back({i * (rows / 10000), i * (rows / 10000)});
    std::vector<double> remove;
    std::vector<double> undo;
    std::vector<double> redo;
    std::vector<double> filter;
    for (int round = 0; round < Rounds; ++round) {
        list.SelectRanges(scattered, 0);
        remove.push_back(Seconds([&] { window.Run(Command::RemoveFromList); }));
        undo.push_back(Seconds([&] { window.Run(Command::Undo); }));
        redo.push_back(Seconds([&] { window.Run(Command::Redo); }));
        window.Run(Command::Undo);
        filter.push_back(Seconds([&] { window.ApplyFilter(); }));
        if (list.Logbook()->Rows().size() != rows)
            std::printf("rows are missing\n");
    }
    std::printf("10,000 scattered rows: removed in %.1f ms, undone in %.1f ms, redone in %.1f ms; a filter "
                "run %.1f ms\n",
                Median(remove) * 1000, Median(undo) * 1000, Median(redo) * 1000, Median(filter) * 1000);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "overview-bench FILE\n");
        return 2;
    }
    BenchDocument bench;
    frmMain window(bench.Document, bench.Settings);
    window.show();
    window.OpenLogbook(argv[1]);
    Settle();
    auto* const list = window.findChild<LogbookView*>("lvLogbook");
    std::printf("%zu rows\n", list->Logbook()->Rows().size());
    MeasureOpening(window);
    MeasureFrames(*window.findChild<TimelineView*>("pbTimeline"));
    MeasureSelection(window, *list);
    MeasureUndo(window, *list);
}
