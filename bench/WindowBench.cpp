// SPDX-License-Identifier: MIT
// window-bench FILE: the real main window opens a logbook. Compares this with the read alone, and scrolling
// and painting a page with painting an empty list.
#include "app/frmMain.h"
#include "bench/BenchDocument.h"
#include "bench/BenchTools.h"

#include <QApplication>
#include <QScrollBar>
#include <QTableView>

#include <cstdio>
#include <memory>

namespace {

double PageTime(QTableView* list) {
    constexpr int Pages = 200;
    QScrollBar* const bar = list->verticalScrollBar();
    std::vector<double> times;
    for (int page = 0; page < Pages; ++page)
        times.push_back(Seconds([&] {
            bar->setValue(bar->minimum() + (bar->maximum() - bar->minimum()) / Pages * page);
            list->viewport()->repaint();
        }));
    return Median(times);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "window-bench FILE\n");
        return 2;
    }
    BenchDocument bench;
    frmMain window(bench.Document, bench.Settings);
    window.show();
    QApplication::processEvents();
    auto* const list = window.findChild<QTableView*>("lvLogbook");
    const double emptyPage = PageTime(list);

    const double read = Seconds([&] {
        Logbook other;
        ReadOnce(argv[1], other);
    });
    const double open = Seconds([&] {
        window.OpenLogbook(argv[1]);
        QApplication::processEvents();
        window.repaint();
    });
    std::printf("%d rows; read alone %.3f s, window open and painted %.3f s\n", list->model()->rowCount(),
                read, open);
    std::printf("a page: %.2f ms, of an empty list %.2f ms\n", PageTime(list) * 1000, emptyPage * 1000);
}
