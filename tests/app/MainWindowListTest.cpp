// SPDX-License-Identifier: MIT
#include "app/MainWindowTest.h"

#include "support/WindowTest.h"

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
    // Entry 0 is the latest.
    void OpenTimes() {
        Window->OpenLogbook(File("a.log", {Header("BERR:    a", "03.02.2010 00:00:00.000"),
                                           Header("BERR:    b", "04.01.2010 00:00:00.000"),
                                           Header("BERR:    c", "05.12.2009 23:59:59.999")}));
        QCOMPARE(Column(5), QStringList({"0", "1", "2"}));
    }
};

QORVIX_WINDOW_TEST(MainWindowListTest)
#include "MainWindowListTest.moc"
