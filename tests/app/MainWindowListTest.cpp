// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "filter/FilterStorage.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
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
        QVERIFY(List()->SelectedRanges().empty());
        QCOMPARE(List()->currentIndex().row(), 3);
        List()->selectAll();
        List()->RemoveRows(List()->SelectedRanges());
        QCOMPARE(List()->model()->rowCount(), 0);
        List()->RemoveRows(List()->SelectedRanges());
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
        QTest::keyClick(List(), Qt::Key_Menu);
        QVERIFY(popup->isVisible());
        popup->close();
    }

    void RightClickOnASelectionKeepsIt() {
        Window->OpenLogbook(FileOfErrors(3));
        List()->selectAll();
        QTest::mouseClick(List()->viewport(), Qt::RightButton, {}, RowPoint(1));
        QCOMPARE(List()->SelectedRanges(), RowRanges({{0, 2}}));
        Find<QMenu>("mnuPopup")->close();
    }

    void DroppedFileIsOpened() {
        Drop({File("first.log", {Header("BERR:    a"), Header("RESET:")})});
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

    void Drop(const std::vector<std::string>& paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const std::string& path : paths)
            urls << QUrl::fromLocalFile(QString::fromStdString(path));
        data.setUrls(urls);
        const QPoint place(20, 20);
        QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &enter);
        QCOMPARE(enter.isAccepted(), paths.size() == 1 && paths.front().ends_with(".log"));
        if (enter.isAccepted())
            QCOMPARE(enter.dropAction(), Qt::CopyAction); // the file stays where it is
        QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(List()->viewport(), &drop);
    }
};

QTEST_MAIN(MainWindowListTest)
#include "MainWindowListTest.moc"
