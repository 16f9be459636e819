// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "filter/FilterStorage.h"
#include "support/WindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QSignalSpy>

class MainWindowListCommandsTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void KeysOfTheListAreTold() {
        Window->OpenLogbook(FileOfErrors(3));
        List()->selectRow(0);
        Book->Busy = true; // the keys are told, their commands wait
        QSignalSpy remove(List(), &LogbookView::RemoveFromListWanted);
        QSignalSpy open(List(), &LogbookView::PropertiesWanted);
        QSignalSpy toggle(List(), &LogbookView::ToggleHighlightingWanted);
        QSignalSpy up(List(), &LogbookView::KeyUp);
        QTest::keyClick(List(), Qt::Key_Delete);
        QTest::keyClick(List(), Qt::Key_Return);
        QTest::keyClick(List(), Qt::Key_Enter);
        QTest::keyClick(List(), Qt::Key_Space);
        QCOMPARE(remove.size(), 1);
        QCOMPARE(open.size(), 2);
        QCOMPARE(toggle.size(), 1);
        QCOMPARE(up.size(), 4);
        QCOMPARE(List()->SelectedRow(), std::optional(0));
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(2));
        QCOMPARE(open.size(), 3);
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, List()->viewport()->rect().bottomLeft());
        QCOMPARE(open.size(), 3);
        Book->Busy = false;
    }

    void RowsAreTakenOutAtOnce() {
        Window->OpenLogbook(FileOfErrors(10));
        List()->SelectRanges({{0, 1}, {4, 6}, {9, 9}}, 4);
        List()->RemoveFromList(List()->SelectedRanges());
        QCOMPARE(Column(1), QStringList({"2", "3", "7", "8"}));
        List()->selectAll();
        List()->RemoveFromList(List()->SelectedRanges());
        QCOMPARE(List()->model()->rowCount(), 0);
        List()->RemoveFromList(List()->SelectedRanges());
    }

    void RowBehindTheRemovedOnesIsSelectedAndShown() {
        Window->OpenLogbook(FileOfErrors(10));
        List()->SelectRanges({{0, 1}, {4, 6}}, 4);
        QTest::keyPress(List(), Qt::Key_Delete);
        QCOMPARE(Column(1), QStringList({"2", "3", "7", "8", "9"}));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{2, 2}}));
        QCOMPARE(List()->currentIndex().row(), 2);
        QCOMPARE(Content(), QString("7\n"));
        QTest::keyRelease(List(), Qt::Key_Delete);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Column(1), QStringList({"2", "3", "8", "9"}));
        QTest::keyClick(List(), Qt::Key_Down);
        QCOMPARE(List()->SelectedRow(), std::optional(3));
        // Behind the last row there is none.
        Item("mnuPopupRemove")->trigger();
        QCOMPARE(List()->SelectedRanges(), RowRanges({{2, 2}}));
        QCOMPARE(Content(), QString("8\n"));
        List()->selectAll();
        Item("mnuPopupRemove")->trigger();
        QCOMPARE(List()->model()->rowCount(), 0);
    }

    void RowBehindTheRemovedOnesIsInView() {
        Window->OpenLogbook(FileOfErrors(1000));
        List()->scrollToTop();
        List()->SelectRanges({{1, 1}, {700, 700}}, 1);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(List()->SelectedRow(), std::optional(699));
        QVERIFY(List()->viewport()->rect().contains(RowPoint(699)));
    }

    void DeleteKeepsTheSelectedEntriesOut() {
        Window->OpenLogbook(FileOfErrors(6));
        List()->SelectRanges({{1, 2}, {4, 4}}, 4);
        QTest::keyClick(List(), Qt::Key_Delete);
        QCOMPARE(Column(1), QStringList({"0", "3", "5"}));
        QCOMPARE(Counts(), QString("3 / 6 Items"));
        QCOMPARE(LoadFilters(*Settings, {}).Filters.back(), Filter("X|8|1-2,4|||1"));
        Window->ApplyFilter();
        QCOMPARE(Column(1), QStringList({"0", "3", "5"}));
        QCOMPARE(Counts(), QString("3 / 6 Items"));
        List()->clearSelection();
        Item("mnuPopupRemove")->trigger();
        QCOMPARE(List()->model()->rowCount(), 3);
    }

    void SpaceHighlightsAndBack() {
        Window->OpenLogbook(FileOfErrors(3));
        List()->SelectRanges({{0, 1}}, 0);
        QTest::keyClick(List(), Qt::Key_Space);
        QCOMPARE(Icons(), QList<int>({18, 18, 4}));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{0, 1}}));
        Window->ApplyFilter();
        QCOMPARE(Icons(), QList<int>({18, 18, 4}));
        List()->SelectRanges({{1, 2}}, 1);
        Item("mnuPopupToggle")->trigger();
        QCOMPARE(Icons(), QList<int>({18, 4, 18}));
    }

    void ScreenReaderIsToldOfHighlighting() {
        Window->OpenLogbook(FileOfErrors(500));
        QSignalSpy announced(List(), &LogbookView::RowAnnounced);
        const auto rows = [&] {
            QList<int> told;
            while (!announced.isEmpty())
                told << announced.takeFirst().front().toInt();
            return told;
        };
        List()->SelectRanges({{1, 1}, {3, 4}, {300, 499}}, 1);
        QTest::keyClick(List(), Qt::Key_Space);
        QCOMPARE(rows(), QList<int>({1, 3, 4})); // those on the screen
        QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(List());
        QAccessibleTableInterface* const table = list->tableInterface();
        QCOMPARE(table->cellAt(3, 0)->text(QAccessible::Name), QString("Fatal, highlighted"));
        QCOMPARE(table->cellAt(2, 0)->text(QAccessible::Name), QString("Fatal"));
        QCOMPARE(table->cellAt(3, 1)->text(QAccessible::Name), QString("3"));
        QCOMPARE(list->focusChild()->text(QAccessible::Name), QString("Fatal, highlighted"));
        List()->SelectRanges({{4, 4}}, 4);
        QTest::keyClick(List(), Qt::Key_Space);
        QCOMPARE(rows(), QList<int>({4}));
        QCOMPARE(table->cellAt(4, 0)->text(QAccessible::Name), QString("Fatal"));

        List()->scrollToBottom();
        List()->SelectRanges({{0, 499}}, 499);
        QTest::keyClick(List(), Qt::Key_Space);
        const QList<int> last = rows();
        QVERIFY(last.size() > 5 && last.size() < 200);
        QCOMPARE(last.last(), 499);
        List()->Logbook()->SetLanguage({Language::German});
        QCOMPARE(rows(), last);
        QCOMPARE(table->cellAt(0, 0)->text(QAccessible::Name), QString("Fatal, markiert"));
    }

    void SelectedRowsAreCopiedWithTheirHeader() {
        Window->OpenLogbook(File("a.log", {Header("BERR:    a"), Header("RESET:"), Header("BERR:    b")}));
        List()->SelectRanges({{0, 0}, {2, 2}}, 0);
        List()->setFocus();
        QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(),
                 QString("Event type\tData\tSender\tName\tTime\tIndex\tComment\n"
                         "Fatal\ta\t\t\t04.01.2010 12:34:56.789\t0\t\n"
                         "Fatal\tb\t\t\t04.01.2010 12:34:56.789\t2\t\n"));
        List()->clearSelection();
        QApplication::clipboard()->setText("kept");
        QTest::keyClick(List(), Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), QString("kept"));
    }

    void PopupComesWithTheRightButtonAndWithItsKey() {
        Window->OpenLogbook(FileOfErrors(3));
        auto* const popup = Find<QMenu>("mnuPopup");
        QTest::mousePress(List()->viewport(), Qt::RightButton, {}, RowPoint(1));
        QVERIFY(!popup->isVisible());
        QTest::mouseRelease(List()->viewport(), Qt::RightButton, {}, RowPoint(1));
        QVERIFY(popup->isVisible());
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        popup->close();
        for (const auto& [key, modifiers] :
             {std::pair(Qt::Key_Menu, Qt::NoModifier), {Qt::Key_F10, Qt::ShiftModifier}}) {
            QTest::keyClick(List(), key, modifiers);
            QVERIFY(popup->isVisible());
            popup->close();
        }
        QTest::keyClick(List(), Qt::Key_F10, Qt::ControlModifier);
        QVERIFY(!popup->isVisible());
        // As Windows tells of Shift+F10; what other systems tell beside the menu key opens no second menu.
        for (const bool shift : {true, false}) {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {},
                                    shift ? Qt::ShiftModifier : Qt::NoModifier);
            QApplication::sendEvent(List(), &event);
            QCOMPARE(popup->isVisible(), shift);
            popup->close();
        }
    }

    void SelectedRowIsSeenWhileAnotherWindowIsInFront() {
        Window->OpenLogbook(FileOfErrors(3));
        QPalette palette = List()->palette();
        palette.setColor(QPalette::Active, QPalette::Highlight, Qt::blue);
        palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::white);
        List()->setPalette(palette);
        List()->SelectRanges({{1, 1}}, 0);
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        const QImage picture = List()->viewport()->grab().toImage();
        const QRect cell = List()->visualRect(List()->model()->index(1, 3)); // empty
        QCOMPARE(picture.pixelColor(cell.center()), QColor(Qt::blue));
    }

    void PopupKeyWithoutASelectedRowIsForTheCurrentOne() {
        Window->OpenLogbook(FileOfErrors(3));
        List()->SelectRanges({}, 1);
        QTest::keyClick(List(), Qt::Key_Menu);
        QVERIFY(Find<QMenu>("mnuPopup")->isVisible());
        Find<QMenu>("mnuPopup")->close();
        QCOMPARE(List()->SelectedRanges(), RowRanges({{1, 1}}));
        // It does not take a selection away.
        List()->SelectRanges({{0, 0}}, 2);
        QTest::keyClick(List(), Qt::Key_Menu);
        Find<QMenu>("mnuPopup")->close();
        QCOMPARE(List()->SelectedRanges(), RowRanges({{0, 0}}));
    }

  private:
    QList<int> Icons() const {
        QList<int> icons;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            icons << List()->model()->index(row, 0).data(LogbookModel::ImageRole).toInt();
        return icons;
    }

    QString Content() const { return Find<QPlainTextEdit>("txContent")->toPlainText(); }
};

QORVIX_WINDOW_TEST(MainWindowListCommandsTest)
#include "MainWindowListCommandsTest.moc"
