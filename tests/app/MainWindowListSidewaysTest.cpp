// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"

#include <QScrollBar>

class MainWindowListSidewaysTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void PopupOpensAtItsRowAlsoWhereTheListIsScrolledSideways() {
        OpenWide();
        List()->SelectRanges({{3, 3}}, 3);
        List()->horizontalScrollBar()->setValue(600);
        QTest::keyClick(List(), Qt::Key_Menu);
        auto* const popup = Find<QMenu>("mnuPopup");
        const QRect row = List()->visualRect(List()->model()->index(3, 0));
        const QPoint place = List()->viewport()->mapToGlobal(QPoint(0, row.bottom()));
        QCOMPARE(popup->pos().y(), place.y());
        popup->close();
    }

    void SortKeepsTheSidewaysPlace() {
        OpenWide();
        List()->selectRow(3);
        QScrollBar* const bar = List()->horizontalScrollBar();
        bar->setValue(bar->maximum());
        for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
            ClickHeader(6);
            QCOMPARE(List()->horizontalHeader()->sortIndicatorSection(), 6);
            QCOMPARE(List()->horizontalHeader()->sortIndicatorOrder(), order);
            QCOMPARE(bar->value(), bar->maximum());
        }
    }

    void ClicksAndKeysKeepTheSidewaysPlace() {
        OpenWide();
        QScrollBar* const bar = List()->horizontalScrollBar();
        bar->setValue(700); // in the midst of the column Data
        // A view that scrolls after a click does so 100 ms after it can no longer become a double click.
        const int interval = QApplication::doubleClickInterval();
        QApplication::setDoubleClickInterval(1);
        const int width = List()->viewport()->width();
        for (const int x : {1, width / 2, width - 2})
            for (const Qt::KeyboardModifier modifier :
                 {Qt::NoModifier, Qt::ControlModifier, Qt::ShiftModifier}) {
                for (const int row : {4, 2})
                    QTest::mouseClick(List()->viewport(), Qt::LeftButton, modifier, RowPointAt(x, row));
                QTest::qWait(120);
                QCOMPARE(bar->value(), 700);
            }
        QApplication::setDoubleClickInterval(interval);
        for (const Qt::Key key :
             {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_PageUp, Qt::Key_Home}) {
            QTest::keyClick(List(), key);
            QCOMPARE(bar->value(), 700);
        }
    }

    void JumpsAndFilterRunsKeepTheSidewaysPlace() {
        OpenWide();
        QScrollBar* const bar = List()->horizontalScrollBar();
        bar->setValue(700);
        auto* const viewer = Find<QWidget>("pbTagViewer");
        QTest::mouseClick(viewer, Qt::LeftButton, {}, QPoint(5, viewer->height() / 2));
        QVERIFY(List()->SelectedRow() > 100);
        QCOMPARE(bar->value(), 700);
        Window->ApplyFilter();
        QVERIFY(List()->SelectedRow() > 100);
        QCOMPARE(bar->value(), 700);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(bar->value(), 700);
    }

    void LeftAndRightScrollSideways() {
        OpenWide();
        List()->SelectAndShow(1);
        QScrollBar* const bar = List()->horizontalScrollBar();
        QTest::keyClick(List(), Qt::Key_Right);
        QVERIFY(bar->value() > 0);
        const int step = bar->value();
        QTest::keyClick(List(), Qt::Key_Right, Qt::ShiftModifier);
        QCOMPARE(bar->value(), 2 * step);
        QTest::keyClick(List(), Qt::Key_Left, Qt::ControlModifier);
        QTest::keyClick(List(), Qt::Key_Left);
        QCOMPARE(bar->value(), 0);
        QCOMPARE(List()->SelectedRanges(), RowRanges({{1, 1}}));
    }

    void ThereIsNoCurrentCell() {
        Window->OpenLogbook(FileOfErrors(3));
        const int x = List()->columnViewportPosition(4) + 5;
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowPointAt(x, 1));
        QCOMPARE(List()->currentIndex(), List()->model()->index(1, 0));
    }

  private:
    // So many rows that the list scrolls, in columns that are wider than the window.
    void OpenWide() {
        Window->OpenLogbook(FileOfErrors(300));
        List()->setColumnWidth(1, 3000);
        QTRY_VERIFY(List()->horizontalScrollBar()->maximum() > 1000);
    }

    QPoint RowPointAt(int x, int row) const { return {x, RowPoint(row).y()}; }
};

QORVIX_WINDOW_TEST(MainWindowListSidewaysTest)
#include "MainWindowListSidewaysTest.moc"
