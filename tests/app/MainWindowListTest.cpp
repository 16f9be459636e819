// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "filter/FilterStorage.h"

#include <QAccessible>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>

class MainWindowListTest : public MainWindowTest {
    Q_OBJECT

  private slots:
    void init() { StartAfresh(); }
    void cleanup() { Window.reset(); }

    void TimeSortsUpThenDownAndIndexFollowsItsDirection() {
        OpenTimes();
        ClickHeader(4);
        QCOMPARE(Column(5), QStringList({"2", "1", "0"}));
        ClickHeader(4);
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
        ClickHeader(5);
        QCOMPARE(Column(5), QStringList({"2", "1", "0"}));
        QCOMPARE(List()->horizontalHeader()->sortIndicatorSection(), 5);
        QCOMPARE(List()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder);
    }

    void FirstClickOnTheFirstColumnSortsDownwards() {
        Window->OpenLogbook(
            File("a.log", {Header("BERR:    a"), Header("RESET:"), Header("INFO:    GEO AXIS")}));
        ClickHeader(0);
        QCOMPARE(Column(0), QStringList({"Restart", "Info", "Fatal"}));
    }

    void IndexSortsAsNumber() {
        Window->OpenLogbook(FileOfErrors(11));
        ClickHeader(5);
        QCOMPARE(Column(5), QStringList({"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
        ClickHeader(1);
        QCOMPARE(Column(1), QStringList({"0", "1", "10", "2", "3", "4", "5", "6", "7", "8", "9"}));
    }

    void FilterRunPutsTheRowsBackIntoEntryOrder() {
        OpenTimes();
        ClickHeader(4);
        QVERIFY(List()->horizontalHeader()->isSortIndicatorShown());
        Window->ApplyFilter();
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
        QVERIFY(!List()->horizontalHeader()->isSortIndicatorShown());
        ClickHeader(4);
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
    }

    void LongTextsAreWholeAndShownInPart() {
        Window->OpenLogbook(FileOfErrors(30));
        // To lay out all of them would take minutes.
        const std::string comment(4000000, 'x');
        for (EntryNumber number = 0; number < 30; ++number)
            Book->Entries.SetComment(number, comment);
        Window->grab();
        const QModelIndex cell = List()->model()->index(7, static_cast<int>(LogbookColumn::Comment));
        QCOMPARE(cell.data().toString().size(), 4000000);
        const auto* const delegate = qobject_cast<QStyledItemDelegate*>(List()->itemDelegate());
        QVERIFY(delegate != nullptr);
        QCOMPARE(delegate->displayText(cell.data(), QLocale()), QString(2000, 'x'));
    }

    void SelectionStaysOnItsEntriesAndInView() {
        Window->OpenLogbook(FileOfErrors(500));
        List()->selectRow(3);
        ClickHeader(5);
        ClickHeader(5);
        QCOMPARE(Cell(496, 1), QString("3"));
        QCOMPARE(List()->SelectedRow(), std::optional(496));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{496, 496}}));
        QVERIFY(List()->viewport()->rect().contains(RowPoint(496)));

        List()->SelectRanges({{0, 1}, {10, 10}}, 10);
        ClickHeader(5);
        QCOMPARE(List()->SelectedRanges(), RowRanges({{489, 489}, {498, 499}}));
        QCOMPARE(List()->currentIndex().row(), 489);
        List()->selectAll();
        ClickHeader(5);
        QCOMPARE(List()->SelectedRanges(), RowRanges({{0, 499}}));
    }

    void SelectedRowIsTheCurrentOneOrTheFirstThatIsSelected() {
        Window->OpenLogbook(FileOfErrors(3));
        QVERIFY(!List()->SelectedRow());
        List()->selectRow(1);
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        List()->selectionModel()->setCurrentIndex(List()->model()->index(2, 0),
                                                  QItemSelectionModel::NoUpdate);
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        List()->clearSelection();
        QVERIFY(!List()->SelectedRow());
    }

