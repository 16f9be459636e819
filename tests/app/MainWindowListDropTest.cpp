// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"

#include <QDropEvent>
#include <QMimeData>
#include <QScrollBar>

class MainWindowListDropTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void DroppedFileIsOpened() {
        Drop({File("first.log", {Header("BERR:    a"), Header("RESET:")})});
        QTRY_COMPARE(Window->windowTitle(), QString("first - Qorvix"));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
    }

    void FileDroppedBesideTheRowsIsOpened_data() {
        QTest::addColumn<QString>("part");
        for (const char* part : {"header", "vertical bar", "horizontal bar", "corner"})
            QTest::newRow(part) << part;
    }

    void FileDroppedBesideTheRowsIsOpened() {
        QFETCH(QString, part);
        QWidget* const target = part == "header"           ? List()->horizontalHeader()->viewport()
                                : part == "vertical bar"   ? List()->verticalScrollBar()
                                : part == "horizontal bar" ? List()->horizontalScrollBar()
                                                           : static_cast<QWidget*>(List());
        Drop({File("first.log", {Header("BERR:    a"), Header("RESET:")})}, target);
        QTRY_COMPARE(Window->windowTitle(), QString("first - Qorvix"));
        QCOMPARE(Counts(), QString("2 / 2 Items"));
    }

    void TwoFilesOrAFolderAreNotTaken() {
        const std::string file = File("first.log", {Header("BERR:    a")});
        Drop({file, file});
        Drop({Folder.Path().string()});
        Drop({});
        QTest::qWait(0);
        QCOMPARE(Window->windowTitle(), QString("Qorvix"));
    }

  private:
    void Drop(const std::vector<std::string>& paths) { Drop(paths, List()->viewport()); }

    void Drop(const std::vector<std::string>& paths, QWidget* target) {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& path : paths)
            urls << QUrl::fromLocalFile(QString::fromStdString(path));
        data.setUrls(urls);
        const QPoint place(20, 20);
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &enter);
        QCOMPARE(enter.isAccepted(), paths.size() == 1 && paths.front().ends_with(".log"));
        if (enter.isAccepted())
            QCOMPARE(enter.dropAction(), Qt::CopyAction); // the file stays where it is
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(target, &drop);
    }
};

QORVIX_WINDOW_TEST(MainWindowListDropTest)
#include "MainWindowListDropTest.moc"