    void RowsAreTakenOutAtOnce() {
        Window->OpenLogbook(FileOfErrors(10));
        List()->SelectRanges({{0, 1}, {4, 6}, {9, 9}}, 4);
        List()->RemoveRows(List()->SelectedRanges());
        QCOMPARE(Column(1), QStringList({"2", "3", "7", "8"}));
        List()->selectAll();
        List()->RemoveRows(List()->SelectedRanges());
        QCOMPARE(List()->model()->rowCount(), 0);
        List()->RemoveRows(List()->SelectedRanges());
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

    void KeysOfTheListAreTold() {
        Window->OpenLogbook(FileOfErrors(3));
        List()->selectRow(0);
        Book->Busy = true; // the keys are told, their commands wait
        QSignalSpy remove(List(), &LogbookView::RemoveWanted);
        QSignalSpy open(List(), &LogbookView::PropertiesWanted);
        QSignalSpy toggle(List(), &LogbookView::ToggleWanted);
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

    void HomeAndEndGoToTheFirstAndTheLastRow() {
        Window->OpenLogbook(FileOfErrors(500));
        for (const Qt::KeyboardModifiers ctrl : {Qt::NoModifier, Qt::ControlModifier}) {
            List()->SelectAndShow(250);
            PressAndCompare(Qt::Key_End, ctrl, {{499, 499}});
            PressAndCompare(Qt::Key_Home, ctrl, {{0, 0}});
            PressAndCompare(Qt::Key_End, ctrl | Qt::ShiftModifier, {{0, 499}});
            QVERIFY(List()->viewport()->rect().contains(RowPoint(499)));
            PressAndCompare(Qt::Key_End, ctrl, {{499, 499}});
            List()->SelectAndShow(250);
            PressAndCompare(Qt::Key_Home, ctrl | Qt::ShiftModifier, {{0, 250}});
            QVERIFY(List()->viewport()->rect().contains(RowPoint(0)));
            // At the first row already, yet with others.
            PressAndCompare(Qt::Key_Home, ctrl, {{0, 0}});
        }
    }

    void ShiftBeginsWhereTheProgramSelected() {
        Window->OpenLogbook(FileOfErrors(50));
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, RowPoint(2));
        List()->SelectAndShow(20);
        PressAndCompare(Qt::Key_Down, Qt::ShiftModifier, {{20, 21}});
        List()->SelectRanges({{30, 30}}, 30);
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::ShiftModifier, RowPoint(25));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{25, 30}}));
    }

    void ListOfOneRowHasKeys() {
        Window->OpenLogbook(FileOfErrors(1));
        for (const Qt::Key key :
             {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End})
            for (const Qt::KeyboardModifier modifier : {Qt::NoModifier, Qt::ShiftModifier})
                for (const bool isCurrent : {false, true}) {
                    List()->selectionModel()->clear();
                    if (isCurrent)
                        List()->SelectRanges({}, 0);
                    QVERIFY(List()->SelectedRanges().empty());
                    PressAndCompare(key, modifier, {{0, 0}});
                }
        QCOMPARE(Content(), QString("0\n"));
        // With Ctrl the arrows move without selecting.
        List()->SelectRanges({}, 0);
        PressAndCompare(Qt::Key_Down, Qt::ControlModifier, {});
    }

    void ArrowsBeginAtTheCurrentRow() {
        Window->OpenLogbook(FileOfErrors(5));
        List()->SelectRanges({}, 0);
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{0, 0}});
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{1, 1}});
        PressAndCompare(Qt::Key_Down, Qt::ControlModifier, {{1, 1}});
        QCOMPARE(List()->currentIndex().row(), 2);
        PressAndCompare(Qt::Key_Down, Qt::NoModifier, {{3, 3}});
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

    void FocusIsDrawnAroundTheRow() {
        Window->OpenLogbook(FileOfErrors(4));
        QApplication::setActiveWindow(Window.get());
        List()->setFocus();
        List()->setColumnWidth(1, 60);
        const auto colourAt = [this](int x, int row) {
            const QRect cell = List()->visualRect(List()->model()->index(row, 0));
            return List()->viewport()->grab().toImage().pixelColor(x, cell.top() + 1).name();
        };
        const auto name = [this](QPalette::ColorRole role) { return List()->palette().color(role).name(); };
        const int last = List()->columnViewportPosition(6) + 20;
        for (const bool selected : {true, false}) {
            List()->SelectRanges(selected ? RowRanges{{1, 1}} : RowRanges{}, 1);
            QVERIFY(List()->hasFocus());
            const QString frame = name(selected ? QPalette::HighlightedText : QPalette::Text);
            for (const int x : {30, List()->columnViewportPosition(1) + 20, last}) {
                QCOMPARE(colourAt(x, 1), frame);
                QCOMPARE(colourAt(x, 2), name(QPalette::Base));
            }
        }
        Find<QPlainTextEdit>("txContent")->show();
        Find<QPlainTextEdit>("txContent")->setFocus();
        QCOMPARE(colourAt(30, 1), name(QPalette::Base));
    }

    void TypedLettersDoNothing() {
        Window->OpenLogbook(
            File("a.log", {Header("BERR:    a"), Header("RESET:"), Header("INFO:    GEO AXIS")}));
        QCOMPARE(Column(0), QStringList({"Fatal", "Restart", "Info"}));
        List()->SelectAndShow(0);
        const LogbookRows before = List()->Logbook()->Rows();
        QTest::keyClicks(List(), "res");
        QCOMPARE(List()->SelectedRow(), std::optional(0));
        QVERIFY(List()->Logbook()->Rows() == before);
    }

    void DragThatEndsOutsideShowsItsRow() {
        Window->OpenLogbook(FileOfErrors(4));
        QWidget* const rows = List()->viewport();
        QTest::mousePress(rows, Qt::LeftButton, {}, RowPoint(2));
        Drag(RowPoint(1));
        QTest::mouseRelease(rows, Qt::LeftButton, {}, QPoint(30, -40));
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        QCOMPARE(Content(), QString("1\n"));

        // A click beside the rows is none on a row.
        Window->RefreshContentText(0);
        QTest::mouseClick(rows, Qt::LeftButton, Qt::ControlModifier, rows->rect().bottomLeft());
        QCOMPARE(List()->SelectedRow(), std::optional(1));
        QCOMPARE(Content(), QString("0\n"));
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
        Drop({Folder.Path()});
        Drop({});
        QTest::qWait(0);
        QCOMPARE(Window->windowTitle(), QString("Qorvix"));
    }

    void CommandsDoNothingWhileALogbookIsRead() {
        const std::string endless = File("a.log", {Header("RESET:"), Header("BREG:"), " D0=1"});
        const std::string other = File("other.log", {Header("BERR:    a"), Header("RESET:")});
        QTimer::singleShot(0, Window.get(), [&] {
            QVERIFY(Book->Busy);
            QCOMPARE(Find<QLabel>("statusText")->text(), QString("Reading log..."));
            QVERIFY(!Window->OpenLogbook(other));
            Item("mnuViewRefresh")->trigger();
            Window->ApplyFilter();
            ClickHeader(4);
            Item("mnuExtrasDialogLanguage")->trigger();
            QCOMPARE(List()->model()->rowCount(), 0);
            QVERIFY(!List()->horizontalHeader()->isSortIndicatorShown());
            Item("mnuVContent")->trigger();
            QVERIFY(Item("mnuVContent")->isChecked());
            Item("mnuFileExit")->trigger();
        });
        Window->OpenLogbook(endless);
        QVERIFY(!Window->isVisible());
    }

  private:
    QList<int> Icons() const {
        QList<int> icons;
        for (int row = 0; row < List()->model()->rowCount(); ++row)
            icons << List()->model()->index(row, 0).data(LogbookModel::ImageRole).toInt();
        return icons;
    }

    // Entry 0 is the latest.
    void OpenTimes() {
        Window->OpenLogbook(File("a.log", {Header("BERR:    a", "03.02.2010 00:00:00.000"),
                                           Header("BERR:    b", "04.01.2010 00:00:00.000"),
                                           Header("BERR:    c", "05.12.2009 23:59:59.999")}));
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
    }

    // So many rows that the list scrolls, in columns that are wider than the window.
    void OpenWide() {
        Window->OpenLogbook(FileOfErrors(300));
        List()->setColumnWidth(1, 3000);
        QTRY_VERIFY(List()->horizontalScrollBar()->maximum() > 1000);
    }

    QPoint RowPointAt(int x, int row) const { return {x, RowPoint(row).y()}; }

    // Moves the mouse, whose left button is down.
    void Drag(QPoint place) const {
        QMouseEvent move(QEvent::MouseMove, place, List()->viewport()->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &move);
    }

    void PressAndCompare(Qt::Key key, Qt::KeyboardModifiers modifiers, const RowRanges& selected) const {
        QTest::keyClick(List(), key, modifiers);
        QCOMPARE(List()->SelectedRanges(), selected);
    }

    QString Content() const { return Find<QPlainTextEdit>("txContent")->toPlainText(); }

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

QTEST_MAIN(MainWindowListTest)
#include "MainWindowListTest.moc"
